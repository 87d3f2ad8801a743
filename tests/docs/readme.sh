#!/usr/bin/env bash
# Builds the host of README.md and runs it: readme.sh WORK CHECKOUT BIN EMULATOR
# BIN is the folder with the library and all DLLs that it needs.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tests/sdk/lib.sh
source "$here/../sdk/lib.sh"

work=$1 checkout=$2 bin=$3 emulator=$4

empty_folder "$work"
cd "$work"
"$here/block.sh" "$checkout/README.md" cpp 1 >host.txt
grep '^#include' host.txt >readme_includes.h
grep -v '^#include' host.txt >readme_body.h
# In the oldest language that the headers promise. Some compilers warn of the cast of
# GetProcAddress's answer where they are asked for more warnings.
quietly i686-w64-mingw32-g++-posix -std=c++11 -Wall -Werror -static -I "$checkout/host/include" \
  -I "$checkout/model/include" -I . \
  "$here/readme/main.cpp" -o host.exe
cp "$bin"/*.dll "$checkout/samples/data/KeyInfo.xml" "$checkout/samples/data/Tollamere.reg" .
run 0 "$emulator" host.exe
says 'save time: 1404738022, feature: on' out
