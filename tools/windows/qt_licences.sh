#!/usr/bin/env bash
# Collects whose work is in the DLLs of Qt, for those who get them:
# tools/windows/qt_licences.sh SOURCE DEST
# tools/windows/qt_licences.sh --parts
#
# SOURCE is the source of Qt, DEST a folder that is made. It gets attributions.txt, which names the
# parts of others and has their licences in full, and LICENSE.LGPLv3 and LICENSE.GPL3, the ones of
# Qt itself. --parts only prints which parts those are, a name in each line.
set -euo pipefail

# The parts by the names that the source gives them: those that the options of qt.sh let into the
# DLLs, and those that stay out, by patterns. A part that neither list has ends the script, so that
# another version of Qt brings nothing that nobody looked at.
built=(
  # Core
  doubleconversion easing freebsd harfbuzz md4 md5 pcre2 pcre2-sljit psl qbig5codecs qbkcodec
  qeucjpcodec qeuckrcodec qjiscodec qsjiscodec qtsciicodec rfc6234 sha1 sha3_endian sha3_keccak
  tinycbor unicode-character-database unicode-cldr zlib
  # Gui, and the plugins, which take the library of fonts
  aglfn freetype freetype-bdf freetype-pcf freetype-zlib grayraster harfbuzz-ng
  icc-sRGB-color-profile libpng md4c smooth-scaling-algorithm webgradients xserverhelper
)
left_out=(
  # for other systems and processors
  android-gradle-wrapper android-native-style cocoa-platform-plugin dejayvu forkfd pixman
  qeventdispatcher_cf vera_font xcb-xinput
  # switched off
  angle angle-arrayboundsclamper angle-khronos angle-murmurhash angle-systeminfo angle-trace_event
  libdbus-1-headers libjpeg opengl-es2-headers opengl-headers '[Vv]ulkan*'
  # for tests
  cycle linuxperf valgrind
)

die() {
  echo "brennet: $*" >&2
  exit 1
}

# Prints the text; ends with one line on standard error where it cannot be whole.
collect() { # SOURCE
  BUILT="${built[*]}" LEFT_OUT="${left_out[*]}" PYTHONIOENCODING=utf-8 python3 - "$1" <<'PYTHON'
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
PYTHON
}

main() {
  if [[ ${1:-} == --parts ]]; then
    printf '%s\n' "${built[@]}"
    return
  fi
  [[ $# -eq 2 ]] || { echo "usage: tools/windows/qt_licences.sh SOURCE DEST" >&2 && exit 2; }
  local source=$1 dest=$2 file
  [[ -d $source/src ]] || die "$source is no source of Qt."
  for file in LICENSE.LGPLv3 LICENSE.GPL3; do
    [[ -s $source/$file ]] || die "the source of Qt has no $file."
  done
  mkdir "$dest" 2>/dev/null || die "$dest cannot be made; it must be a new folder."
  cp "$source/LICENSE.LGPLv3" "$source/LICENSE.GPL3" "$dest/"
  if ! collect "$source" >"$dest/attributions.txt"; then
    rm -rf "$dest"
    exit 1
  fi
}

main "$@"
