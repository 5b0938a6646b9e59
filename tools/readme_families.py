#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the README's table of families from the registry.

  tools/readme_families.py            rewrites what stands between <!-- families --> and <!-- /families -->
  tools/readme_families.py --check    fails if that is not current
"""

import pathlib
import sys

import marked
from lumigen import reader

ROOT = pathlib.Path(__file__).resolve().parents[1]


def count(family):
    return sum(len(op.exports) for op in family.operations)


def table(families, planned):
    done = sum(map(count, families))
    lines = [f"{done:,} of {len(planned):,} planned functions are there, in {len(families)} families; "
             f"{len(planned) - done:,} are to come.", "",
             "| Home | Families, with the number of their functions | Functions |", "|---|---|---|"]
    for home in reader.HOMES:
        members = [family for family in families if family.home == home]
        names = ", ".join(f"[{f.stem}](include/lumi/{f.stem}.h) {count(f):,}" for f in members)
        lines.append(f"| {home} | {names or 'to come'} | {sum(map(count, members)):,} |")
    lines += [f"| all, done | {len(families)} | {done:,} |", f"| to come | | {len(planned) - done:,} |",
              f"| planned | | {len(planned):,} |"]
    return "\n".join(lines)


def main(argv):
    if argv not in ([], ["--check"]):
        print(__doc__, file=sys.stderr)
        return 2
    try:
        families = reader.read_folder(ROOT / "registry")  # refuses names that are not planned
    except reader.RegistryError as error:
        print(error, file=sys.stderr)
        return 1
    planned = (ROOT / "registry" / "planned_names.txt").read_text(encoding="ascii").split()
    readme = ROOT / "README.md"
    old = readme.read_text(encoding="utf-8")
    new = marked.replaced(old, "families", table(families, planned))
    if not argv:
        readme.write_text(new, encoding="utf-8")
    elif new != old:
        print("README.md: the table of families is not current; run tools/readme_families.py", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
