# SPDX-License-Identifier: MIT
"""Runs the benchmark program held and native, and reports both against our times.

Held: the peers use nothing above AVX, as we do. Native: whatever the processor has. OpenCV and the C
library read their limits at start-up, so each way is a run of its own; ours is timed in both, and every
ratio is taken within one run. Reports can be made again from saved measurements, and two measurements
compared by our own times.
"""

import argparse
import datetime
import json
import os
import pathlib
import re
import subprocess
import sys
import textwrap
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tools"))

import marked  # noqa: E402
import report  # noqa: E402

HELD = {
    "OPENCV_CPU_DISABLE": "FP16,FMA3,AVX2,AVX512-SKX",
    "GLIBC_TUNABLES": "glibc.cpu.hwcaps=-AVX2,-AVX512F,-AVX512VL,-AVX512BW,-AVX512CD,-AVX512DQ",
}
# A peer built as well for 32 bits as for 64 would lose about this much to the fewer registers.
WORD_COST = 1.1


def run(program, options, held):
    command = [program, "--filter", options.filter]
    command += ["--quick"] if options.quick else []
    command += ["--held"] if held else []
    environment = {name: value for name, value in os.environ.items() if name not in HELD}
    environment.update(HELD if held else {})
    done = subprocess.run(command, env=environment, stdout=subprocess.PIPE, check=True)
    return json.loads(done.stdout)


def peers(row):
    """Times of the peers that did the same work, best first."""
    allowed = {name: ns for name, ns in row["ns"].items() if name != "ours" and row["differs"].get(name) != ""}
    return sorted(allowed.items(), key=lambda item: item[1])


def against(row):
    """The best peer of one run: its name, its time per pixel, its time over ours."""
    ranked = peers(row)
    if not ranked:
        return None
    name, ns = ranked[0]
    return {"peer": name, "ns": ns / (row["width"] * row["height"]), "ratio": ns / row["ns"]["ours"]}


def merge(held, native):
    """One record per row of the two runs of one word size."""
    merged = []
    for row, native_row in zip(held["rows"], native["rows"]):
        pixels = row["width"] * row["height"]
        ours = row["ns"]["ours"]
        merged.append({
            "family": row["family"], "name": row["name"], "size": f'{row["width"]}x{row["height"]}',
            "bytes": row["bytes"], "ours": ours / pixels, "gbps": row["bytes"] / ours,
            "held": against(row), "native": against(native_row),
            "share": native_row["limit"] / native_row["ns"]["ours"],
            "times": {"held": row["ns"], "native": native_row["ns"]},
            "differs": {**row["differs"], **native_row["differs"]},
        })
    return merged


def add_bar(rows32, rows64):
    """32 bits: the better of the held peer at hand and the held 64-bit peer at the cost of the word size."""
    best64 = {(row["name"], row["size"]): row["held"] for row in rows64}
    for row in rows32:
        other = best64.get((row["name"], row["size"]))
        known = [peer["ns"] * cost for peer, cost in ((row["held"], 1), (other, WORD_COST)) if peer]
        if known:
            row["bar"] = {"ns": min(known), "ratio": min(known) / row["ours"]}


def add_wide(rows, wide):
    """Our time in the wider build, for comparison only: it takes part in no ratio."""
    found = {(row["name"], f'{row["width"]}x{row["height"]}'): row for row in wide["rows"]}
    for row in rows:
        other = found.get((row["name"], row["size"]))
        if other:
            row["wide"] = other["ns"]["ours"] / (other["width"] * other["height"])
            row["differs"].update(other["differs"])


def machine():
    """The processor in a few words."""
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        info = dict(re.findall(r"^(.*?)\s*:\s*(.*)$", file.read().split("\n\n")[0], re.M))
    cache = pathlib.Path("/sys/devices/system/cpu/cpu0/cache/index3/size")
    flags = info.get("flags", "").split()
    vectors = 512 if "avx512f" in flags else 256
    words = [f'{info.get("model name", "unknown processor")} of family {info.get("cpu family", "?")}',
             f"{os.cpu_count()} cores", f"vectors of {vectors} bits"]
    if cache.exists():
        words.append(f"{int(cache.read_text(encoding='ascii').strip().rstrip('K')) // 1024} MiB of last-level cache")
    return ", ".join(words)


def measure(options):
    """Runs the programs; gives what --json saves."""
    words, libraries = {}, {}
    for word, preset in (("32", "x86-avx"), ("64", "x64-avx")):
        if options.word not in (word, "both"):
            continue
        start = time.monotonic()
        runs = [run(f"build/{preset}/bench/lumi_bench", options, held) for held in (True, False)]
        words[word] = merge(*runs)
        libraries[word] = {"held": runs[0]["libraries"], "native": runs[1]["libraries"]}
        names = " ".join(f'{library["name"]} {library["version"]}' for library in runs[0]["libraries"])
        print(f"bench: {word} bits, {len(words[word])} rows in {time.monotonic() - start:.0f} s; peers: {names}",
              file=sys.stderr)
    if len(words) == 2:
        add_bar(words["32"], words["64"])
    if options.wide:
        add_wide(words["64"], run("build/x64-v3/bench/lumi_bench", options, False))
    return {"date": datetime.date.today().isoformat(), "machine": machine(), "libraries": libraries, "rows": words}


def load(path, pattern):
    with open(path, encoding="utf-8") as file:
        measured = json.load(file)
    measured["rows"] = {word: [row for row in rows if re.search(pattern, report.title(row))]
                        for word, rows in measured["rows"].items()}
    return measured


def about(measured):
    """When, where and against what was measured, as far as the file says so."""
    peers_of = next(iter(measured["libraries"].values()))["held"]
    names = ", ".join(f'{library["name"]} {library["version"]}' for library in peers_of)
    place = f'Measured on {measured["date"]}: {measured["machine"]}. ' if "machine" in measured else ""
    return textwrap.fill(f"{place}Peers: {names}, and *loop*, the compiler's own loop at our level.", 120)


def own_times(paths, pattern):
    """Our best time of each row in any run of any file. The wider build is no product and does not count."""
    best = {}
    for path in paths:
        for word, rows in load(path, pattern)["rows"].items():
            for row in rows:
                key = word, row["family"], report.title(row)
                ns = min(times["ours"] for times in row["times"].values()) / report.pixels(row)
                best[key] = min(ns, best.get(key, ns))
    return best


def compare(options):
    """Lists the rows whose own time grew by more than the factor, and those that are gone; true if there are none."""
    before, after = own_times(options.before, options.filter), own_times(options.after, options.filter)
    common = [key for key in before if key in after]
    change = {key: after[key] / before[key] for key in common}
    slower = sorted((key for key in common if change[key] > options.factor), key=change.get, reverse=True)
    for key in slower:
        print(f'{change[key]:6.2f} times  {key[0]} bits  {key[2]}: {before[key]:.4g} -> {after[key]:.4g} ns/px')
    gone = [key for key in before if key not in after]
    for key in gone:
        print(f"        gone  {key[0]} bits  {key[2]}")
    faster = sum(ratio < 1 / options.factor for ratio in change.values())
    print(f"{len(common)} rows: {len(slower)} slower and {faster} faster by more than {options.factor:g}; "
          f"{len(gone)} gone, {len(after) - len(common)} new")
    return not slower and not gone


def report_differences(words):
    """Names peers whose output is not ours without a reason given; they take part in no ratio."""
    found = 0
    for word, rows in words.items():
        for row in rows:
            for peer, reason in row["differs"].items():
                found += reason == ""
                if reason == "":
                    print(f'bench: {peer} differs from ours ({word} bits, {report.title(row)})',
                          file=sys.stderr)
    return found


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/bench", description="Times lumi against its peers.")
    parser.add_argument("--filter", default="", metavar="REGEX", help='rows whose "operation size" matches')
    parser.add_argument("--word", choices=("32", "64", "both"), default="both")
    parser.add_argument("--quick", action="store_true", help="two sizes, half the time each")
    parser.add_argument("--wide", action="store_true", help="our times in the x64-v3 build too")
    parser.add_argument("--from", dest="saved", metavar="FILE", help="reports from a saved measurement: nothing is run")
    parser.add_argument("--json", metavar="FILE", help="everything measured")
    parser.add_argument("--markdown", action="store_true", help="the table of the README instead of all rows")
    parser.add_argument("--readme", metavar="FILE.md", help="puts that table into a document")
    parser.add_argument("--page", metavar="FILE.md", help="page of all rows")
    parser.add_argument("--plot", metavar="FILE.png", help="picture of the ratios")
    parser.add_argument("--before", nargs="+", metavar="FILE", help="compares our own times of saved measurements")
    parser.add_argument("--after", nargs="+", metavar="FILE")
    parser.add_argument("--factor", type=float, default=1.05, help="what counts as slower or faster (1.05)")
    options = parser.parse_args()
    if bool(options.before) != bool(options.after):
        parser.error("--before and --after go together")
    if options.wide and options.word == "32":
        parser.error("--wide stands beside 64 bits")
    return options


def main():
    options = arguments()
    if options.before:
        return 0 if compare(options) else 1
    measured = load(options.saved, options.filter) if options.saved else measure(options)
    words = measured["rows"]
    if options.json:
        with open(options.json, "w", encoding="utf-8") as file:
            json.dump(measured, file, indent=1)
    if not any(words.values()):
        print("bench: no such rows", file=sys.stderr)
        return 1
    if options.markdown:
        print(report.markdown(words))
    elif not options.saved:
        for word, rows in words.items():
            print(f"\n{word} bits\n{report.table(rows)}")
    if options.readme:
        readme = pathlib.Path(options.readme)
        text = marked.replaced(readme.read_text(encoding="utf-8"), "benchmarks",
                               f"{about(measured)}\n\n{report.markdown(words)}")
        readme.write_text(text, encoding="utf-8")
    if options.page:
        pathlib.Path(options.page).write_text(report.page(words, about(measured)), encoding="utf-8")
    if options.plot:
        report.plot(words, options.plot)
    return 1 if report_differences(words) else 0


if __name__ == "__main__":
    sys.exit(main())
