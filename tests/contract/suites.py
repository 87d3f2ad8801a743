#!/usr/bin/env -S python3 -B
"""Checks that tests can be found by their names: suites.py ROOT

A suite is named after its file of tests or after a source file of what it tests; more words may
follow. Prints each suite that is not, and what to do about it.
"""

import pathlib
import re
import sys

# Where the files are that are tested.
SOURCES = ("platform", "keys", "markup", "gameside", "model", "ui", "host", "check", "samples", "fuzz")
SUITE = re.compile(r"^(?:TYPED_)?TEST(?:_[FP])?\((\w+), *\w+\)", re.MULTILINE)
SYSTEM = re.compile(r"_(posix|win)$")


def names_of_sources(root):
    return {SYSTEM.sub("", path.stem) for folder in SOURCES
            for path in (root / folder).rglob("*") if path.suffix in (".h", ".cpp")}


def is_named_after(suite, name):
    """Whether the suite has the name, followed by nothing or by a new word."""
    return re.match(rf"{name}(?![a-z])", suite) is not None


def misnamed_suites(root):
    """Each suite that is named after nothing, with its file and the name of what that tests."""
    sources = names_of_sources(root)
    tests = root / "tests"
    for path in sorted(set(tests.rglob("*.cpp")) - set((tests / "data").rglob("*"))):
        own = re.sub("Tests?$", "", SYSTEM.sub("", path.stem))
        for suite in dict.fromkeys(SUITE.findall(path.read_text(encoding="utf-8"))):
            if not any(is_named_after(suite, name) for name in (own, *sources)):
                yield path.relative_to(root), suite, own


def main():
    misnamed = list(misnamed_suites(pathlib.Path(sys.argv[1])))
    for path, suite, own in misnamed:
        print(f"{path}: name the suite {suite} after what it tests, for example {own}Test")
    sys.exit(1 if misnamed else 0)


if __name__ == "__main__":
    main()
