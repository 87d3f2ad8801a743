#!/usr/bin/env python3
"""Prints what Google Benchmark programs measured, peers side by side.

    report.py --json OUT [--picture OUT.svg] FOLDER...

Each FOLDER has the output of one run of the programs, made with repetitions. Where the name of a
group ends in "Steps", its cases are shown with their shares of the group. The exit status says
nothing about targets.
"""

import argparse
import json
import sys

import results


def duration(nanoseconds):
    for size, unit in ((1e9, "s"), (1e6, "ms"), (1e3, "us")):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def verdict(row):
    return {None: "", True: "met", False: "MISSED"}[row["met"]]


def limit(row, text=str):
    return "" if row["target"] is None else f"<= {text(row['target'])}"


def percent(share):
    return "" if share is None else f"{share:.0%}"


def print_table(header, rows):
    if not rows:
        return
    widths = [max(len(row[column]) for row in [header, *rows]) for column in range(len(header))]
    for row in [header, ["-" * width for width in widths], *rows]:
        print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())
    print()


def print_report(summary):
    print_table(
        ["group", "case", "peer", "brennet", "peer takes", "ratio", "spread", "target", ""],
        [[row["group"], row["case"], row["peer"], duration(row["ours_ns"]),
          duration(row["peer_ns"]), f"{row['ratio']:.2f}", percent(row["spread"]), limit(row),
          verdict(row)] for row in summary["comparisons"]])
    print_table(
        ["operation", "n", "to", "time", "to", "per doubling", "spread", "target", ""],
        [[row["operation"], str(row["n"]), str(row["next_n"]), duration(row["n_ns"]),
          duration(row["next_n_ns"]), f"{row['growth']:.2f}", percent(row["spread"]), limit(row),
          verdict(row)] for row in summary["growth"]])
    print_table(
        ["group", "case", "brennet", "spread", "share", "target", ""],
        [[row["group"], row["case"], duration(row["ours_ns"]), percent(row["spread"]),
          percent(row["share"]), limit(row, duration), verdict(row)] for row in summary["ours"]])
    rated = [row for table in ("comparisons", "growth", "ours") for row in summary[table]
             if row["met"] is not None]
    print(f"{sum(row['met'] for row in rated)} of {len(rated)} targets met in {summary['runs']} "
          f"run{'s'[:summary['runs'] > 1]}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--json", required=True, help="where the same figures go as JSON")
    parser.add_argument("--picture", help="where the ratios go as a picture (SVG)")
    parser.add_argument("folders", nargs="+", help="the output of a run, as JSON")
    arguments = parser.parse_args()

    runs = [results.read_run(folder) for folder in arguments.folders]
    if not all(runs):
        sys.exit("report.py: no medians in the results; run with repetitions")
    summary = results.summary(runs, [results.read_load(folder) for folder in arguments.folders])
    print_report(summary)
    with open(arguments.json, "w", encoding="utf-8") as file:
        json.dump(summary, file, indent=2)
        file.write("\n")
    print(f"The figures are in {arguments.json}")
    if arguments.picture:
        import picture  # takes a library that the table does not need
        picture.draw(summary["comparisons"], arguments.picture)
        print(f"The picture is {arguments.picture}")


if __name__ == "__main__":
    main()
