#!/usr/bin/env python3
"""Prints one table of what Google Benchmark programs measured, peers side by side.

    report.py --json OUT RESULT.json...

Each RESULT.json is the output of one program run with repetitions. Medians count.
Benchmarks named <group>/brennet/<case> are compared with <group>/<peer>/<case>; for those named
scale/<operation>/<n> the growth of time per doubling of n is shown. What of ours has no peer is
listed with its time alone; where the name of its group ends in "Steps", with its share of the group.
"""

import argparse
import fnmatch
import json
import math
import re
import sys

OURS = "brennet"

# "<group>/<peer>/<case>" as a pattern, and the most that our time may be of the peer's.
# The first row that matches counts; without one the ratio is shown without a target.
RATIO_TARGETS = [
    ("setDoc/pugixml/*", 0.5),
    ("setDoc/*/*", 1.0),
    ("readGb2312/*+pugixml/*", 0.25),
    ("decodeGb2312/*/*-ascii", 0.5),
    ("decodeGb2312/*/*", 1.0),
    ("encodeGb2312/*/*-ascii", 0.5),
    ("encodeGb2312/*/*", 1.0),
    ("load/*/*", 2.0),
    ("read/setDoc/*", 1.8),
    ("save/setDoc+encode/*", 2.5),
    ("save/*/*", 2.0),
    ("fillBlock/*/*", 1.0),
    ("conflict/*/*", 2.0),
    ("firstShow/bare/*", 1.3),
    ("openDialog/bare/all", 1.05),
    ("openAgain/first/all", 1.0),
    ("openKeyMap/buttons/all", 1.0),
    ("openPreview/bare/all", 1.3),
    ("step/choose/*", 1.3),
    ("note/compare/*", 3.0),
]

# The most that what has no peer may take, in nanoseconds.
TIME_TARGETS = [
    ("loadLibrary/*", 2e6),
    ("openAgain/*", 1e9 / 60),
    ("switchScheme/*", 0.7e6),
]

# The most that time may grow when n doubles: linear.
GROWTH_TARGET = 2.05


def medians(paths):
    """The median time in nanoseconds of every benchmark, by name."""
    unit = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
    times = {}
    for path in paths:
        with open(path, encoding="utf-8") as file:
            rows = json.load(file)["benchmarks"]
        for row in rows:
            if row.get("aggregate_name") == "median":
                name = re.sub("(/iterations:[0-9]+|/real_time|/manual_time)+$", "", row["run_name"])
                times[name] = row["real_time"] * unit[row["time_unit"]]
    return times


def ratio_target(name):
    for pattern, target in RATIO_TARGETS:
        if fnmatch.fnmatchcase(name, pattern):
            return target
    return None


def compare(times):
    """One row for each peer of each of our benchmarks."""
    rows = []
    for name, peer_time in times.items():
        group, _, rest = name.partition("/")
        peer, _, case = rest.partition("/")
        our_time = times.get(f"{group}/{OURS}/{case}")
        if group == "scale" or peer == OURS or our_time is None:
            continue
        ratio, target = our_time / peer_time, ratio_target(name)
        rows.append({"group": group, "case": case, "peer": peer, "ours_ns": our_time,
                     "peer_ns": peer_time, "ratio": ratio, "target": target,
                     "met": None if target is None else ratio <= target})
    return sorted(rows, key=lambda row: (row["group"], row["case"], row["ratio"]))


def growth(times):
    """One row for each step of n: by how much time grows per doubling."""
    operations = {}
    for name, time in times.items():
        parts = name.split("/")
        if parts[0] == "scale" and len(parts) == 3 and parts[2].isdigit():
            operations.setdefault(parts[1], []).append((int(parts[2]), time))
    rows = []
    for operation, points in sorted(operations.items()):
        points.sort()
        for (n, time), (next_n, next_time) in zip(points, points[1:]):
            factor = (next_time / time) ** (1 / math.log2(next_n / n))
            rows.append({"operation": operation, "n": n, "next_n": next_n, "n_ns": time,
                         "next_n_ns": next_time, "growth": factor, "target": GROWTH_TARGET,
                         "met": factor <= GROWTH_TARGET})
    return rows


def alone(times, comparisons):
    """Our benchmarks that nothing was compared with."""
    compared = {(row["group"], row["case"]) for row in comparisons}
    rows = []
    for name, time in times.items():
        group, _, rest = name.partition("/")
        peer, _, case = rest.partition("/")
        if group != "scale" and peer == OURS and (group, case) not in compared:
            rows.append({"group": group, "case": case, "ours_ns": time})
    for row in rows:
        group = row["group"]
        whole = sum(other["ours_ns"] for other in rows if other["group"] == group)
        row["share"] = row["ours_ns"] / whole if group.endswith("Steps") else None
    return rows


def duration(nanoseconds):
    for size, unit in ((1e9, "s"), (1e6, "ms"), (1e3, "us")):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def verdict(row):
    return {None: "", True: "met", False: "MISSED"}[row["met"]]


def limit(row):
    return "" if row["target"] is None else f"<= {row['target']}"


def share(row):
    return "" if row["share"] is None else f"{row['share']:.0%}"


def print_table(header, rows):
    if not rows:
        return
    widths = [max(len(row[column]) for row in [header, *rows]) for column in range(len(header))]
    for row in [header, ["-" * width for width in widths], *rows]:
        print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())
    print()


def print_report(comparisons, growths, singles):
    print_table(
        ["group", "case", "peer", "brennet", "peer takes", "ratio", "target", ""],
        [[row["group"], row["case"], row["peer"], duration(row["ours_ns"]),
          duration(row["peer_ns"]), f"{row['ratio']:.2f}", limit(row), verdict(row)]
         for row in comparisons])
    print_table(
        ["operation", "n", "to", "time", "to", "per doubling", "target", ""],
        [[row["operation"], str(row["n"]), str(row["next_n"]), duration(row["n_ns"]),
          duration(row["next_n_ns"]), f"{row['growth']:.2f}", limit(row), verdict(row)]
         for row in growths])
    print_table(["group", "case", "brennet", "share"],
                [[row["group"], row["case"], duration(row["ours_ns"]), share(row)]
                 for row in singles])


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--json", required=True, help="where the same figures go as JSON")
    parser.add_argument("results", nargs="+", help="output of Google Benchmark, as JSON")
    arguments = parser.parse_args()

    times = medians(arguments.results)
    if not times:
        sys.exit("report.py: no medians in the results; run with repetitions")
    comparisons, growths = compare(times), growth(times)
    singles = alone(times, comparisons)
    print_report(comparisons, growths, singles)
    with open(arguments.json, "w", encoding="utf-8") as file:
        json.dump({"comparisons": comparisons, "growth": growths, "alone": singles}, file, indent=2)
        file.write("\n")
    rated = [row for row in comparisons + growths if row["met"] is not None]
    print(f"{sum(row['met'] for row in rated)} of {len(rated)} targets met; "
          f"figures in {arguments.json}")


if __name__ == "__main__":
    main()
