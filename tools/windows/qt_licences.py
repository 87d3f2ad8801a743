#!/usr/bin/env -S python3 -B
"""Prints whose work is in the DLLs of Qt, with the licences in full: qt_licences.py SOURCE

SOURCE is the source of Qt. The environment has the parts that are in the DLLs (BUILT) and patterns
for those that are not (LEFT_OUT), with blanks between them; qt_licences.sh has both lists.
"""

import fnmatch
import json
import os
import pathlib
import sys

source = pathlib.Path(sys.argv[1])
rule = "=" * 80
# What the field names only tells of two licences in other files; this one has both in full.
in_full = {"src/3rdparty/freetype/docs/LICENSE.TXT": "src/3rdparty/freetype/LICENSE.txt"}


def end(message):
    sys.exit("brennet: " + message)


def read(path):
    return path.read_text(encoding="utf-8-sig").strip("\n")


def all_parts():
    for file in sorted((source / "src").rglob("qt_attribution.json")):
        # Texts in it run over lines, and a later field counts.
        found = json.loads(read(file), strict=False)
        for part in found if isinstance(found, list) else [found]:
            yield file.parent, part


def chosen_parts():
    built = set(os.environ["BUILT"].split())
    left_out = os.environ["LEFT_OUT"].split()
    chosen = []
    for folder, part in all_parts():
        if part["Id"] in built:
            chosen.append((folder, part))
        elif not any(fnmatch.fnmatchcase(part["Id"], pattern) for pattern in left_out):
            end(f"it is not known whether the DLLs of Qt have the part {part['Id']}.")
    missing = built - {part["Id"] for _, part in chosen}
    if missing:
        end(f"the source of Qt names no part {min(missing)}.")
    return sorted(chosen, key=lambda entry: entry[1]["Name"].lower())


def licence_of(folder, part):
    """The name and the text of the part's licence; none for what is in the public domain."""
    if "LicenseFile" not in part and part["License"] == "Public Domain":
        return None
    if "LicenseFile" not in part:
        end(f"the part {part['Id']} of Qt names no licence text.")
    name = os.path.relpath(folder / part["LicenseFile"], source)
    file = source / in_full.get(name, name)
    if not file.is_file() or not read(file).strip():
        end(f"the licence text {name} of the part {part['Id']} of Qt is missing.")
    return os.path.relpath(file, source), read(file)


def describe(folder, part, licence):
    where = part.get("Path", part.get("Files", ""))
    identifier = f" ({part['LicenseId']})" if "LicenseId" in part else ""
    rows = [
        ("Use", part["QtUsage"]),
        ("What it is", part.get("Description", "")),
        ("Version", part.get("Version", "")),
        ("In the source", f"{os.path.relpath(folder, source)} {where}"),
        ("Home page", part.get("Homepage", "")),
        ("Licence", part["License"] + identifier),
        ("Text", licence[0] if licence else "none: it is in the public domain"),
        ("Copyright", part["Copyright"]),
    ]
    lines = [f"{part['Name']} [{part['Id']}]", "-" * 80]
    for label, value in rows:
        rest = [line.strip() for line in value.strip().split("\n")]
        if rest != [""]:
            lines.append(f"{label + ':':<15}" + ("\n" + " " * 15).join(rest))
    return "\n".join(lines)


def main():
    texts = {}
    parts = []
    for folder, part in chosen_parts():
        licence = licence_of(folder, part)
        if licence:
            texts.setdefault(licence[1], []).append(licence[0])
        parts.append((folder, part, licence))

    print("Qt contains work of others. These are the parts that are in its DLLs and plugins here, and")
    print("then their licences, under the names that the parts give for them.")
    for entry in parts:
        print("\n" + describe(*entry))
    for text, names in texts.items():
        print("\n".join(["", rule, *sorted(set(names)), rule, "", text]))


if __name__ == "__main__":
    main()
