# SPDX-License-Identifier: MIT
"""lumigen: everything that follows from the registry.

  python3 -m lumigen headers OUT    the public headers (committed under include/)
  python3 -m lumigen build OUT      bindings, stubs, export list, test rows, JSON
  python3 -m lumigen check INCLUDE  whether the committed headers are current
"""

import pathlib
import sys

from . import emit, reader

ROOT = pathlib.Path(__file__).resolve().parents[2]


def write(folder, files):
    """Writes what changed, so that a build repeats only what it must."""
    emit.assert_ascii(files)
    for name, text in files.items():
        path = folder / name
        if path.exists() and path.read_text(encoding="ascii") == text:
            continue
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="ascii")


def stale(folder, files):
    return [n for n, text in files.items()
            if not (folder / n).exists() or (folder / n).read_text(encoding="ascii") != text]


def main(argv):
    if len(argv) != 3 or argv[1] not in ("headers", "build", "check"):
        print(__doc__, file=sys.stderr)
        return 2
    try:
        families = reader.read_folder(ROOT / "registry")
    except reader.RegistryError as error:
        print(error, file=sys.stderr)
        return 1
    folder = pathlib.Path(argv[2])
    if argv[1] == "check":
        old = stale(folder, emit.headers(families))
        for name in old:
            print(f"{folder / name}: not current; run scripts/generate", file=sys.stderr)
        return 1 if old else 0
    write(folder, emit.headers(families) if argv[1] == "headers" else emit.build_files(families))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
