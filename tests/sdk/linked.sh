#!/usr/bin/env bash
# Links a host with the package's import library for GNU linkers, compiles the host of the contract,
# and tries builds for which the package is not made:
# linked.sh WORK PACKAGE CHECKOUT VERSION EMULATOR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tests/sdk/lib.sh
source "$here/lib.sh"

work=$1 package=$2 checkout=$3 version=$4 emulator=$5
major=${version%%.*}
found=(-DBrennet_DIR="$package/lib/cmake/Brennet")
windows=(--toolchain "$checkout/cmake/mingw-i686.cmake")

empty_folder "$work"
cd "$work"
quietly cmake -G Ninja -S "$here/consumer" -B linked "${windows[@]}" "${found[@]}" \
  -DBRENNET_WANTED="$version"
quietly cmake --build linked
[[ $(cat linked/library.txt) == "$package/bin/Brennet.dll" ]] ||
  fail "another library was found: $(cat linked/library.txt)"
llvm-readobj --coff-imports linked/linked.exe >imports
says 'Name: Brennet.dll' imports
cp "$package"/bin/*.dll linked/
cp "$package/samples/data/KeyInfo.xml" .
run 0 "$emulator" linked/linked.exe
says 'loaded: 1, save time: 1404738022, filled: 1' out

build_contract_host "${windows[@]}" "${found[@]}"
cp "$package"/bin/*.dll contract/
run 0 "$emulator" contract/my-host.exe
rm contract/*.dll

# The whole host of the contract, in the oldest language that the headers promise.
"$here/../docs/block.sh" "$package/CONTRACT.md" cpp 2 >contract/host.cpp
quietly i686-w64-mingw32-g++-posix -std=c++11 -Wall -Wextra -Werror -static \
  -I "$package/include" contract/host.cpp -o contract/host.exe
run 2 "$emulator" contract/host.exe
says 'cannot be loaded: error 126' err
cp "$package"/bin/*.dll contract/
run 0 "$emulator" contract/host.exe
says 'loaded: yes, save time: 1404738022, feature: on' out

# Any version up to this one with the same major number is found.
quietly cmake -G Ninja -S "$here/consumer" -B older "${windows[@]}" "${found[@]}" \
  -DBRENNET_WANTED="$major.0"

# The 32-bit library for a 64-bit program, newer versions, a component, another system.
expect_refused "version: $version (32bit)" refused-64 "${found[@]}"
for wanted in "$major.999" "$((major + 1)).0"; do
  expect_refused "compatible with requested version \"$wanted\"" "refused-$wanted" \
    "${windows[@]}" "${found[@]}" -DBRENNET_WANTED="$wanted"
done
expect_refused 'Brennet has no component Extra.' refused-component "${windows[@]}" "${found[@]}" \
  -DBRENNET_WANTED='COMPONENTS;Extra'
mkdir system
printf '%s\n' 'cmake_minimum_required(VERSION 3.22)' 'project(System LANGUAGES NONE)' \
  'find_package(Brennet REQUIRED)' >system/CMakeLists.txt
expect_refused 'This package holds the library for Windows.' refused-system "${found[@]}" \
  -S system
