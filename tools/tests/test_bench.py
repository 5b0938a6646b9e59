# SPDX-License-Identifier: MIT
"""What scripts/bench makes of measured rows."""

import contextlib
import io
import json
import pathlib
import sys
import tempfile
import types
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "bench"), str(ROOT / "tools")]

import compare  # noqa: E402
import marked  # noqa: E402
import report  # noqa: E402


def row(name, size="1920x1080", ours=1.0, family="copy", held=2.0, native=0.5, **more):
    count = report.pixels({"size": size})
    times = {way: {"ours": ours * count, "libc": ours * count * factor}
             for way, factor in (("held", held), ("native", native))}
    best = {way: {"peer": "libc", "ns": ours * factor, "ratio": factor}
            for way, factor in (("held", held), ("native", native))}
    return {"family": family, "name": name, "size": size, "bytes": 2 * count, "ours": ours, "gbps": 2 / ours,
            "share": 0.5, "times": times, "differs": {}, **best, **more}


class Selection(unittest.TestCase):
    def test_one_size_next_to_full_hd_of_each_operation(self):
        rows = [row("copy 8u C1", "16x16"), row("copy 8u C1", "1280x720"), row("copy 8u C1", "7680x4320"),
                row("copy 8u C3"), row("fill 8u C1", family="set"), row("fill masked 8u C1", family="set")]
        self.assertEqual([report.title(r) for r in report.selected(rows)], ["copy 8u C1 1280x720", "fill 8u C1 1920x1080"])

    def test_families_come_before_further_operations(self):
        rows = [row(f"{kind} 8u C1", family="copy") for kind in "abcdefghijklmnop"] + [row("z 8u C1", family="set")]
        chosen = [r["name"][0] for r in report.selected(rows)]
        self.assertEqual(chosen, list("abcdefghijk") + ["z"])

    def test_many_families_are_taken_at_even_distances(self):
        rows = [row(f"{letter}{kind} 8u C1", family=letter) for letter in "abcdefghijklmnopqrstuvwx" for kind in "12"]
        self.assertEqual([r["name"][:2] for r in report.selected(rows)], [f"{letter}1" for letter in "bdfhjlnprtvx"])


class Reports(unittest.TestCase):
    def test_word_sizes_stand_beside_each_other(self):
        words = {"32": [row("copy 8u C1", ours=3.0, bar={"ns": 1, "ratio": 0.25}), row("fill 8u C1", family="set")],
                 "64": [row("copy 8u C1", ours=4.0, wide=5.0)]}
        lines = report.page(words, "About.").splitlines()
        self.assertIn("## data", lines)
        self.assertEqual([line for line in lines if line.startswith("### ")], ["### copy", "### set"])
        self.assertIn("| copy 8u C1 | 1920x1080 | 3 | 0.667 | 2.00 libc | 0.25 | 0.50 libc | 50% "
                      "| 4 | 5 | 0.5 | 2.00 libc | 0.50 libc | 50% |", lines)
        self.assertIn("| fill 8u C1 | 1920x1080 | 1 | 2 | 2.00 libc | - | 0.50 libc | 50% | - | - | - | - | - | - |", lines)
        self.assertIn("| data | 32 | 2 | 2.00 | 2 | 0.50 | 0 |", lines)
        self.assertIn("| copy 8u C1 | 3 | 2.00 libc | 0.50 libc | 4 | 5 | 2.00 libc | 0.50 libc |", report.markdown(words))
        widths = {line.count("|") for line in report.markdown(words).splitlines()}
        self.assertEqual(len(widths), 1)

    def test_the_wider_build_changes_no_ratio(self):
        rows = [row("copy 8u C1")]
        compare.add_wide(rows, {"rows": [{"name": "copy 8u C1", "width": 1920, "height": 1080,
                                          "ns": {"ours": 0.5 * report.FULL_HD, "libc": 1}, "differs": {}}]})
        self.assertEqual(rows, [row("copy 8u C1", wide=0.5)])

    def test_every_family_has_a_home(self):
        self.assertEqual(report.homes()["copy"], "data")
        self.assertEqual({home for home in report.homes().values() if not (ROOT / "registry" / home).is_dir()}, set())

    def test_marked_part(self):
        text = "a\n<!-- x -->\nold\n<!-- /x -->\nb\n"
        new = marked.replaced(text, "x", "new")
        self.assertEqual(new, "a\n<!-- x -->\n\nnew\n\n<!-- /x -->\nb\n")
        self.assertEqual(marked.replaced(new, "x", "new"), new)
        with self.assertRaises(ValueError):
            marked.replaced(text, "y", "new")


class Comparison(unittest.TestCase):
    def compare(self, before, after, factor=1.1):
        """Each side is a list of measurements, each a list of rows."""
        with tempfile.TemporaryDirectory() as folder:
            paths = []
            for index, rows in enumerate(before + after):
                paths.append(pathlib.Path(folder) / f"{index}.json")
                paths[-1].write_text(json.dumps({"rows": {"64": rows}}), encoding="utf-8")
            options = types.SimpleNamespace(before=paths[:len(before)], after=paths[len(before):], filter="",
                                            factor=factor)
            with contextlib.redirect_stdout(io.StringIO()) as out:
                good = compare.compare(options)
        return good, out.getvalue()

    def test_slower_rows_are_named(self):
        good, text = self.compare([[row("a"), row("b"), row("c")]], [[row("a", ours=1.2), row("b", ours=1.05),
                                                                      row("c", ours=0.5)]])
        self.assertFalse(good)
        self.assertIn("1.20 times  64 bits  a 1920x1080: 1 -> 1.2 ns/px", text)
        self.assertNotIn(" b 1920", text)
        self.assertIn("3 rows: 1 slower and 1 faster by more than 1.1; 0 gone, 0 new", text)

    def test_the_best_of_all_runs_counts(self):
        good, _ = self.compare([[row("a", ours=2)], [row("a", ours=1)]], [[row("a", ours=3)], [row("a", ours=1.05)]])
        self.assertTrue(good)
        good, _ = self.compare([[row("a", ours=2)], [row("a", ours=1)]], [[row("a", ours=1.9)]])
        self.assertFalse(good)

    def test_a_row_that_is_gone_is_a_loss(self):
        good, text = self.compare([[row("a"), row("b")]], [[row("a"), row("c")]])
        self.assertFalse(good)
        self.assertIn("gone  64 bits  b 1920x1080", text)
        self.assertIn("1 gone, 1 new", text)


if __name__ == "__main__":
    unittest.main()
