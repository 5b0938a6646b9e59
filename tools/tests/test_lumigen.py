# SPDX-License-Identifier: MIT
"""Tests of the registry reader and of what it emits. Run: python3 -m unittest discover tools/tests"""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))

from lumigen import dispatch, emit, grammar, reader, test_rows  # noqa: E402

HEAD = 'family probe data "Probe"\nop Probe\n  brief Tries something.\n'


def read(text, name="probe"):
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "data" / f"{name}.reg"
        path.parent.mkdir()
        path.write_text(text, encoding="utf-8")
        return reader.read_file(path)


def exports(text):
    return {e.name: e for op in read(text).operations for e in op.exports}


class Grammar(unittest.TestCase):
    def test_braces(self):
        self.assertEqual(grammar.expand_braces("{C1 AC4}{,I}R"), ["C1R", "C1IR", "AC4R", "AC4IR"])
        self.assertEqual(grammar.expand_braces("C1R"), ["C1R"])

    def test_descriptors(self):
        for token, layouts in (("C1R", ("C1",)), ("AC4IRSfs", ("AC4",)), ("C3P3R", ("C3", "P3")),
                               ("C3CR", ("C3C",)), ("C3C1R", ("C3", "C1")), ("C3A0C4R", ("C3", "A0C4")),
                               ("AC4C3R", ("AC4", "C3")), ("C1Rs", ("C1",)), ("C4C", None)):
            with self.subTest(token):
                if layouts is None:
                    self.assertRaises(grammar.GrammarError, grammar.parse_descriptor, token)
                else:
                    self.assertEqual(grammar.parse_descriptor(token).layouts, layouts)

    def test_types(self):
        self.assertEqual(grammar.parse_types("8u16s"), ("8u", "16s"))
        self.assertEqual(grammar.parse_types("32fc"), ("32fc",))
        self.assertRaises(grammar.GrammarError, grammar.parse_types, "9u")


class Prototypes(unittest.TestCase):
    def prototype(self, args, row, member):
        return emit.prototype(exports(f"{HEAD}  args {args}\n  {row} bind probe\n")[f"lumiProbe_{member}"])

    def test_plain(self):
        self.assertEqual(self.prototype("src dst roi", "8u C1R", "8u_C1R"),
                         "LumStatus lumiProbe_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, "
                         "LumiSize roi)")

    def test_in_place_takes_the_last_source(self):
        self.assertEqual(self.prototype("src1 src2 dst roi sfs", "16s C1IRSfs", "16s_C1IRSfs"),
                         "LumStatus lumiProbe_16s_C1IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, "
                         "int srcDstStep, LumiSize roi, int scaleFactor)")

    def test_in_place_with_a_constant(self):
        self.assertEqual(self.prototype("src value dst roi", "32f C3IR", "32f_C3IR"),
                         "LumStatus lumiProbe_32f_C3IR(const Lum32f value[3], Lum32f* srcDst, int srcDstStep, "
                         "LumiSize roi)")

    def test_bit_images_have_an_offset(self):
        self.assertEqual(self.prototype("src dst roi", "8u1u C1R", "8u1u_C1R"),
                         "LumStatus lumiProbe_8u1u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, "
                         "int dstBitOffset, LumiSize roi)")

    def test_bounds(self):
        self.assertEqual(self.prototype("src dst roi bounds", "32f8u C1R", "32f8u_C1R"),
                         "LumStatus lumiProbe_32f8u_C1R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, "
                         "LumiSize roi, Lum32f lower, Lum32f upper)")

    def test_two_types_and_planes(self):
        self.assertEqual(self.prototype("src dst roi", "8u32f C3P3R", "8u32f_C3P3R"),
                         "LumStatus lumiProbe_8u32f_C3P3R(const Lum8u* src, int srcStep, Lum32f* const dst[3], "
                         "int dstStep, LumiSize roi)")

    def test_mask_and_constants(self):
        self.assertEqual(self.prototype("value dst roi mask", "8u AC4MR", "8u_AC4MR"),
                         "LumStatus lumiProbe_8u_AC4MR(const Lum8u value[3], Lum8u* dst, int dstStep, "
                         "LumiSize roi, const Lum8u* mask, int maskStep)")
        self.assertIn("(Lum8u value, ", self.prototype("value dst roi mask", "8u C4CR", "8u_C4CR"))

    def test_masks_as_results(self):
        self.assertEqual(self.prototype("src dstMask roi", "32f C3R", "32f_C3R"),
                         "LumStatus lumiProbe_32f_C3R(const Lum32f* src, int srcStep, Lum8u* dstMask, "
                         "int dstMaskStep, LumiSize roi)")


class Rows(unittest.TestCase):
    def test_sharing(self):
        found = exports(HEAD + "  args src dst roi\n  8u 32s=32f {C1 C4}R bind probe\n  same 32s_C1R=16u_C2R\n")
        self.assertEqual(found["lumiProbe_32f_C4R"].sample, "lumiProbe_32s_C4R")
        self.assertEqual(found["lumiProbe_16u_C2R"].sample, "lumiProbe_32s_C1R")
        self.assertEqual(found["lumiProbe_8u_C1R"].sample, "")

    def test_checks_and_bindings(self):
        family = read(HEAD + "  args src dst roi\n  8u16s C3AC4R check width null bind probe\n")
        export = family.operations[0].exports[0]
        self.assertEqual(export.check, ("width", "null"))
        self.assertIn("return probe<Lum8u, Lum16s, C3, AC4>(src, srcStep, dst, dstStep, roi);",
                      emit.bindings(family))

    def test_images_that_share_a_step(self):
        text = HEAD + ("  param a const Lum32f* image : one\n  param b const Lum32f* image : the other\n"
                       "  param bothStep int step : of both\n  args a b bothStep dst roi\n"
                       "  16sc C1R check null size step bind probe\n")
        export = exports(text)["lumiProbe_16sc_C1R"]
        self.assertEqual([a.kind for a in export.args], ["image", "image", "step", "image", "step", "size"])
        self.assertIn("(const Lum32f* a, const Lum32f* b, int bothStep, Lum16sc* dst,", emit.family_header(read(text)))

    def test_params_and_returns(self):
        family = read(HEAD + "  param flag int = 3 : a flag\n  param out {T}* : the result\n  args flag out\n"
                      "  returns {T}*\n  32f C1 bind probe<4>\n")
        self.assertEqual(emit.prototype(family.operations[0].exports[0]),
                         "Lum32f* lumiProbe_32f_C1(int flag, Lum32f* out)")
        self.assertIn("return probe<4>(flag, out);", emit.bindings(family))

    def test_refused_values(self):
        family = read(HEAD + "  param whole LumiSize refuses 6x3 7x2 by inside : all of it\n"
                      "  param top int = 2 refuses -1 2147483647 by inside : rows above\n"
                      "  args whole top\n  8u C1R check size inside bind probe\n")
        whole, top = family.operations[0].exports[0].args
        self.assertEqual((whole.kind, [r.value for r in whole.refused], whole.refused[0].by),
                         ("size", [("6", "3"), ("7", "2")], "inside"))
        self.assertEqual((top.kind, top.base, [r.value for r in top.refused]), ("number", ("2",), [("-1",), ("2147483647",)]))
        table = test_rows.export_table([family])
        self.assertIn("{Check::Inside, lumStatusOk, {{7, 2}}},", table)
        self.assertIn('{Kind::Number, Passing::Int32, "top", 0, {{2}}, nullptr, {kRefused + 2, 2}},', table)

    def test_values_refused_by_a_status(self):
        family = read(HEAD + "  param mask LumiSize = 3 3 : the mask\n  param kind int = 1 : a kind\n"
                      "  refuses mask 0 0 -1x3 by BadMaskSize : a side is below 1\n"
                      "  refuses kind 9 by BadBorder\n  refuses kind 0 by UnsupportedMode : not offered\n"
                      "  args src mask kind\n"
                      "  8u C1R check null kind:BadBorder mask kind:UnsupportedMode bind probe\n")
        table = test_rows.export_table([family])
        self.assertIn("{Check::Status, lumStatusBadMaskSize, {{-1, 3}}},", table)
        order = table[table.index("kChecks"):table.index("kRows")]
        self.assertEqual([line.split('"')[1] for line in order.splitlines() if "Status," in line], ["kind", "mask", "kind"])
        header = emit.family_header(family)
        self.assertRegex(header, r"lumStatusBadMaskSize \(-33\) +a side is below 1")
        self.assertRegex(header, r"lumStatusBadBorder \(-225\) +kind is refused")

    def test_results_arrays_and_structures(self):
        text = HEAD + ("  param sum Lum64f* each : sums\n  param levels const {T}* of count : levels\n"
                       "  param count int = 2 : how many\n  param at LumiPoint = 1 2 : a place\n"
                       "  param part LumiRect : a part\n  args src roi sum levels count at part\n"
                       "  16u {C1 C3}R bind probe\n")
        args = {a.name: a for a in exports(text)["lumiProbe_16u_C3R"].args}
        self.assertEqual(args["sum"].decl, "Lum64f sum[3]")
        self.assertEqual((args["sum"].kind, args["levels"].length, args["at"].base), ("results", "count", ("1", "2")))
        self.assertEqual([args[n].passing for n in ("sum", "count", "at", "part")], ["pointer", "int32", "pair", "rect"])
        self.assertIn("Lum64f* sum", emit.prototype(exports(text)["lumiProbe_16u_C1R"]))

    def test_constants_of_any_name(self):
        text = HEAD + ("  param low {T} each refuses 2 by BadThresholdOrder : lower bound\n  param high {T} each : upper bound\n"
                       "  args src roi low high\n  16s C1R check null size low bind probe\n"
                       "  16s {C3 AC4}R check null size value low bind probe\n")
        one, three = (exports(text)[f"lumiProbe_16s_{layout}R"].args[-2:] for layout in ("C1", "AC4"))
        self.assertEqual([(a.decl, a.kind) for a in one], [("Lum16s low", "value"), ("Lum16s high", "value")])
        self.assertEqual([(a.decl, a.kind, a.count) for a in three],
                         [("const Lum16s low[3]", "values", 3), ("const Lum16s high[3]", "values", 3)])
        family = read(text)
        self.assertIn("(-8)  low or high is null", emit.family_header(family))
        table = test_rows.export_table([family])
        self.assertRegex(table, r'Kind::Value, Passing::Int32, "low", 0, \{\{0\}\}, nullptr, \{kRefused \+ 0, 1\}')
        self.assertRegex(table, r'Kind::Values, Passing::Pointer, "low", 3, \{\{0\}\}, nullptr, \{\}')

    def test_what_stands_once_for_each_channel(self):
        text = (HEAD + "  param levels const {T}* each : levels\n  param count int each = 2 refuses 1 by TooFewLutLevels : how many\n"
                "  args src levels count\n  8u {C1 AC4}R bind probe\n")
        self.assertIn("const Lum8u* levels, int count)", emit.prototype(exports(text)["lumiProbe_8u_C1R"]))
        of_three = exports(text)["lumiProbe_8u_AC4R"]
        self.assertIn("const Lum8u* const levels[3], const int count[3])", emit.prototype(of_three))
        self.assertEqual([a.kind for a in of_three.args[2:]], ["arrays", "pointer"])

    def test_arrays_of_results_for_each_channel(self):
        text = HEAD + "  param bins Lum32s* const* each : bins\n  args src bins\n  8u {C1 AC4}R check null each size bind probe\n"
        one, three = (exports(text)[f"lumiProbe_8u_{layout}R"].args[-1] for layout in ("C1", "AC4"))
        self.assertEqual((one.decl, one.kind), ("Lum32s* bins", "pointer"))
        self.assertEqual((three.decl, three.kind, three.count), ("Lum32s* const bins[3]", "arrays", 3))

    def test_names_of_all_homes(self):
        text = HEAD.replace("op Probe", "op Probe_L1") + ("  args src dst\n  16uc16u 8u24u C1R bind a\n  64s P2C1R bind b\n"
                                                          "  8u C1AP4R bind c\n")
        self.assertIn("lumiProbe_L1_16uc16u_C1R", exports(text))
        self.assertIn("lumiProbe_32f_L2", exports(HEAD + "  32f L2 bind a\n"))
        self.assertIn("lumiProbe_C1R", exports(HEAD + "  - C1R bind a\n"))

    def test_public_operations_by_types_and_layouts(self):
        header = dispatch.header(read(HEAD + "  args src dst roi\n  8u16s C3AC4R bind a\n  8u C1IR bind a\n"))
        self.assertIn("inline constexpr auto ProbeR<Lum8u, Lum16s, C3, AC4> = &lumiProbe_8u16s_C3AC4R;", header)
        self.assertIn("inline constexpr auto ProbeIR<Lum8u, C1> = &lumiProbe_8u_C1IR;", header)

    def test_texts_of_checks_follow_the_arguments(self):
        header = emit.family_header(read(HEAD + "  param whole LumiSize : all of it\n  args src whole value\n"
                                         "  8u C3R check null size value bind probe\n"))
        self.assertIn("an image's pointer is null", header)
        self.assertIn("a width or a height is below 1", header)
        self.assertIn("(-8)  value is null", header)

    def test_pointers_tested_apart(self):
        family = read(HEAD + "  param order const Lum32s* : channels\n  args src order\n"
                      "  8u C1R check null zerostep order bind probe\n")
        header = emit.family_header(family)
        self.assertIn("an image's pointer is null", header)
        self.assertIn("a step is 0", header)
        self.assertIn("(-8)  order is null", header)
        self.assertIn('{Check::Zerostep, nullptr, lumStatusOk},\n    {Check::Pointer, "order", lumStatusOk}',
                      test_rows.export_table([family]))

    def test_general_checks_with_another_status(self):
        family = read(HEAD + "  args src roi\n  8u C1R check null zerostep:BadSize row:StepTooSmall bind probe\n")
        header = emit.family_header(family)
        self.assertIn("lumStatusBadSize (-6)      a step is 0", header)
        self.assertIn("lumStatusStepTooSmall (-37) a step is below the bytes of a row", header)
        self.assertIn("{Check::Zerostep, nullptr, lumStatusBadSize},\n    {Check::Row, nullptr, lumStatusStepTooSmall}",
                      test_rows.export_table([family]))

    def test_no_types(self):
        self.assertIn("lumiProbe", exports(HEAD + "  returns void\n  - bind probe\n"))


class Complaints(unittest.TestCase):
    """A wrong row gives file, line and reason."""

    CASES = (
        (HEAD + "  args src\n  8u C9R bind x\n", 5, "'C9R' is no layout descriptor"),
        (HEAD + "  args nosuch\n  8u C1R bind x\n", 5, "'nosuch' is neither a role"),
        (HEAD + "  args roi\n  8u bind x\n", 5, "'roi' follows from a sample type and a descriptor"),
        (HEAD + "  args src\n  8u A0C4R bind x\n", 5, "'A0C4R' is no layout descriptor"),
        (HEAD + "  args src\n  8u C1R\n", 5, "a row ends in: bind name"),
        (HEAD + "  args src\n  8u C1R check nul bind x\n", 5, "check takes words of"),
        (HEAD + "  param a int refuses x by size : a\n", 4, "'x' are no values of int"),
        (HEAD + "  param a LumiSize refuses 1 by size : a\n", 4, "'1' are no values of LumiSize"),
        (HEAD + "  param a int refuses 1 by luck : a\n", 4, "'luck' is neither a check nor a status"),
        (HEAD + "  args src\n  8u C1R bind x\n  8u C1R bind x\n", 6, "lumiProbe_8u_C1R stands twice"),
        (HEAD + "  args src\n  8u {C1R bind x\n", 5, "unbalanced brace"),
        (HEAD + "  args src\n  same 8u_C1R=8u_C4R\n", 5, "no row for lumiProbe_8u_C1R"),
        (HEAD + "  refuses a 1 by size\n", 4, "'a' is no param by value"),
        (HEAD + "  param a int : a\n  refuses a 1 by BadSize\n  refuses a 2 by BadStep\n  args a\n"
         "  8u check a bind x\n", 8, "say a:status"),
        (HEAD + "  frobnicate\n", 4, "'frobnicate' begins no statement"),
        (HEAD, 3, "operation Probe exports nothing"),
        ('family other data "x"\n', 1, "family 'other'"),
        ("op Probe\n", 1, "an operation before the family"),
        ("# empty\n", 1, "no family statement"),
    )

    def test_each(self):
        for text, line, reason in self.CASES:
            with self.subTest(reason), self.assertRaises(reader.RegistryError) as caught:
                read(text)
            self.assertTrue(str(caught.exception).startswith(f"probe.reg:{line}: "), str(caught.exception))
            self.assertIn(reason, str(caught.exception))

    def test_the_same_name_in_two_files(self):
        with tempfile.TemporaryDirectory() as folder:
            for stem in ("one", "two"):
                text = HEAD.replace("probe", stem, 1) + "  args src\n  8u C1R bind x\n"
                path = pathlib.Path(folder) / "data" / f"{stem}.reg"
                path.parent.mkdir(exist_ok=True)
                path.write_text(text, encoding="utf-8")
            with self.assertRaisesRegex(reader.RegistryError, "two.reg:5: lumiProbe_8u_C1R stands already at one.reg:5"):
                reader.read_folder(folder)


class Emitted(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = pathlib.Path(__file__).resolve().parents[2]
        cls.families = reader.read_folder(cls.root / "registry")

    def test_headers_are_current(self):
        from lumigen import __main__ as main
        self.assertEqual(main.stale(self.root / "include", emit.headers(self.families)), [])

    def test_no_header_is_left_over(self):
        made = set(emit.headers(self.families)) | {"lumi/types.h"}
        there = {str(p.relative_to(self.root / "include")) for p in (self.root / "include").rglob("*.h")}
        self.assertEqual(there, made)

    def test_slots_are_in_the_order_of_the_names(self):
        rows = emit.structure_rows(self.families).splitlines()
        self.assertEqual(rows, sorted(rows, key=lambda row: row.split()[0]))

    def test_writing_twice_changes_nothing(self):
        from lumigen import __main__ as main
        with tempfile.TemporaryDirectory() as folder:
            out = pathlib.Path(folder)
            main.write(out, emit.build_files(self.families))
            before = {p: p.stat().st_mtime_ns for p in out.rglob("*") if p.is_file()}
            main.write(out, emit.build_files(self.families))
            self.assertEqual(before, {p: p.stat().st_mtime_ns for p in out.rglob("*") if p.is_file()})


if __name__ == "__main__":
    unittest.main()
