#!/usr/bin/env -S python3 -B
"""Checks that the names in a page are names in the sources: names.py ROOT PAGE

A name is a word of code in `marks`: an identifier, also with the last part left open (`edtSkill_`).
Prints each one that no source, form or header has.
"""

import pathlib
import re
import sys

NAME = re.compile(r"`([A-Za-z_]\w*)`")
FOLDERS = ("host", "ui", "model", "gameside", "markup", "keys", "platform")


def main():
    root = pathlib.Path(sys.argv[1])
    page = (root / sys.argv[2]).read_text(encoding="utf-8")
    sources = "\n".join(
        path.read_text(encoding="utf-8")
        for folder in FOLDERS
        for path in sorted((root / folder).rglob("*"))
        if path.suffix in (".h", ".cpp", ".ui")
    )
    known = set(re.findall(r"\w+", sources))
    names = dict.fromkeys(NAME.findall(page))
    unknown = [
        name
        for name in names
        if name not in known
        and not (name.endswith("_") and any(word.startswith(name) for word in known))
    ]
    if not names:
        sys.exit(f"FAILED: {sys.argv[2]} has no names")
    if unknown:
        print("FAILED: no source has these names:", *unknown, sep="\n")
    sys.exit(1 if unknown else 0)


if __name__ == "__main__":
    main()
