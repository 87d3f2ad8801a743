"""What runs of benchmark programs say: comparisons with peers, growth, and what has no peer.

Benchmarks named <group>/brennet/<case> are compared with <group>/<peer>/<case>; for those named
scale/<operation>/<n> the growth of time per doubling of n counts. Of several runs, the medians
count; ratios are those of times of the same run.
"""

import fnmatch
import glob
import json
import math
import os
import re
import statistics

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

# The most that what a person or a host waits for may take, in nanoseconds.
TIME_TARGETS = [
    ("loadLibrary/*", 2e6),
    ("openAgain/*", 1e9 / 60),
    ("switchScheme/*", 0.7e6),
]

# The most that time may grow when n doubles: linear.
GROWTH_TARGET = 2.05

_UNITS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def read_run(folder):
    """The median time in nanoseconds of every benchmark of a run, by name."""
    times = {}
    for path in sorted(glob.glob(os.path.join(folder, "*.json"))):
        with open(path, encoding="utf-8") as file:
            rows = json.load(file)["benchmarks"]
        for row in rows:
            if row.get("aggregate_name") == "median":
                name = re.sub("(/iterations:[0-9]+|/real_time|/manual_time)+$", "", row["run_name"])
                times[name] = row["real_time"] * _UNITS[row["time_unit"]]
    return times


def read_load(folder):
    """How busy the machine was before a run: tasks in the minute before, as tools/bench.sh noted
    them. Nothing where it could not."""
    try:
        with open(os.path.join(folder, "load"), encoding="utf-8") as file:
            return float(file.read())
    except FileNotFoundError:
        return None


def _target(targets, name):
    for pattern, target in targets:
        if fnmatch.fnmatchcase(name, pattern):
            return target
    return None


def _judged(row, value, target):
    return {**row, "target": target, "met": None if target is None else value <= target}


def _over_runs(values):
    """The median of a figure over the runs, and how far apart the runs are, as a share of it."""
    median = statistics.median(values)
    return median, (max(values) - min(values)) / median


def comparisons(runs):
    """One row for each peer of each of our benchmarks."""
    rows = []
    for name in runs[0]:
        group, _, rest = name.partition("/")
        peer, _, case = rest.partition("/")
        ours = f"{group}/{OURS}/{case}"
        if group == "scale" or peer == OURS or ours not in runs[0]:
            continue
        ratio, spread = _over_runs([run[ours] / run[name] for run in runs])
        row = {"group": group, "case": case, "peer": peer,
               "ours_ns": _over_runs([run[ours] for run in runs])[0],
               "peer_ns": _over_runs([run[name] for run in runs])[0],
               "ratio": ratio, "spread": spread}
        rows.append(_judged(row, ratio, _target(RATIO_TARGETS, name)))
    return sorted(rows, key=lambda row: (row["group"], row["case"], row["ratio"]))


def growth(runs):
    """One row for each step of n: by how much time grows per doubling."""
    operations = {}
    for name in runs[0]:
        parts = name.split("/")
        if parts[0] == "scale" and len(parts) == 3 and parts[2].isdigit():
            operations.setdefault(parts[1], []).append((int(parts[2]), name))
    rows = []
    for operation, points in sorted(operations.items()):
        points.sort()
        for (n, name), (next_n, next_name) in zip(points, points[1:]):
            factor, spread = _over_runs(
                [(run[next_name] / run[name]) ** (1 / math.log2(next_n / n)) for run in runs])
            row = {"operation": operation, "n": n, "next_n": next_n,
                   "n_ns": _over_runs([run[name] for run in runs])[0],
                   "next_n_ns": _over_runs([run[next_name] for run in runs])[0],
                   "growth": factor, "spread": spread}
            rows.append(_judged(row, factor, GROWTH_TARGET))
    return rows


def ours(runs, compared):
    """Our benchmarks that have no peer or that may not take longer than a certain time."""
    with_peer = {(row["group"], row["case"]) for row in compared}
    rows = []
    for name in runs[0]:
        group, _, rest = name.partition("/")
        peer, _, case = rest.partition("/")
        target = _target(TIME_TARGETS, name)
        if group == "scale" or peer != OURS or (target is None and (group, case) in with_peer):
            continue
        time, spread = _over_runs([run[name] for run in runs])
        rows.append(_judged({"group": group, "case": case, "ours_ns": time, "spread": spread},
                            time, target))
    for row in rows:
        group = row["group"]
        whole = sum(other["ours_ns"] for other in rows if other["group"] == group)
        row["share"] = row["ours_ns"] / whole if group.endswith("Steps") else None
    return rows


def summary(runs, loads):
    """All of it, as report.py writes it down. `loads` are those of the runs, where known."""
    compared = comparisons(runs)
    return {"runs": len(runs), "loads": [load for load in loads if load is not None],
            "comparisons": compared, "growth": growth(runs), "ours": ours(runs, compared)}
