#!/usr/bin/env python3
"""Brings the tables of docs/performance.md up to date with what `make bench` measured.

    publish.py PAGE NAME=RESULTS.json...

The table NAME stands in the page between the lines "<!-- NAME -->" and "<!-- /NAME -->".
"""

import argparse
import json
import re
import sys

from report import duration, percent


def goal(row, text):
    if row["target"] is None:
        return ""
    return f"{text(row['target'])}{'' if row['met'] else ' (missed)'}"


def markdown(header, rows):
    lines = ["| " + " | ".join(cells) + " |" for cells in [header, ["---"] * len(header), *rows]]
    return "\n".join(lines) + "\n"


def steepest(growth):
    """Of each operation, the step at which time grows most."""
    steps = {}
    for row in growth:
        if row["growth"] > steps.get(row["operation"], {"growth": 0})["growth"]:
            steps[row["operation"]] = row
    return steps.values()


def table(summary):
    """What a run says, as Markdown."""
    loads = ", ".join(f"{load:.2f}" for load in summary["loads"])
    text = f"Runs: {summary['runs']}, of which the medians count"
    text += f"; tasks in the minute before each: {loads}.\n\n" if loads else ".\n\n"
    text += markdown(
        ["job", "peer", "Brennet", "peer takes", "ratio", "spread", "goal"],
        [[f"{row['group']}, {row['case']}", row["peer"], duration(row["ours_ns"]),
          duration(row["peer_ns"]), f"{row['ratio']:.2f}", percent(row["spread"]), goal(row, str)]
         for row in summary["comparisons"]])
    text += "\n" + markdown(
        ["job without peer", "Brennet", "share", "spread", "goal"],
        [[f"{row['group']}, {row['case']}", duration(row["ours_ns"]), percent(row["share"]),
          percent(row["spread"]), goal(row, duration)] for row in summary["ours"]])
    text += "\n" + markdown(
        ["growth", "steepest from", "to", "per doubling", "spread", "goal"],
        [[row["operation"], str(row["n"]), str(row["next_n"]), f"{row['growth']:.2f}",
          percent(row["spread"]), goal(row, str)] for row in steepest(summary["growth"])])
    return text


def replaced(page, name, text):
    """The page with the text between the lines that name it."""
    pattern = f"(<!-- {name} -->\n).*?(<!-- /{name} -->\n)"
    if not re.search(pattern, page, re.DOTALL):
        sys.exit(f"publish.py: the page has no lines <!-- {name} --> and <!-- /{name} -->")
    return re.sub(pattern, lambda match: f"{match[1]}\n{text}\n{match[2]}", page, flags=re.DOTALL)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("page", metavar="PAGE")
    parser.add_argument("results", metavar="NAME=RESULTS.json", nargs="+")
    arguments = parser.parse_args()
    with open(arguments.page, encoding="utf-8") as file:
        page = file.read()
    for argument in arguments.results:
        name, _, path = argument.partition("=")
        with open(path, encoding="utf-8") as file:
            page = replaced(page, name, table(json.load(file)))
    with open(arguments.page, "w", encoding="utf-8") as file:
        file.write(page)


if __name__ == "__main__":
    main()
