#!/usr/bin/env bash
# Builds the sample hosts of the package as their CMakeLists.txt say, and runs them:
# sample.sh WORK PACKAGE CHECKOUT QT_DIR EMULATOR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tests/sdk/lib.sh
source "$here/lib.sh"

work=$1 package=$2 checkout=$3 qt_dir=$4 emulator=$5

empty_folder "$work"
cd "$work"
quietly cmake -G Ninja -S "$package/samples/host" -B build -DCMAKE_BUILD_TYPE=Release \
  --toolchain "$checkout/cmake/mingw-i686.cmake" -DBRENNET_QT_DIR="$qt_dir"
quietly cmake --build build

# The DLLs are beside it, as in the package; the shipped program is there for comparison.
cp -R "$package/bin" shipped
cp -R "$package/bin" built
cp build/brennet-host.exe built/
cp "$package/samples/data/KeyInfo.xml" .

run 0 "$emulator" built/brennet-host.exe --settings KeyInfo.xml --block
says 'Loaded           yes' out
says 'Save time        1404738022' out
says '1806  DisableLeftAltShowHP' out
mv out built.out
run 0 "$emulator" shipped/brennet-host.exe --settings KeyInfo.xml --block
cmp built.out out || fail 'the shipped program answers differently'

run 1 "$emulator" built/brennet-host.exe --settings missing.xml
says 'no, defaults are in place' out
run 0 "$emulator" built/brennet-host.exe --settings KeyInfo.xml --enable off --save-time 42
run 0 "$emulator" built/brennet-host.exe --settings KeyInfo.xml
says 'Save time        42' out
says 'Feature          off' out

# The host in one file, with the library and with the checking layer in its place.
quietly cmake -G Ninja -S "$package/samples/minimal" -B minimal -DCMAKE_BUILD_TYPE=Release \
  --toolchain "$checkout/cmake/mingw-i686.cmake" -DBRENNET_QT_DIR="$qt_dir"
quietly cmake --build minimal
cp minimal/minimal-host.exe built/
for library in Brennet.dll BrennetCheck.dll; do
  run 0 "$emulator" built/minimal-host.exe "built/$library" KeyInfo.xml "$package/samples/data" \
    --no-window
  says 'Hotkeys are off;' out
  says 'saved at 42.' out
done
says 'BrennetCheck: summary: 0 findings' err
