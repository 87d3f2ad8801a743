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
  BUILT="${built[*]}" LEFT_OUT="${left_out[*]}" PYTHONIOENCODING=utf-8 \
    python3 -B "$(dirname "$0")/qt_licences.py" "$1"
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
