#!/usr/bin/env -S python3 -B
"""Compares the table of operations in the contract with the header: contract.py HEADER CONTRACT

The header is the contract: each slot says in brackets on which thread and when it may be called,
who owns what is passed, and what a failure is. Prints the table that the contract should have.
"""

import re
import sys

SLOT = re.compile(r"Slot (\d+)\. (.*?)virtual .*? BRENNET_CALL (\w+)\(", re.S)
TAGS = re.compile(
    r"\[GUI thread(?P<hold>[^;]*); (?P<when>[^\]]*)\] "
    r"\[owns: (?P<owner>[^\]]*)\] \[failure: (?P<failure>[^\]]*)\]"
)
HEADS = ("Slot", "Operation", "When", "Thread", "Who owns what is passed", "On failure")


def line(cells):
    return "| " + " | ".join(cells) + " |"


def rows_of(header):
    for slot, comment, operation in SLOT.findall(header):
        tags = TAGS.search(re.sub(r"\s*\n\s*// ", " ", comment))
        if not tags:
            sys.exit(f"FAILED: slot {slot} lacks one of its tags in brackets")
        yield (slot, f"`{operation}`", tags["when"], "GUI" + tags["hold"], tags["owner"],
               tags["failure"])


def main():
    header = open(sys.argv[1], encoding="utf-8").read()
    contract = open(sys.argv[2], encoding="utf-8").read()
    rows = list(rows_of(header))
    untold = [slot for slot, *_ in rows if f"**Slot {slot}, `" not in contract]
    if untold:
        sys.exit(f"FAILED: the contract's table has no text below it for slot {', '.join(untold)}")
    table = [line(HEADS), "|---" * len(HEADS) + "|", *map(line, rows)]
    if "\n".join(table) in contract:
        return
    print("FAILED: the contract's table is not what IBrennet.h says. It should be:", *table, sep="\n")
    sys.exit(1)


if __name__ == "__main__":
    main()
