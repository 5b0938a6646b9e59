# SPDX-License-Identifier: MIT
"""Each public header compiles alone, in C99 and C++17, without a warning, and defines only its guard."""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wundef", "-Wshadow", "-Wconversion", "-Werror"]
LANGUAGES = {
    "c": ["-x", "c", "-std=c99", "-Wstrict-prototypes", "-Wmissing-prototypes"],
    "c++": ["-x", "c++", "-std=c++17", "-Wold-style-cast"],
}
GUARD = re.compile(r"#define (LUMI_H|LUMI_[A-Z0-9_]+_H|LUMCORE_H) *")


def compile_text(command, text):
    done = subprocess.run([*command, "-"], input=text, text=True, capture_output=True)
    return done.returncode == 0, done.stdout, done.stderr


def present(*names):
    """Those of the compilers that are installed, each of them once."""
    paths = [shutil.which(name) for name in names]
    return list({os.path.realpath(path): path for path in paths if path}.values())


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("root", "cc", "cxx"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--word-size", type=int, required=True)
    args = parser.parse_args()

    folders = [pathlib.Path(args.root) / "include", pathlib.Path(args.root) / "lumcore" / "include"]
    headers = [file.relative_to(folder) for folder in folders for file in sorted(folder.rglob("*.h"))]
    if len(headers) < 8:
        sys.exit(f"only {len(headers)} headers found")
    compilers = {"c": present(args.cc, "gcc", "clang-14"), "c++": present(args.cxx, "g++", "clang++-14")}
    paths = [f"-I{folder}" for folder in folders] + [{4: "-m32", 8: "-m64"}[args.word_size]]

    failures = 0
    for language, flags in LANGUAGES.items():
        for compiler in compilers[language]:
            base = [compiler, *flags, *paths]
            _, known, _ = compile_text([*base, "-dM", "-E"], "#include <stdint.h>\n")
            for header in headers:
                text = f'#include "{header}"\n'
                good, _, errors = compile_text([*base, *WARNINGS, "-fsyntax-only"], text)
                _, macros, _ = compile_text([*base, "-dM", "-E"], text)
                own = set(macros.splitlines()) - set(known.splitlines())
                strange = [line for line in own if not GUARD.fullmatch(line)]
                if not good or strange or not own:
                    failures += 1
                    print(f"{header} in {language} by {compiler}: {errors}{strange or ''}")
    print(f"{len(headers)} headers, {failures} failures")
    sys.exit(failures != 0)


if __name__ == "__main__":
    main()
