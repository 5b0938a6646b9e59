# SPDX-License-Identifier: MIT
"""Installs a build, moves the folder, and builds and runs programs against it."""
import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

CONSUMER = pathlib.Path(__file__).parent / "consumer"
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]


def run(*command, **options):
    """Runs a command that must succeed, and returns what it printed."""
    done = subprocess.run([str(c) for c in command], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, **options)
    if done.returncode != 0:
        sys.exit(f"{' '.join(str(c) for c in command)}\n{done.stdout}\nexit status {done.returncode}")
    return done.stdout


def check(holds, what):
    if not holds:
        sys.exit(f"failed: {what}")


def word_flag(word_size):
    return {4: "-m32", 8: "-m64"}[word_size]


def check_files(prefix, args):
    """What belongs there is there, and no text file knows where it was made."""
    lib, include = prefix / args.libdir, prefix / args.includedir
    for name in ("lumi", "lumcore"):
        major = args.version.split(".")[0]
        check((lib / f"lib{name}.so.{args.version}").is_file(), f"lib{name} is installed")
        for link in (f"lib{name}.so.{major}", f"lib{name}.so"):
            check((lib / link).is_symlink() and (lib / link).exists(), f"{link} leads to the library")
        check((lib / "pkgconfig" / f"{name}.pc").is_file(), f"{name}.pc is installed")
    for name in ("lumi.h", "lumi/types.h", "lumi/copy.h", "lumcore.h"):
        check((include / name).is_file(), f"{name} is installed")
    check(not list(include.rglob("*.hpp")), "no internal header is installed")
    for file in list((lib / "cmake").rglob("*.cmake")) + list(lib.rglob("*.pc")):
        text = file.read_text()
        for place in (str(args.build), str(prefix.parents[1])):
            check(place not in text, f"{file.name} does not name {place}")


def configure(args, prefix, build, word_size):
    flag = word_flag(word_size)
    return [args.cmake, "-S", CONSUMER, "-B", build, "-G", args.generator, f"-DCMAKE_PREFIX_PATH={prefix}",
            f"-DCMAKE_C_COMPILER={args.cc}", f"-DCMAKE_CXX_COMPILER={args.cxx}",
            f"-DCMAKE_C_FLAGS={flag}", f"-DCMAKE_CXX_FLAGS={flag}"]


def check_cmake_package(prefix, folder, args, clean):
    build = folder / "with-cmake"
    run(*configure(args, prefix, build, args.word_size), env=clean)
    run(args.cmake, "--build", build, env=clean)
    for program in ("consumer_c", "consumer_cpp"):
        run(build / program, env=clean)


def check_other_word_size(prefix, folder, args, clean):
    """The package must not offer itself to programs of another word size."""
    other = 12 - args.word_size
    empty = folder / "empty.cpp"
    empty.write_text("#include <vector>\nint main() {}\n")
    if subprocess.run([args.cxx, word_flag(other), empty, "-o", folder / "empty"],
                      capture_output=True).returncode != 0:
        print(f"not tested: refusal of {word_flag(other)}, which this compiler cannot do")
        return
    done = subprocess.run([str(c) for c in configure(args, prefix, folder / "other", other)], text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env=clean)
    check(done.returncode != 0, "another word size is refused")
    check(f"{args.version} ({8 * args.word_size}bit)" in done.stdout, "the refusal tells the word size")


def check_pkg_config(prefix, folder, args, clean):
    if not args.pkg_config:
        print("not tested: pkg-config, which is not installed")
        return
    env = dict(clean, PKG_CONFIG_LIBDIR=str(prefix / args.libdir / "pkgconfig"))

    def flags(*names):
        check(run(args.pkg_config, "--modversion", names[0], env=env).strip() == args.version, "version")
        return run(args.pkg_config, "--cflags", "--libs", *names, env=env).split()

    rpath = f"-Wl,-rpath,{prefix / args.libdir}"
    for compiler, source, standard, names in (
            (args.cc, "consumer.c", ["-std=c99", "-Wstrict-prototypes"], ["lumi"]),
            (args.cxx, "consumer.cpp", ["-std=c++17"], ["lumi", "lumcore"])):
        program = folder / f"with-pkg-config-{source}.out"
        run(compiler, word_flag(args.word_size), *standard, *WARNINGS, CONSUMER / source, *flags(*names),
            rpath, "-o", program, env=clean)
        run(program, env=clean)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("build", "cmake", "generator", "cc", "cxx", "version", "libdir", "includedir"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--word-size", type=int, required=True)
    parser.add_argument("--pkg-config")
    args = parser.parse_args()
    # What is found must come from the installed folder, not from the environment.
    clean = {k: v for k, v in os.environ.items()
             if k not in ("LD_LIBRARY_PATH", "LIBRARY_PATH", "CPATH", "CFLAGS", "CXXFLAGS", "LDFLAGS", "DESTDIR")}
    with tempfile.TemporaryDirectory(prefix="lumi-install-") as name:
        folder = pathlib.Path(name)
        first, prefix = folder / "first", folder / "moved" / "elsewhere"
        run(args.cmake, "--install", args.build, "--prefix", first, env=clean)
        prefix.parent.mkdir()
        shutil.move(first, prefix)
        check_files(prefix, args)
        check_cmake_package(prefix, folder, args, clean)
        check_pkg_config(prefix, folder, args, clean)
        check_other_word_size(prefix, folder, args, clean)


if __name__ == "__main__":
    main()
