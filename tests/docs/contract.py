#!/usr/bin/env -S python3 -B
"""Compares the table of operations in the contract with the header:
contract.py [--update] HEADER CONTRACT

The header is the contract: each slot says what it does, and in brackets on which thread and when it
may be called, who owns what is passed, and what a failure is. With --update the contract gets the
table that it should have.
"""

import re
import sys

SLOT = re.compile(r"Slot (\d+)\. (.*?)virtual (.*?) BRENNET_CALL (\w+)(\(.*?\)) = 0;", re.S)
TAGS = re.compile(
    r"\[GUI thread(?P<hold>[^;]*); (?P<when>[^\]]*)\] "
    r"\[owns: (?P<owner>[^\]]*)\] \[failure: (?P<failure>[^\]]*)\]"
)
SENTENCE = re.compile(r"(.*?\.)(?: |$)")
HEADS = ("Slot", "Operation", "What it does, or returns", "When", "Thread",
         "Who owns what is passed", "On failure")
# The lines around the table, and the table as it is.
TABLE = re.compile(r"(?<=make update writes this: operations -->\n\n)(.*?)"
                   r"(?=\n<!-- make update: end -->)", re.S)


def line(cells):
    return "| " + " | ".join(cells) + " |\n"


def rows_of(header):
    for slot, comment, result, operation, arguments in SLOT.findall(header):
        text = re.sub(r"\s*\n\s*// ", " ", comment)
        tags = TAGS.search(text)
        if not tags:
            sys.exit(f"FAILED: give slot {slot} its three tags in brackets in IBrennet.h")
        sentence = SENTENCE.match(text[:tags.start()])
        if not sentence:
            sys.exit(f"FAILED: say in a sentence of IBrennet.h what slot {slot} does or returns")
        signature = re.sub(r"\s+", " ", f"{result} {operation}{arguments}").replace("std::", "")
        yield (slot, f"`{signature}`", sentence[1], tags["when"],
               "GUI" + tags["hold"], tags["owner"], tags["failure"])


def table_of(header):
    rows = list(rows_of(header))
    declared = header.count("BRENNET_CALL ") - header.count("define BRENNET_CALL ")
    if [row[0] for row in rows] != [str(number) for number in range(declared)]:
        sys.exit(f"FAILED: number the {declared} slots of IBrennet.h from 0, in their order, in the "
                 "comment before each: \"Slot 0. \" and so on")
    return "".join([line(HEADS), "|---" * len(HEADS) + "|\n", *map(line, rows)])


def main():
    *options, header_path, contract_path = sys.argv[1:]
    with open(header_path, encoding="utf-8") as file:
        table = table_of(file.read())
    with open(contract_path, encoding="utf-8") as file:
        contract = file.read()
    found = TABLE.search(contract)
    if found and found[0] == table:
        return
    if found and options == ["--update"]:
        with open(contract_path, "w", encoding="utf-8", newline="\n") as file:
            file.write(contract[:found.start()] + table + contract[found.end():])
        return
    sys.exit("FAILED: the contract's table is not what IBrennet.h says. Run \"make update\" and look "
             "at the difference.\n" + table)


if __name__ == "__main__":
    main()
