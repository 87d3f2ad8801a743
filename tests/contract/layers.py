#!/usr/bin/env -S python3 -B
"""Checks the rules for includes and for code of one system: layers.py ROOT

A folder includes only what is below it, no file includes itself by way of others, code for one
system is in platform/ alone, and the sample hosts see only what other hosts see. Prints the name of
each rule that is broken and, below it, each line that breaks it.
"""

import os
import pathlib
import re
import sys

# Each folder, and those whose headers it may include: what is below it. Each is a library, but for
# those of the windows, which are one together.
BELOW = {
    "platform": (),
    "keys": (),
    "markup/text": ("platform",),
    "markup": ("markup/text", "platform"),
    "gameside/prefs": ("keys", "markup/text", "platform"),
    "gameside/dota7": ("keys", "markup/text", "platform"),
    "model": ("gameside/prefs", "keys", "markup", "markup/text", "platform"),
}
BELOW["cli"] = (*BELOW["model"], "model")
BELOW["ui/window"] = (*BELOW["model"], "gameside/dota7", "model")
BELOW["ui/capture"] = (*BELOW["ui/window"], "ui/window")
BELOW["ui/chat"] = (*BELOW["ui/capture"], "ui/capture")
BELOW["ui/keymap"] = (*BELOW["ui/capture"], "ui/capture")
BELOW["ui/history"] = (*BELOW["ui/capture"], "ui/capture")
BELOW["ui/pages"] = (*BELOW["ui/chat"], "ui/chat", "ui/history", "ui/keymap")
BELOW["ui"] = (*BELOW["ui/pages"], "ui/pages")
BELOW["host"] = (*BELOW["ui"], "ui")
BELOW["check"] = ("platform",)
BELOW["tools/skin"] = ()

# What hosts include, by the names that they use.
PUBLIC = {
    "brennet/HotkeyBlock.h": "model/include/brennet/HotkeyBlock.h",
    "brennet/IBrennet.h": "host/include/brennet/IBrennet.h",
    "brennet/Version.h": "host/include/brennet/Version.h",
}
# The bodies for one system belong to the header of the same name.
BODIES = re.compile(r"^platform/(posix|win)/")
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
WINDOWS_HEADER = re.compile(r"^\s*#\s*include\s*<[Ww]indows\.h>")
SYSTEM_SWITCH = re.compile(r"\b_?WIN(32|64)\b")
# The calling convention of the interface is the only difference that a header has to state.
CALLING_CONVENTION = "#if defined(_WIN32) && (defined(_M_IX86)"


def folder_of(path):
    """The folder of BELOW that a file is in, or None."""
    parts = pathlib.PurePosixPath(path).parent.parts
    for length in range(len(parts), 0, -1):
        folder = "/".join(parts[:length])
        if folder in BELOW:
            return folder
    return None


def unit_of(path):
    """A header and its body are one thing."""
    return BODIES.sub("platform/", os.path.splitext(path)[0])


class House:
    def __init__(self, root):
        self.broken = {}
        self.sources = {}
        for top in (*dict.fromkeys(folder.split("/")[0] for folder in BELOW), "samples"):
            for path in sorted((root / top).rglob("*")):
                name = path.relative_to(root).as_posix()
                isOurs = folder_of(name) is not None or top == "samples"
                if isOurs and path.suffix in (".h", ".cpp"):
                    self.sources[name] = path.read_text(encoding="utf-8").splitlines()

    def report(self, rule, where):
        self.broken.setdefault(rule, []).append(where)

    def includes(self):
        """Each include in our sources: the file, the line's number, the quote, the name."""
        for name, lines in self.sources.items():
            for number, line in enumerate(lines, 1):
                if found := INCLUDE.match(line):
                    yield name, number, found[1], found[2]

    def check_folders(self):
        for name, number, quote, included in self.includes():
            folder = folder_of(name)
            # Headers made from forms have no folder.
            if folder is None or quote == "<" or re.fullmatch(r"ui_\w+\.h", included):
                continue
            where = f"{name}:{number}: {included}"
            target = folder_of(PUBLIC.get(included, included))
            if target is None:
                self.report("unknown-folder", where)
            elif target != folder and target not in BELOW[folder]:
                self.report("upward", where)

    def check_circles(self):
        targets = {unit_of(name): set() for name in self.sources}
        for name, _, _, included in self.includes():
            target = unit_of(PUBLIC.get(included, included))
            if target in targets and target != unit_of(name):
                targets[unit_of(name)].add(target)

        def reached_from(unit):
            reached, ahead = set(), list(targets[unit])
            while ahead:
                if (one := ahead.pop()) not in reached:
                    reached.add(one)
                    ahead += targets[one]
            return reached

        reached = {unit: reached_from(unit) for unit in targets}
        for unit in sorted(unit for unit in targets if unit in reached[unit]):
            back = sorted(one for one in targets[unit] if unit in reached[one] | {one})
            self.report("circle", f"{unit}: {', '.join(back)}")

    def check_systems(self):
        for name, lines in self.sources.items():
            for number, line in enumerate(lines, 1):
                where = f"{name}:{number}: {line.strip()}"
                if WINDOWS_HEADER.match(line) and not name.startswith("platform/win/"):
                    self.report("windows-header", where)
                isAllowed = name.startswith("platform/") or line.startswith(CALLING_CONVENTION)
                if SYSTEM_SWITCH.search(line) and not isAllowed:
                    self.report("system-switch", where)

    def check_samples(self):
        """A host's own headers are beside it; ours have the names that the package gives them."""
        for name, number, quote, included in self.includes():
            isPrivate = "/" in included and not (quote == "<" and included in PUBLIC)
            if name.startswith("samples/") and isPrivate:
                self.report("private-header", f"{name}:{number}: {included}")


def main():
    house = House(pathlib.Path(sys.argv[1]))
    house.check_folders()
    house.check_circles()
    house.check_systems()
    house.check_samples()
    for rule, places in house.broken.items():
        print(f"broken rule: {rule}", *places, sep="\n")
    sys.exit(1 if house.broken else 0)


if __name__ == "__main__":
    main()
