# SPDX-License-Identifier: MIT
"""The README's table of families."""

import pathlib
import sys
import tempfile
import unittest
from unittest import mock

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

import readme_families  # noqa: E402

FAMILY = """family abs arithmetic "Absolute value"
op Abs
  brief Stores the absolute value.
  args src dst roi
  16s  C1R C3R  check null size  bind absolute
"""
PLANNED = "lumiAbs_16s_C1R\nlumiAbs_16s_C3R\nlumiAbs_32f_C1R\n"
README = "# x\n<!-- families -->\n\n<!-- /families -->\nend\n"


class Families(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.root = pathlib.Path(place.name)
        (self.root / "registry" / "arithmetic").mkdir(parents=True)
        self.write("registry/arithmetic/abs.reg", FAMILY)
        self.write("registry/planned_names.txt", PLANNED)
        self.write("README.md", README)
        patch = mock.patch.object(readme_families, "ROOT", self.root)
        patch.start()
        self.addCleanup(patch.stop)
        errors = mock.patch("sys.stderr")
        errors.start()
        self.addCleanup(errors.stop)

    def write(self, name, text):
        (self.root / name).write_text(text, encoding="ascii")

    def test_counts(self):
        self.assertEqual(readme_families.main([]), 0)
        text = (self.root / "README.md").read_text(encoding="ascii")
        self.assertIn("2 of 3 planned functions are there, in 1 families; 1 are to come.", text)
        self.assertIn("| arithmetic | [abs](include/lumi/abs.h) 2 | 2 |", text)
        self.assertIn("| data | to come | 0 |", text)
        self.assertIn("| to come | | 1 |", text)
        self.assertTrue(text.endswith("<!-- /families -->\nend\n"))

    def test_check(self):
        self.assertEqual(readme_families.main(["--check"]), 1)
        self.assertEqual((self.root / "README.md").read_text(encoding="ascii"), README)
        readme_families.main([])
        self.assertEqual(readme_families.main(["--check"]), 0)
        self.write("registry/planned_names.txt", PLANNED + "lumiAbs_32f_C3R\n")
        self.assertEqual(readme_families.main(["--check"]), 1)

    def test_the_committed_table_is_current(self):
        with mock.patch.object(readme_families, "ROOT", ROOT):
            self.assertEqual(readme_families.main(["--check"]), 0)

    def test_names_outside_the_plan_are_refused(self):
        self.write("registry/planned_names.txt", "lumiAbs_16s_C1R\n")
        self.assertEqual(readme_families.main([]), 1)
        self.assertEqual((self.root / "README.md").read_text(encoding="ascii"), README)


if __name__ == "__main__":
    unittest.main()
