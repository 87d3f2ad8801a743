#!/usr/bin/env -S python3 -B
"""Checks that what the documents name is there: links.py ROOT PAGE...

A link leads to a file beside the page. A path in `code` that begins with a folder of the project is
a file or folder of it, with or without the ending of a source. Prints each one that leads nowhere.
"""

import pathlib
import re
import sys

LINK = re.compile(r"\]\(([^)#\s]+)[^)]*\)")
CODE = re.compile(r"`([\w.-]+(?:/[\w.-]+)+)/?`")
ENDINGS = ("", ".h", ".cpp")
PLACEHOLDER = re.compile(r"\b[A-Z]{2,}\b")


def leads_somewhere(root, path):
    return any((root / (path + ending)).exists() for ending in ENDINGS)


def dead_names(root, page):
    text = (root / page).read_text(encoding="utf-8")
    for link in LINK.findall(text):
        if "://" not in link and not (root / page).parent.joinpath(link).exists():
            yield link
    for path in CODE.findall(text):
        isOurs = (root / path.split("/")[0]).is_dir() and not path.startswith("build/")
        isNamed = isOurs and not PLACEHOLDER.search(pathlib.PurePath(path).stem)
        if isNamed and not leads_somewhere(root, path):
            yield path


def main():
    root = pathlib.Path(sys.argv[1])
    dead = [f"{page}: {name}" for page in sys.argv[2:] for name in dead_names(root, page)]
    if dead:
        print("FAILED: leads nowhere:", *dead, sep="\n")
    sys.exit(1 if dead else 0)


if __name__ == "__main__":
    main()
