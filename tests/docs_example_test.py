# SPDX-License-Identifier: MIT
"""The example of docs/adding-a-family.md is code that compiles: its pieces in the places that the text names.

    docs_example_test.py ROOT GENERATED COMPILER FLAG...
"""
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT, GENERATED, COMPILER, FLAGS = pathlib.Path(sys.argv[1]), sys.argv[2], sys.argv[3], sys.argv[4:]

LIBRARY = """
#include "lumi/types.h"
#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/pointwise.hpp"
#include "kernels/simd/convert.hpp"

namespace lumi {{
{kernel_header}
}}
namespace lumi::simd {{
{operation}
}}
namespace lumi {{
namespace {{
using namespace simd;
{kernel}
}}
namespace lumi {{
namespace {{
using namespace check;
{family}
LumStatus (*const bound)(const Lum16s*, int, Lum16s*, int, LumiSize) = absolute<Lum16s, C4>;
LumStatus callOf(const Lum16s* src, Lum16s* dst) {{ return bound(src, 8, dst, 8, {{1, 1}}); }}
int main() {{
  const Lum16s src[] = {{-32768, 5, -5, 0}};
  Lum16s dst[4];
  const bool right = callOf(src, dst) == lumStatusOk && dst[0] == 32767 && dst[1] == 5 && dst[2] == 5;
  return right && dst[3] == 0 ? 0 : 1;
}}
"""

TESTS = """
#include "support/member.hpp"

namespace model {{
{model}
}}
namespace test {{
namespace {{
{test}
}}
bool isAdded() {{ return added; }}
}}
"""

BENCH = """
#include "lumi/unary.h"
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"

namespace bench {{
namespace {{
{bench}
}}
}}
"""


class Example(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        text = (ROOT / "docs/adding-a-family.md").read_text()
        blocks = re.findall(r"^```cpp\n(.*?)^```", text, re.M | re.S)
        names = ("kernel_header", "operation", "kernel", "family", "model", "test", "bench")
        cls.pieces = dict(zip(names, blocks, strict=True))
        # The generated entries call what the library's own build checks.
        cls.pieces["family"] = cls.pieces["family"].replace('#include "bind/abs.inc"\n', "")

    def build(self, text, *more):
        with tempfile.TemporaryDirectory() as folder:
            source, program = pathlib.Path(folder, "example.cpp"), pathlib.Path(folder, "example")
            source.write_text(text.format(**self.pieces))
            command = [COMPILER, "-std=c++17", "-Wall", "-Wextra", "-Werror", "-Wno-unused-const-variable",
                       *FLAGS, f"-I{ROOT}", f"-I{ROOT}/include", f"-I{ROOT}/tests", f"-I{GENERATED}"]
            sources = [ROOT / name for name in more]
            target = ["-o", program] if more else ["-fsyntax-only"]
            done = subprocess.run([*command, source, *sources, *target], capture_output=True, text=True)
            self.assertEqual(done.returncode, 0, done.stderr)
            if more:
                self.assertEqual(subprocess.run([program]).returncode, 0, "a result is wrong")

    def test_kernel_and_family(self):
        self.build(LIBRARY, "kernels/pieces.cpp")

    def test_model_and_test(self):
        self.build(TESTS)

    def test_benchmark(self):
        self.build(BENCH)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
