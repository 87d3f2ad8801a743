#!/usr/bin/env bash
# Builds a host for Microsoft's C++ ABI with LLVM's tools and links it with the package's
# Brennet.lib: msvc.sh WORK PACKAGE EMULATOR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tests/sdk/lib.sh
source "$here/lib.sh"

work=$1 package=$2 emulator=$3

empty_folder "$work"
cd "$work"
quietly clang++ --target=i686-pc-windows-msvc -std=c++11 -Wall -Wextra -Werror -O1 \
  -ffreestanding -fno-exceptions -fno-rtti -nostdlibinc -I "$here/msvc" -I "$package/include" \
  -c "$here/msvc/main.cpp" -o main.obj
quietly lld-link /machine:x86 /subsystem:console /entry:start /nodefaultlib /safeseh:no \
  /out:host.exe main.obj "$package/lib/Brennet.lib" /usr/i686-w64-mingw32/lib/libkernel32.a
llvm-readobj --coff-imports host.exe >imports
says 'Name: Brennet.dll' imports
says 'Symbol: GetBrennetPtr' imports

cp "$package"/bin/*.dll "$package/samples/data/KeyInfo.xml" .
run 0 "$emulator" host.exe
says 'all slots answered' out
grep -q '<LastSaveTime>8</LastSaveTime>' KeyInfo.xml || fail 'the settings were not saved'
