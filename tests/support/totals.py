# SPDX-License-Identifier: MIT
"""Sums up test runs: totals.py <build folder>...; the last line is "N passed, M failed".

Each folder holds ctest.xml, as ctest wrote it. An entry that ran GoogleTest counts as the tests that its
results file in tests/results reports, every other entry as one test.
"""

import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def count_cases(cases):
    failed = sum(1 for c in cases if c.find("failure") is not None or c.find("error") is not None)
    skipped = sum(1 for c in cases if c.find("failure") is None
                  and (c.find("skipped") is not None or c.get("result") in ("skipped", "suppressed")
                       or c.get("status") in ("notrun", "disabled")))
    return len(cases) - failed - skipped, failed


def count_entry(entry, build):
    """A runner that crashed or was stopped has no results, or none that tell of it: one more failure."""
    entry_passed, entry_failed = count_cases([entry])
    results = build / "tests" / "results" / f"{entry.get('name')}.xml"
    if not results.exists():
        return entry_passed, entry_failed
    passed, failed = count_cases(list(ElementTree.parse(results).iter("testcase")))
    return passed, max(failed, entry_failed)


def main(folders):
    passed = failed = 0
    for folder in map(pathlib.Path, folders):
        report = folder / "ctest.xml"
        entries = list(ElementTree.parse(report).iter("testcase")) if report.exists() else []
        if not entries:
            print(f"{folder.name}: no test was run")
            failed += 1
        for entry in entries:
            entry_passed, entry_failed = count_entry(entry, folder)
            passed += entry_passed
            failed += entry_failed
    print(f"{passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
