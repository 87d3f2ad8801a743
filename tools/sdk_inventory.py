#!/usr/bin/env -S python3 -B
"""Writes what is in a package: sdk_inventory.py PACKAGE VERSION COMPILER INCLUDE_FOLDER...

SHA256SUMS has the checksum of each file, for `sha256sum --check`; sbom.spdx.json, in SPDX 2.3, whose
work each file is, in which version and under which terms. The time in it is SOURCE_DATE_EPOCH. The
include folders are those of the libraries, whose headers say their versions.
"""

import fnmatch
import hashlib
import json
import os
import subprocess
import sys
import time
from dataclasses import dataclass


@dataclass
class Part:
    """Somebody's work, and where in the package it is. NOTICE.md says the same in words."""
    name: str
    supplier: str
    licence: str
    files: tuple  # patterns of the files that it is
    linked_into: tuple = ()  # files of Brennet that have it in them


# The first that has a file counts.
PARTS = (
    Part("Qt", "Organization: The Qt Company Ltd. and other contributors", "LGPL-3.0-only",
         ("bin/Qt5*.dll", "bin/platforms/*", "bin/styles/*")),
    Part("GCC", "Organization: Free Software Foundation, Inc.",
         "GPL-3.0-or-later WITH GCC-exception-3.1", ("bin/libgcc_s_*.dll", "bin/libstdc++-6.dll")),
    Part("mingw-w64", "Organization: The mingw-w64 project", "MIT AND BSD-3-Clause AND ZPL-2.1",
         ("bin/libwinpthread-1.dll",)),
    Part("CLI11", "Organization: University of Cincinnati", "BSD-3-Clause", (),
         ("bin/brennet.exe",)),
    Part("JSON for Modern C++", "Person: Niels Lohmann", "MIT", (), ("bin/brennet.exe",)),
    Part("Brennet", "Organization: The authors of Brennet", "LicenseRef-Brennet", ("*",)),
)

# What the preprocessor makes of these lines are the versions. The distribution's compiler knows only
# the first number of its own.
VERSIONS = """#include <_mingw.h>
#include <QtCore/qconfig.h>
#include <CLI/Version.hpp>
#include <nlohmann/detail/abi_macros.hpp>
Qt=QT_VERSION_STR
GCC=__GNUC__
mingw-w64=__MINGW64_VERSION_MAJOR.__MINGW64_VERSION_MINOR.__MINGW64_VERSION_BUGFIX
CLI11=CLI11_VERSION
JSON for Modern C++=NLOHMANN_JSON_VERSION_MAJOR.NLOHMANN_JSON_VERSION_MINOR.NLOHMANN_JSON_VERSION_PATCH
"""


def versions_of(compiler, folders):
    """The version of each part but our own, by its name."""
    command = [compiler, "-x", "c++", "-E", "-P", *(f"-I{folder}" for folder in folders), "-"]
    text = subprocess.run(command, input=VERSIONS, capture_output=True, check=True,
                          encoding="utf-8").stdout
    names = [part.name for part in PARTS]
    found = dict(line.split("=", 1) for line in text.splitlines() if line.split("=")[0] in names)
    return {name: version.replace('"', "").replace(" ", "") for name, version in found.items()}


def files_of(package):
    """The names of all files below a folder, sorted."""
    names = (os.path.relpath(os.path.join(folder, file), package).replace(os.sep, "/")
             for folder, _, files in os.walk(package) for file in files)
    return sorted(names)


def checksum(package, name, algorithm):
    with open(os.path.join(package, name), "rb") as file:
        return hashlib.new(algorithm, file.read()).hexdigest()


def part_of(name):
    return next(part for part in PARTS if any(fnmatch.fnmatch(name, one) for one in part.files))


def identifier(name):
    return "SPDXRef-" + "".join(letter if letter.isalnum() else "-" for letter in name)


def package_entry(part, version, checksums):
    entry = {
        "SPDXID": identifier(part.name), "name": part.name, "versionInfo": version,
        "supplier": part.supplier, "downloadLocation": "NOASSERTION",
        "filesAnalyzed": bool(checksums), "licenseConcluded": part.licence,
        "licenseDeclared": part.licence, "copyrightText": "NOASSERTION",
    }
    if checksums:
        joined = "".join(sorted(checksums)).encode()
        entry["packageVerificationCode"] = {
            "packageVerificationCodeValue": hashlib.sha1(joined).hexdigest()}
    return entry


def file_entry(package, name):
    isLicence = name.startswith("licences/")
    return {
        "SPDXID": identifier("File-" + name), "fileName": "./" + name,
        "checksums": [{"algorithm": algorithm.upper(),
                       "checksumValue": checksum(package, name, algorithm)}
                      for algorithm in ("sha1", "sha256")],
        "licenseConcluded": "NOASSERTION" if isLicence else part_of(name).licence,
        "copyrightText": "NOASSERTION",
    }


def relation(one, kind, other):
    return {"spdxElementId": one, "relationshipType": kind, "relatedSpdxElement": other}


def relations(files):
    yield relation("SPDXRef-DOCUMENT", "DESCRIBES", identifier("Brennet"))
    for name in files:
        yield relation(identifier(part_of(name).name), "CONTAINS", identifier("File-" + name))
    for part in PARTS:
        for name in part.linked_into:
            yield relation(identifier("File-" + name), "STATIC_LINK", identifier(part.name))
        if part.name != "Brennet" and not part.linked_into:
            yield relation(identifier("Brennet"), "DEPENDS_ON", identifier(part.name))


def bill_of_materials(package, version, versions):
    files = files_of(package)
    entries = []
    for part in PARTS:
        own = [checksum(package, name, "sha1") for name in files if part_of(name) is part]
        entries.append(package_entry(part, versions.get(part.name, version), own))
    created = time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"])))
    whole = hashlib.sha256("".join(checksum(package, name, "sha256") for name in files).encode())
    return {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"brennet-sdk-{version}",
        "documentNamespace": f"urn:brennet:sdk:{version}:{whole.hexdigest()}",
        "creationInfo": {"created": created, "creators": ["Tool: sdk_inventory.py"]},
        "hasExtractedLicensingInfos": [{
            "licenseId": "LicenseRef-Brennet", "name": "Brennet",
            "extractedText": "All rights reserved by the authors of Brennet."}],
        "packages": entries,
        "files": [file_entry(package, name) for name in files],
        "relationships": list(relations(files)),
    }


def write(package, name, text):
    with open(os.path.join(package, name), "w", encoding="utf-8", newline="\n") as file:
        file.write(text)


def main():
    package, version, compiler, *folders = sys.argv[1:]
    versions = versions_of(compiler, folders)
    unknown = [part.name for part in PARTS[:-1] if not versions.get(part.name, "")[:1].isdigit()]
    if unknown:
        sys.exit(f"brennet: the headers do not say the versions of {', '.join(unknown)}")
    bill = bill_of_materials(package, version, versions)
    write(package, "sbom.spdx.json", json.dumps(bill, indent=1) + "\n")
    write(package, "SHA256SUMS", "".join(
        f"{checksum(package, name, 'sha256')}  {name}\n" for name in files_of(package)))


if __name__ == "__main__":
    main()
