#!/usr/bin/env bash
# Takes each DLL and the platform plugin away from the package, and expects the missing one's name:
# missing.sh WORK PACKAGE SAMPLE_DATA EMULATOR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tests/sdk/lib.sh
source "$here/lib.sh"

work=$1 package=$2 data=$3 emulator=$4
host=(host/brennet-host.exe --settings KeyInfo.xml)

empty_folder "$work"
cd "$work"
cp "$data/KeyInfo.xml" .

# A fresh copy of the package's programs in host/, with the folders below.
copy_host() {
  empty_folder host
  cp -R "$package"/bin/. host/
}

# compile NAME TEXT DLL...: makes a DLL from that C++ text, which needs the other DLLs.
compile() {
  local name=$1 text=$2
  shift 2
  quietly i686-w64-mingw32-g++-posix -shared -x c++ - -x none "$@" -o "made/$name" <<<"$text"
}

# If something is missing that the host itself needs, the loader names it: Windows in a box, Wine in
# a line. That is every DLL except the library and the checking layer.
for file in "$package"/bin/*.dll; do
  name=${file##*/}
  [[ $name != Brennet*.dll ]] || continue
  copy_host
  rm "host/$name"
  run 53 "$emulator" "${host[@]}"
  says "Library $name (which is needed by" err
done

# From here on, the messages are the host's own.
export WINEDEBUG=-all

# The library itself.
copy_host
rm host/Brennet.dll
run 2 "$emulator" "${host[@]}"
says 'there is no library' err
says 'host\Brennet.dll' err
run 2 "$emulator" "${host[@]}" --library nowhere/Other.dll
says 'there is no library nowhere\Other.dll' err

# The plugin that windows need, and nothing else.
copy_host
rm host/platforms/qwindows.dll
mkdir pictures
for way in --dialog '--pictures pictures'; do
  # shellcheck disable=SC2086  # an option and its value
  BRENNET_SCREEN=1 run 2 timeout 60 "$emulator" "${host[@]}" $way
  says 'Missing beside this program: platforms\qwindows.dll' err
done
run 0 "$emulator" "${host[@]}"

# It may be where a qt.conf says.
mkdir -p elsewhere/platforms
cp "$package/bin/platforms/qwindows.dll" elsewhere/platforms/
printf '[Paths]\nPlugins = ../elsewhere\n' >host/qt.conf
run 0 "$emulator" "${host[@]}" --pictures pictures
says 'settings.png' err

# What the library needs, and what that needs: three DLLs stand in for it.
mkdir made
compile lost.dll 'extern "C" __declspec(dllexport) int lost() { return 1; }'
compile middle.dll 'extern "C" int lost();
  extern "C" __declspec(dllexport) int middle() { return lost(); }' made/lost.dll
compile Brennet.dll 'extern "C" int middle();
  extern "C" __declspec(dllexport) int needy() { return middle(); }' made/middle.dll
copy_host
cp made/*.dll host/
run 2 "$emulator" "${host[@]}"
says 'Brennet.dll exports no GetBrennetPtr' err
! grep -q Missing err || fail "nothing is missing: $(cat err)"

rm host/lost.dll
run 2 "$emulator" "${host[@]}"
says 'Missing beside this program: lost.dll (needed by middle.dll)' err
says 'host\Brennet.dll cannot be loaded' err
[[ $(grep -o 'needed by' err | wc -l) == 1 ]] || fail "more is named than is missing: $(cat err)"
rm host/middle.dll
run 2 "$emulator" "${host[@]}"
says 'Missing beside this program: middle.dll (needed by Brennet.dll)' err

# Damaged libraries: text, and the stand-in cut off in its headers and in its sections.
echo 'no library at all' >host/Brennet.dll
run 2 "$emulator" "${host[@]}"
for size in 0 63 100 300 600 2000; do
  head -c "$size" made/Brennet.dll >host/Brennet.dll
  run 2 "$emulator" "${host[@]}"
  says 'Brennet.dll' err
done
