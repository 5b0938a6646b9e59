# SPDX-License-Identifier: MIT
"""A program that is linked with the product gets the library of the wider level where the processor has it."""
import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

PROGRAM = """
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>
#include "lumi.h"
int main(void) {
  Dl_info found;
  unsigned char from[40] = {7, 8}, to[40] = {0};
  LumiSize size = {40, 1};
  const int status = lumiCopy_8u_C1R(from, 40, to, 40, size);
  if (!dladdr((const void*)lumiGetLibVersion(), &found)) return 1;
  puts(found.dli_fname);
  return status != 0 || to[1] != 8;
}
"""


def loader_searches_level():
    loader = next(pathlib.Path("/").glob("lib64/ld-linux-x86-64.so.2"))
    text = subprocess.run([loader, "--help"], capture_output=True, text=True, check=True).stdout
    return bool(re.search(r"x86-64-v3 \(supported, searched\)", text))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("build", "cmake", "cc", "root", "core", "libdir"):
        parser.add_argument(f"--{name}", required=True)
    args = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        prefix = pathlib.Path(folder)
        subprocess.run([args.cmake, "--install", args.build, "--prefix", folder], check=True, capture_output=True)
        installed = [p for p in prefix.rglob("*") if p.is_file() and not p.is_symlink()]
        level = prefix / args.libdir / "glibc-hwcaps" / "x86-64-v3"
        if [p.parent for p in installed] != [level]:
            sys.exit(f"installed: {installed}")
        # Any library serves as the product: the loader looks at names only.
        plain = prefix / args.libdir
        shutil.copy(installed[0], plain / "liblumi.so.1")
        shutil.copy(args.core, plain / pathlib.Path(args.core).name)
        source, program = prefix / "program.c", prefix / "program"
        source.write_text(PROGRAM, encoding="ascii")
        subprocess.run([args.cc, source, "-o", program, f"-I{args.root}/include", plain / "liblumi.so.1",
                        f"-Wl,-rpath,{plain}", f"-Wl,-rpath-link,{plain}", "-ldl"], check=True)
        loaded = subprocess.run([program], capture_output=True, text=True, check=True).stdout.strip()
        wanted = (level if loader_searches_level() else plain) / "liblumi.so.1"
        if pathlib.Path(loaded).resolve() != wanted.resolve():
            sys.exit(f"the program got {loaded}, not {wanted}")
    print("1 passed")


main()
