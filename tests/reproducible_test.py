#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Two builds of the libraries, in folders of different names and with one SOURCE_DATE_EPOCH, are the same
byte by byte, and the version record tells that date.

  reproducible_test.py ROOT PRESET
"""

import hashlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

EPOCH, DATE = "1000000000", b"Sep  9 2001"
OPTIONS = ("-DLUMI_TESTS=OFF", "-DLUMI_EXAMPLES=OFF", "-DLUMI_BENCH=OFF",
           # What could differ does so at every optimisation and without debug information, which take most of the time.
           "-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-O1 -DNDEBUG", "-DLUMI_KERNEL_OPTIMISATION=-O1")


def build(root, preset, folder):
    """Builds a copy of the sources; returns the libraries by file name."""
    shutil.copytree(root, folder, ignore=shutil.ignore_patterns("build", ".git", "__pycache__"))
    environment = dict(os.environ, SOURCE_DATE_EPOCH=EPOCH, CCACHE_DISABLE="1")
    for command in (["cmake", "--preset", preset, *OPTIONS], ["cmake", "--build", "--preset", preset]):
        done = subprocess.run(command, cwd=folder, env=environment, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)
        if done.returncode != 0:
            sys.exit(done.stdout)
    return {path.name: path.read_bytes() for path in (folder / "build" / preset / "lib").glob("*.so.*.*.*")}


def main():
    root, preset = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    with tempfile.TemporaryDirectory(prefix="lumi-reproducible-") as name:
        first = build(root, preset, pathlib.Path(name) / "one")
        second = build(root, preset, pathlib.Path(name) / "another" / "place")
    if sorted(first) != sorted(second) or len(first) != 2:
        sys.exit(f"not the two libraries: {sorted(first)} and {sorted(second)}")
    for library in first:
        sums = [hashlib.sha256(made[library]).hexdigest() for made in (first, second)]
        print(library, *sums)
        if sums[0] != sums[1]:
            sys.exit(f"{library} differs")
    if not any(DATE in content for content in first.values()):
        sys.exit(f"no library tells the date {DATE.decode()}")


if __name__ == "__main__":
    main()
