#!/usr/bin/env -S python3 -B
"""Checks the bill of materials of an unpacked package: check_bill.py PACKAGE VERSION"""

import hashlib
import json
import os
import re
import sys


def fail(message):
    sys.exit(f"FAILED: {message}")


def check_files(package, bill):
    listed = {file["fileName"][2:]: file for file in bill["files"]}
    there = {os.path.relpath(os.path.join(folder, name), package)
             for folder, _, names in os.walk(package) for name in names}
    if set(listed) != there - {"sbom.spdx.json", "SHA256SUMS"}:
        fail(f"the bill and the package differ in {set(listed) ^ there}")
    for name, file in listed.items():
        with open(os.path.join(package, name), "rb") as content:
            content = content.read()
        for entry in file["checksums"]:
            actual = hashlib.new(entry["algorithm"].lower(), content).hexdigest()
            if actual != entry["checksumValue"]:
                fail(f"{name} has another {entry['algorithm']}")


def check_relations(bill):
    elements = [bill, *bill["packages"], *bill["files"]]
    names = [element["SPDXID"] for element in elements]
    if len(names) != len(set(names)):
        fail("two elements have one identifier")
    for relation in bill["relationships"]:
        for end in ("spdxElementId", "relatedSpdxElement"):
            if relation[end] not in names:
                fail(f"a relation names {relation[end]}, which is nothing")
    contained = [relation["relatedSpdxElement"] for relation in bill["relationships"]
                 if relation["relationshipType"] == "CONTAINS"]
    if sorted(contained) != sorted(file["SPDXID"] for file in bill["files"]):
        fail("not every file is of one part")


def check_parts(bill, version):
    parts = {part["name"]: part for part in bill["packages"]}
    if set(parts) != {"Brennet", "CLI11", "GCC", "JSON for Modern C++", "Qt", "mingw-w64"}:
        fail(f"the parts are {sorted(parts)}")
    if parts["Brennet"]["versionInfo"] != version:
        fail(f"Brennet is {parts['Brennet']['versionInfo']}, not {version}")
    for name, part in parts.items():
        if not re.fullmatch(r"[0-9]+(\.[0-9]+)*", part["versionInfo"]):
            fail(f"the version of {name} is {part['versionInfo']}")


def main():
    package, version = sys.argv[1:]
    with open(os.path.join(package, "sbom.spdx.json"), encoding="utf-8") as file:
        bill = json.load(file)
    if bill["spdxVersion"] != "SPDX-2.3":
        fail("the bill is of another version of SPDX")
    check_files(package, bill)
    check_relations(bill)
    check_parts(bill, version)


if __name__ == "__main__":
    main()
