#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What the built library is: its symbols, entry table, sharing, hardening and instructions.

  structure_test.py LIBRARY STRUCTURE_TXT
"""

import re
import struct
import subprocess
import sys
import unittest

LIBRARY, STRUCTURE, LEVEL = sys.argv[1:4]
VERSION = "LUMI_1"
ALLOWED_LIBRARIES = {"liblumcore.so.1", "libc.so.6", "libm.so.6", "libstdc++.so.6", "libgcc_s.so.1"}

# What AVX has on 32-byte registers: float arithmetic, moves, and permutations inside or across halves.
YMM_AT_LEVEL = re.compile(
    r"v(mov(a|u|nt)p[sd]|movdq[au]|movntdq|mov(s[hl]dup|ddup|mskp[sd])"
    r"|(add|sub|mul|div|min|max|and|andn|or|xor|sqrt|hadd|hsub|addsub|unpckl|unpckh|shuf|round|blend|blendv"
    r"|permil|test|maskmov)p[sd]|cmp\w*p[sd]|dpps|rcpps|rsqrtps|cvt\w+|ptest|perm2f128|insertf128|extractf128"
    r"|broadcast(f128|ss|sd)|zeroall|zeroupper)$")
ABOVE_LEVEL = re.compile(
    r"(vf(n?m(add|sub)|maddsub|msubadd)\w*|vp?gather\w*|vpbroadcast\w*|vbroadcasti\w*|v(insert|extract|perm2)i128"
    r"|vperm(d|q|ps|pd)|vps[lr]([la])v[dq]|vpmaskmov\w*|vpblendd|andn|bextr|bls(i|r|msk)|bzhi|pdep|pext|rorx|sarx|shlx"
    r"|shrx|mulx|lzcnt|tzcnt|adcx|adox|sha\w+|vcvtp[sh]2p[sh])$")
# Of these the wider level has the integers and moves of 32 bytes, and still no fused product.
ABOVE_WIDER_LEVEL = re.compile(r"(vf(n?m(add|sub)|maddsub|msubadd)\w*|vp?gather\w*|bextr|bzhi|pdep|pext|rorx|sarx|shlx|shrx"
                               r"|mulx|lzcnt|tzcnt|adcx|adox|sha\w+|vcvtp[sh]2p[sh])$")
# Address checking tools do not see through these.
BANNED = re.compile(r"v?(lddqu|maskmovdqu)$")


# What faults where its memory operand is not aligned; so does older arithmetic on vectors. All else takes any address.
NEEDS_ALIGNMENT = re.compile(r"v?mov(ap[sd]|dqa|nt(p[sd]|dqa?))$")
OLDER_TAKES_ANY = re.compile(r"v|mov(u|[lhsdq])|lddqu|p?(insr|extr)|cvt|\w+s[sd]$")
ON_THE_STACK = re.compile(r"-?(0x[0-9a-f]+)?\(%e[sb]p\b")
REALIGNMENTS = {"$0xfffffff0,%esp": 16, "$0xffffffe0,%esp": 32, "$0xffffffc0,%esp": 64,
                "$-0x10,%esp": 16, "$-0x20,%esp": 32, "$-0x40,%esp": 64}


def instructions_of_functions(code):
    """Function, instruction, operands and line; parts that were put elsewhere belong to their function."""
    function = ""
    for line in code.splitlines():
        symbol = re.match(r"[0-9a-f]+ <(.+)>:", line)
        instruction = re.match(r"\s+[0-9a-f]+:\s+(\S+)\s*(.*?)\s*(?:[#<].*)?$", line)
        if symbol and not symbol.group(1).startswith(".L"):
            function = symbol.group(1)
        elif instruction:
            yield function, *instruction.groups(), line.strip()


def unaligned_stack_accesses(code):
    """Lines of a 32-bit disassembly that trust the caller's stack to be aligned: it may be so on 4 bytes only."""
    faults, alignments = [], {}
    for is_outlined in (False, True):  # an outlined part is entered from its function, wherever it lies
        for function, name, operands, line in instructions_of_functions(code):
            if function.endswith(".cold") != is_outlined:
                continue
            function = function.removesuffix(".cold")
            if name in ("and", "andl") and operands in REALIGNMENTS:
                alignments[function] = REALIGNMENTS[operands]
            vector = re.search(r"%([xy])mm", operands)
            if not vector or not ON_THE_STACK.search(operands):
                continue
            if NEEDS_ALIGNMENT.match(name) or not OLDER_TAKES_ANY.match(name):
                if alignments.get(function, 4) < (32 if vector.group(1) == "y" else 16):
                    faults.append(line)
    return faults


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Library:
    """The facts of the built file, read once."""

    def __init__(self):
        with open(LIBRARY, "rb") as file:
            self.bytes = file.read()
        self.word = 8 if self.bytes[4] == 2 else 4
        with open(STRUCTURE, encoding="ascii") as file:
            self.rows = [line.split() for line in file]
        self.symbols = {}
        for line in run("nm", LIBRARY).splitlines():
            parts = line.split()
            if len(parts) == 3:
                self.symbols[parts[2]] = int(parts[0], 16)
        self.sections = re.findall(
            r"\]\s+(\S+)\s+\S+\s+([0-9a-f]+)\s+([0-9a-f]+)\s+([0-9a-f]+)\s+\S+\s+(\w*)\s+\d+\s+\d+\s+\d+",
            run("readelf", "-SW", LIBRARY))
        self.code = run("objdump", "-d", "--no-show-raw-insn", LIBRARY)

    def section_of(self, address):
        for name, start, offset, size, flags in self.sections:
            start = int(start, 16)
            if start and start <= address < start + int(size, 16):
                return name, flags, int(offset, 16) + address - start
        raise AssertionError(f"no section holds {address:#x}")

    def table(self):
        """The addresses that the slots of the entry table hold after load."""
        start, count = self.symbols["lumi_entry_table"], len(self.rows)
        if self.word == 4:  # the relocation adds the load address to what stands there
            offset = self.section_of(start)[2]
            return list(struct.unpack_from(f"<{count}I", self.bytes, offset))
        slots = {}
        for line in run("readelf", "-rW", LIBRARY).splitlines():
            match = re.match(r"([0-9a-f]+)\s+\S+\s+R_X86_64_RELATIVE\s+([0-9a-f]+)", line)
            if match:
                slots[int(match.group(1), 16)] = int(match.group(2), 16)
        return [slots.get(start + i * 8) for i in range(count)]

    def instructions(self):
        for line in self.code.splitlines():
            match = re.match(r"\s+[0-9a-f]+:\s+(?:(?:repz|repnz|rep|lock|data16|cs|notrack)\s+)*(\S+)\s*(.*)", line)
            if match:
                yield match.group(1), match.group(2), line

    def stub(self, name):
        match = re.search(rf"^[0-9a-f]+ <{name}>:\n((?:\s+[0-9a-f]+:.*\n)+)", self.code, re.M)
        return [re.match(r"\s+([0-9a-f]+):\s+(.*\S)", line).groups() for line in match.group(1).splitlines()]


class StackScan(unittest.TestCase):
    """The scan finds what it should, and nothing else."""

    def faults(self, *instructions, name="f"):
        return len(unaligned_stack_accesses("\n".join(
            [f"00001000 <{name}>:"] + [f"    {0x1000 + i:x}:\t{line}" for i, line in enumerate(instructions)])))

    def test_finds_aligned_accesses(self):
        for access in ("vmovaps %xmm0,0x24(%esp)", "vmovaps %ymm0,(%esp)", "vmovdqa -0x28(%ebp),%xmm1",
                       "vmovapd %xmm2,0x10(%esp,%eax,8)", "vmovntdq %ymm3,(%esp)", "vmovntps %xmm3,0x8(%ebp)",
                       "movaps %xmm0,0x4(%esp)", "paddd 0x10(%esp),%xmm1", "vmovntdqa 0x40(%esp),%xmm0"):
            self.assertEqual(self.faults("sub    $0x3c,%esp", access, "ret"), 1, access)

    def test_takes_what_may_lie_anywhere(self):
        for access in ("vmovups %ymm0,0x24(%esp)", "vmovdqu 0x24(%esp),%xmm0", "vmovaps %xmm0,%xmm1",
                       "vmovdqa 0x150(%ebx),%xmm1", "vmovaps %xmm0,(%eax)", "vpaddd 0x24(%esp),%xmm0,%xmm0",
                       "vmovss 0x8(%esp),%xmm0", "movq 0x8(%esp),%xmm0", "movss 0x8(%esp),%xmm1",
                       "mov    0x24(%esp),%eax", "and    $0xfffffff0,%eax"):
            self.assertEqual(self.faults(access), 0, access)

    def test_takes_a_realigned_stack(self):
        for mask, register in (("0xfffffff0", "xmm0"), ("0xffffffe0", "ymm0"), ("0xffffffc0", "ymm0"),
                               ("-0x20", "ymm0")):
            self.assertEqual(self.faults("lea    0x4(%esp),%ecx", f"and    ${mask},%esp", "push   %ebp",
                                         f"vmovaps %{register},0x20(%esp)"), 0, mask)
        self.assertEqual(self.faults("and    $0xfffffff0,%esp", "vmovaps %ymm0,0x20(%esp)"), 1)

    def test_wants_the_realignment_first_and_in_the_function(self):
        self.assertEqual(self.faults("vmovaps %ymm0,(%esp)", "and    $0xffffffe0,%esp"), 1)
        self.assertEqual(self.faults("and    $0xfffffffc,%esp", "vmovaps %ymm0,(%esp)"), 1)
        code = ("00001000 <f>:\n    1000:\tand    $0xffffffe0,%esp\n    1003:\tret\n\n"
                "00001010 <g>:\n    1010:\tvmovaps %ymm0,(%esp)\n    1015:\tret\n")
        self.assertEqual(len(unaligned_stack_accesses(code)), 1)

    def test_takes_the_outlined_part_of_a_function_as_the_function(self):
        realigned = "00001000 <f>:\n    1000:\tand    $0xffffffe0,%esp\n    1003:\tret\n"
        for label, count in (("f.cold", 0), (".L5", 0), ("g.cold", 1)):
            part = f"00001010 <{label}>:\n    1010:\tvmovaps %ymm0,(%esp)\n"
            self.assertEqual(len(unaligned_stack_accesses(realigned + part)), count, label)
        part = "00000f00 <f.cold>:\n    f00:\tvmovaps %ymm0,(%esp)\n"
        self.assertEqual(len(unaligned_stack_accesses(part + realigned)), 0)


class Structure(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.lib = Library()

    def test_exports_are_the_registry(self):
        exported = set()
        for line in run("nm", "-D", "--defined-only", "--with-symbol-versions", LIBRARY).splitlines():
            name = line.split()[2]
            if name != f"{VERSION}@@{VERSION}" and name != VERSION:
                exported.add(name)
        self.assertEqual(exported, {f"{name}@@{VERSION}" for name, _ in self.lib.rows})

    def test_rows_are_in_the_order_of_the_names(self):
        names = [name for name, _ in self.lib.rows]
        self.assertEqual(names, sorted(names))

    def test_table_holds_each_implementation_in_order(self):
        want = [self.lib.symbols[implementation] for _, implementation in self.lib.rows]
        self.assertEqual(self.lib.table(), want)

    def test_members_that_share_have_one_address(self):
        table = dict(zip((name for name, _ in self.lib.rows), self.lib.table()))
        shared = [(name, i.removeprefix("impl_")) for name, i in self.lib.rows if i != f"impl_{name}"]
        self.assertTrue(shared)
        for name, owner in shared:
            self.assertEqual(table[name], table[owner], name)

    def test_table_is_writable_data(self):
        name, flags, _ = self.lib.section_of(self.lib.symbols["lumi_entry_table"])
        self.assertEqual(name, ".data")
        self.assertIn("W", flags)

    def test_each_stub_jumps_through_its_own_slot(self):
        start = self.lib.symbols["lumi_entry_table"]
        for index, (name, _) in enumerate(self.lib.rows):
            self.assertEqual(self.slot_of(self.lib.stub(name)), start + index * self.lib.word, name)

    def slot_of(self, lines):
        if self.lib.word == 8:
            (_, jump), = [entry for entry in lines if "nop" not in entry[1] and "xchg" not in entry[1]][:1]
            match = re.match(r"jmp\s+\*0x[0-9a-f]+\(%rip\)\s+# ([0-9a-f]+)", jump)
            return int(match.group(1), 16)
        (_, call), (after, add), (_, jump) = lines[:3]
        self.assertTrue(call.startswith("call"), call)
        base = int(re.match(r"add\s+\$0x([0-9a-f]+),%eax", add).group(1), 16)
        offset = re.match(r"jmp\s+\*(-?0x[0-9a-f]+)?\(%eax\)", jump).group(1) or "0"
        return (int(after, 16) + base + int(offset, 16)) & 0xFFFFFFFF

    def test_hardening(self):
        headers = run("readelf", "-lWd", LIBRARY)
        self.assertIn("GNU_RELRO", headers)
        self.assertRegex(headers, r"GNU_STACK\s+\S+\s+\S+\s+\S+\s+\S+\s+\S+\s+RW\s")
        self.assertNotIn("TEXTREL", headers)
        self.assertIn("NOW", headers)
        self.assertIn("Library soname: [liblumi.so.1]", headers)

    def test_needs_nothing_but_the_core_and_the_standard_library(self):
        needed = set(re.findall(r"NEEDED.*\[(.+)\]", run("readelf", "-dW", LIBRARY)))
        self.assertIn("liblumcore.so.1", needed)
        self.assertLessEqual(needed, ALLOWED_LIBRARIES)

    def test_no_instruction_above_the_level(self):
        seen, faults = 0, []
        for name, operands, line in self.lib.instructions():
            seen += 1
            wide = "%ymm" in operands
            above = ("%zmm" in operands or re.search(r"%[xy]mm(1[6-9]|2\d|3[01])|%k[0-7]\b", operands)
                     or BANNED.match(name))
            if LEVEL == "v3":
                above = above or ABOVE_WIDER_LEVEL.match(name)
            else:
                above = (above or ABOVE_LEVEL.match(name) or (wide and not YMM_AT_LEVEL.match(name))
                         or (name.startswith("vbroadcasts") and re.match(r"%xmm", operands)))
            if above:
                faults.append(line.strip())
        self.assertGreater(seen, 1000)
        self.assertEqual(faults[:20], [])

    def test_32_bit_code_trusts_no_alignment_of_the_stack(self):
        if self.lib.word == 8:
            self.skipTest("64-bit callers align the stack")
        self.assertEqual(unaligned_stack_accesses(self.lib.code)[:20], [])


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], "-v"])
