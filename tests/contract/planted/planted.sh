#!/usr/bin/env bash
# Runs the sample host in a folder with a decoy for everything that it, the library and Qt might
# load or start by a bare name:
# planted.sh WORK BIN SAMPLE_DATA PLANTED_DLL PLANTED_EXE OBJDUMP EMULATOR
#
# None of the decoys may run. That they would report it is seen where one does run: beside the
# program, whose folder is trusted.
set -euo pipefail

work=$1 bin=$2 data=$3 dll=$4 exe=$5 objdump=$6 emulator=$7

fail() {
  echo "FAILED: $*"
  exit 1
}

# What a program loads when it starts, and what Qt's plugins and the system load later, by name.
imports() {
  find "$bin" \( -name '*.dll' -o -name '*.exe' \) -exec "$objdump" -p {} + 2>/dev/null |
    sed -n 's/.*DLL Name: //p'
}
loaded_later=(Brennet.dll d3d9.dll d3dcompiler_47.dll imm32.dll libEGL.dll libGLESv2.dll
  opengl32.dll opengl32sw.dll shcore.dll shfolder.dll tablet.dll wintab32.dll wtsapi32.dll)
plugins=(platforms/qwindows.dll platforms/qoffscreen.dll styles/qwindowsvistastyle.dll
  imageformats/qico.dll iconengines/qsvgicon.dll platformthemes/qtheme.dll)

rm -rf "$work"
mkdir -p "$work/app" "$work/data"
cp "$data/KeyInfo.xml" "$work"
cp "$data/Tollamere.reg" "$work/data"
cp -r "$bin"/*.dll "$bin/platforms" "$bin/styles" "$bin/brennet-host.exe" "$work/app"
cd "$work"
mapfile -t names < <(imports | sort -fu)
((${#names[@]} >= 15)) || fail "the imports cannot be read: ${names[*]}"
for name in "${names[@]}" "${loaded_later[@]}"; do cp "$dll" "$name"; done
for folder in . plugins; do
  for name in "${plugins[@]}"; do
    mkdir -p "$folder/${name%/*}"
    cp "$dll" "$folder/$name"
  done
done
for name in regedit.exe brennet-host.exe; do cp "$exe" "$name"; done

# The registry has no keys of DotA 7, so regedit.exe imports them.
run() {
  rm -rf planted.log pictures
  mkdir pictures
  "$emulator" app/brennet-host.exe --settings KeyInfo.xml --data data/ --pictures pictures \
    >out 2>&1 || fail "the host does not run: $(cat out)"
  ls pictures/*.png >/dev/null || fail "there was no dialog"
}

run
[[ ! -e planted.log ]] || fail "from the current folder: $(tr -d '\0' <planted.log)"

cp "$dll" app/dwmapi.dll
run
[[ -e planted.log ]] || fail "what is planted does not tell of itself"
