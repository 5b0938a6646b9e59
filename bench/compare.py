# SPDX-License-Identifier: MIT
"""Runs the benchmark program held and native, and reports both against our times.

Held: the peers use nothing above AVX, as we do. Native: whatever the processor has. OpenCV and the C
library read their limits at start-up, so each way is a run of its own; ours is timed in both, and every
ratio is taken within one run.
"""

import argparse
import json
import os
import subprocess
import sys
import time

HELD = {
    "OPENCV_CPU_DISABLE": "FP16,FMA3,AVX2,AVX512-SKX",
    "GLIBC_TUNABLES": "glibc.cpu.hwcaps=-AVX2,-AVX512F,-AVX512VL,-AVX512BW,-AVX512CD,-AVX512DQ",
}
# Rows of the compact table, at full HD unless a size is given.
SELECTED = ("fill 8u C1", "fill 8u C3", "fill masked 8u C1", "copy 8u C1", "copy 32f C1", "copy masked 8u C3",
            "split 8u C3P3", "merge 8u P3C3", "channel 8u C3C1", "add 8u C1", "add 8u C1 256x32", "add 8u C1 scale 3",
            "addC 8u C1", "add 32f C1", "convert 8u32f C1", "convert 32f8u C1", "scale 32f8u C1", "gray to bits 8u",
            "border value 8u C1", "border edges 8u C3 256x32", "filter 8u C1 3x3", "filter 8u C1 5x5",
            "filter 8u C3 5x5", "filter 32f C1 5x5", "resize nearest 8u C1 1280x720",
            "resize nearest 8u C1 3840x2160", "resize linear 8u C1 1280x720", "resize linear 8u C1 3840x2160",
            "resize linear 8u C3 1280x720", "resize linear 8u C4 1280x720", "resize linear 32f C1 1280x720")
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


def cells(row, has_bar):
    def triple(result):
        return [result["peer"], f'{result["ns"]:.4g}', f'{result["ratio"]:.2f}'] if result else ["-"] * 3
    bar = [f'{row["bar"]["ratio"]:.2f}' if "bar" in row else "-"] if has_bar else []
    return ([row["name"], row["size"], f'{row["ours"]:.4g}', f'{row["gbps"]:.1f}'] + triple(row["held"]) + bar +
            triple(row["native"]) + [f'{100 * row["share"]:.0f}%'])


def table(rows):
    has_bar = any("bar" in row for row in rows)
    head = (["operation", "size", "ns/px", "GB/s", "held peer", "ns/px", "ratio"] + ["bar"] * has_bar +
            ["native peer", "ns/px", "ratio", "limit"])
    lines = [head] + [cells(row, has_bar) for row in rows]
    widths = [max(len(line[i]) for line in lines) for i in range(len(head))]
    texts = (0, 1, 4, head.index("native peer"))
    return "\n".join("  ".join(cell.ljust(width) if i in texts else cell.rjust(width)
                               for i, (cell, width) in enumerate(zip(line, widths))) for line in lines)


def markdown(words):
    """A compact table: selected rows, ns a pixel and the ratios to the best peers."""
    def title(row):
        return row["name"] if row["size"] == "1920x1080" else f'{row["name"]} {row["size"]}'

    def ratio(result):
        return f'{result["ratio"]:.2f} ({result["peer"]})' if result else "-"
    lines = ["| 1920x1080 unless said | word | ours, ns/px | GB/s | held peers | native peers |",
             "|---|---|---|---|---|---|"]
    for name in SELECTED:
        for word, rows in words.items():
            for row in rows:
                if title(row) == name:
                    lines.append(f'| {name} | {word} | {row["ours"]:.3g} | {row["gbps"]:.0f} | '
                                 f'{ratio(row["held"])} | {ratio(row["native"])} |')
    return "\n".join(lines)


def plot(words, path):
    """Ratios to the best held and native peer, one panel per word size, one row per operation and size."""
    import matplotlib
    matplotlib.use("Agg")
    from matplotlib import pyplot
    tallest = max(len(rows) for rows in words.values())
    figure, panels = pyplot.subplots(1, len(words), figsize=(8 * len(words), 1.5 + 0.17 * tallest), squeeze=False)
    for panel, (word, rows) in zip(panels[0], words.items()):
        for kind, marker, colour in (("native", "o", "tab:orange"), ("held", "D", "tab:blue")):
            points = [(row[kind]["ratio"], y) for y, row in enumerate(rows) if row[kind]]
            ratios, places = [ratio for ratio, _ in points], [place for _, place in points]
            panel.scatter(ratios, places, s=14, marker=marker, color=colour, label=f"best {kind} peer", zorder=3)
        panel.axvline(1, color="black", linewidth=0.8)
        panel.set_xscale("log")
        panel.set_yticks(range(len(rows)), [f'{row["name"]}  {row["size"]}' for row in rows], fontsize=6)
        panel.set_ylim(len(rows), -1)
        panel.grid(axis="x", alpha=0.4)
        panel.set_title(f"{word} bits")
        panel.set_xlabel("time of the peer / time of lumi")
        panel.legend(loc="upper right", fontsize=7)
    figure.tight_layout()
    figure.savefig(path, dpi=110)


def report_differences(words):
    """Names peers whose output is not ours without a reason given; they take part in no ratio."""
    found = 0
    for word, rows in words.items():
        for row in rows:
            for peer, reason in row["differs"].items():
                found += reason == ""
                if reason == "":
                    print(f'bench: {peer} differs from ours ({word} bits, {row["name"]} {row["size"]})',
                          file=sys.stderr)
    return found


def main():
    parser = argparse.ArgumentParser(prog="scripts/bench", description="Times lumi against its peers.")
    parser.add_argument("--filter", default="", metavar="REGEX", help='rows whose "operation size" matches')
    parser.add_argument("--json", metavar="FILE", help="everything measured")
    parser.add_argument("--plot", metavar="FILE.png", help="picture of the ratios")
    parser.add_argument("--word", choices=("32", "64", "both"), default="both")
    parser.add_argument("--quick", action="store_true", help="two sizes, half the time each")
    parser.add_argument("--markdown", action="store_true", help="a compact table of selected rows")
    options = parser.parse_args()

    words, libraries = {}, {}
    for word, preset in (("32", "x86-bench"), ("64", "x64-bench")):
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

    if options.json:
        with open(options.json, "w", encoding="utf-8") as file:
            json.dump({"libraries": libraries, "rows": words}, file, indent=1)
    if options.markdown:
        print(markdown(words))
    else:
        for word, rows in words.items():
            print(f"\n{word} bits\n{table(rows)}")
    if options.plot and any(words.values()):
        plot(words, options.plot)
    return 1 if report_differences(words) else 0


if __name__ == "__main__":
    sys.exit(main())
