#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The libraries that were built, and those that the same sources make in a folder of another name, are the same byte
by byte; and the version record tells the date of SOURCE_DATE_EPOCH.

  reproducible_test.py ROOT PRESET LIBRARIES      where LIBRARIES is the folder of those that were built
"""

import datetime
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

EPOCH, DATE = 1000000000, "Sep  9 2001"
OPTIONS = ("-DLUMI_TESTS=OFF", "-DLUMI_EXAMPLES=OFF", "-DLUMI_BENCH=OFF")
MONTHS = "Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec"


def run(command, folder, epoch):
    environment = dict(os.environ, SOURCE_DATE_EPOCH=str(epoch), CCACHE_DISABLE="1")
    done = subprocess.run(command, cwd=folder, env=environment, text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT)
    if done.returncode != 0:
        sys.exit(done.stdout)


def libraries(folder):
    return {path.name: path.read_bytes() for path in folder.glob("*.so.*.*.*")}


def date_of(built):
    """The date in the version record."""
    found = [re.search(rb"(?:%s) [ 0-9][0-9] [0-9]{4}" % MONTHS.encode(), content) for content in built.values()]
    dates = [match[0].decode() for match in found if match]
    if len(dates) != 1:
        sys.exit(f"the libraries tell the dates {dates}")
    return dates[0]


def noon(date):
    return int(datetime.datetime.strptime(date + " 12 +0000", "%b %d %Y %H %z").timestamp())


def main():
    root, preset, built = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], libraries(pathlib.Path(sys.argv[3]))
    with tempfile.TemporaryDirectory(prefix="lumi-reproducible-") as name:
        copy = pathlib.Path(name) / "another" / "place"
        shutil.copytree(root, copy, ignore=shutil.ignore_patterns("build", ".git", "__pycache__"))
        configure = ["cmake", "--preset", preset, *OPTIONS]

        run(configure, copy, EPOCH)
        version = "CMakeFiles/lumi.dir/frame/version.cpp.o"
        run(["cmake", "--build", "--preset", preset, "--target", version], copy, EPOCH)
        if DATE.encode() not in (copy / "build" / preset / version).read_bytes():
            sys.exit(f"the version record does not tell {DATE}")

        epoch = noon(date_of(built))
        run(configure, copy, epoch)
        run(["cmake", "--build", "--preset", preset], copy, epoch)
        again = libraries(copy / "build" / preset / "lib")
    if sorted(built) != sorted(again) or len(built) != 2:
        sys.exit(f"not the two libraries: {sorted(built)} and {sorted(again)}")
    for library in built:
        sums = [hashlib.sha256(made[library]).hexdigest() for made in (built, again)]
        print(library, *sums)
        if sums[0] != sums[1]:
            sys.exit(f"{library} differs")


if __name__ == "__main__":
    main()
