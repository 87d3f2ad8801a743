#!/usr/bin/env python3
"""Checks one fact of the Windows library, or all: check.py IMAGE VERSION FACT|all [FOLDER...]

VERSION is the project's, FOLDERs are those of the build machine that the image must not name. A fact
that does not hold is told as "broken fact: NAME", with the reason in the next line; then the exit
status is 1.
"""

import struct
import sys

import version_resource
from portable_executable import (DYNAMIC_BASE, FILE_HAS_NO_RELOCATIONS, FILE_IS_DLL, MACHINE_I386,
                                 MAGIC_PE32, NX_COMPAT, Image)

# Nothing else may be needed to load the library.
ALLOWED_IMPORTS = {
    # Windows
    "kernel32.dll", "user32.dll", "advapi32.dll", "shell32.dll", "shlwapi.dll",
    # the C runtime, which is part of Windows
    "msvcrt.dll", "ucrtbase.dll",
    # the compiler's runtime
    "libgcc_s_dw2-1.dll", "libstdc++-6.dll", "libwinpthread-1.dll",
    # Qt
    "qt5core.dll", "qt5gui.dll", "qt5widgets.dll",
}


def format_(image, _):
    if image.magic != MAGIC_PE32:
        return f"the optional header is of the kind {image.magic:#x}, not PE32"


def machine(image, _):
    if image.machine != MACHINE_I386:
        return f"the machine is {image.machine:#x}, not i386"


def library(image, _):
    if not image.file_flags & FILE_IS_DLL:
        return "the image is not marked as a DLL"


def exports(image, _):
    names = image.exports()
    if names != ["GetBrennetPtr"]:
        shown = ", ".join(names[:5]) or "nothing"
        return f"{len(names)} exports, where GetBrennetPtr alone is expected: {shown}"


def imports(image, _):
    names = image.imported_libraries()
    others = [name for name in names if name.lower() not in ALLOWED_IMPORTS]
    if others:
        return f"imported is what is not allowed: {', '.join(others)}"
    if not names:
        return "no imports are found"


def dynamic_base(image, _):
    if not image.dll_flags & DYNAMIC_BASE:
        return "the image does not say that it may be placed anywhere (DYNAMIC_BASE)"


def nx_compat(image, _):
    if not image.dll_flags & NX_COMPAT:
        return "the image does not say that its data is never run (NX_COMPAT)"


def relocations(image, _):
    if image.file_flags & FILE_HAS_NO_RELOCATIONS:
        return "the relocations are marked as stripped"
    if not image.relocations():
        return "there is not one relocation"


def version(image, wanted):
    data = image.version_resource()
    if data is None:
        return "there is no version resource"
    numbers, texts = version_resource.read(data)
    expected = (*map(int, wanted.version.split(".")), 0)
    if numbers != expected:
        return f"the file version is {numbers}, not {expected}"
    if texts.get("FileVersion") != wanted.version:
        return f"the text FileVersion is {texts.get('FileVersion')}, not {wanted.version}"
    if texts.get("ProductName") != "Brennet":
        return f"the text ProductName is {texts.get('ProductName')}, not Brennet"
    if not texts.get("FileDescription"):
        return "the text FileDescription is missing"


def build_folders(image, wanted):
    if not wanted.folders:
        return "no folder was given to look for"
    for folder in wanted.folders:
        for name in (folder, folder.replace("/", "\\")):
            for encoding in ("utf-8", "utf-16-le"):
                at = image.data.find(name.encode(encoding))
                if at >= 0:
                    return f"{name} stands in the image as {encoding}, at offset {at:#x}"


FACTS = {
    "format": format_,
    "machine": machine,
    "library": library,
    "exports": exports,
    "imports": imports,
    "dynamic-base": dynamic_base,
    "nx-compat": nx_compat,
    "relocations": relocations,
    "version": version,
    "build-folders": build_folders,
}


class Wanted:
    def __init__(self, project_version, folders):
        self.version = project_version
        self.folders = folders


def broken(fact, image, wanted):
    try:
        return FACTS[fact](image, wanted)
    except (ValueError, struct.error) as error:
        return f"the image is damaged: {error}"


def main():
    if len(sys.argv) < 4 or sys.argv[3] not in (*FACTS, "all"):
        sys.exit(__doc__)
    path, project_version, fact, *folders = sys.argv[1:]
    with open(path, "rb") as file:
        image = Image(file.read())
    wanted = Wanted(project_version, folders)
    status = 0
    for name in FACTS if fact == "all" else [fact]:
        reason = broken(name, image, wanted)
        if reason:
            print(f"broken fact: {name}\n  {reason}")
            status = 1
    sys.exit(status)


main()
