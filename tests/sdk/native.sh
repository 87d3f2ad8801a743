#!/usr/bin/env bash
# Installs the native build, moves what was installed, and builds a host with it:
# native.sh WORK BUILD CONFIG VERSION SAMPLE_DATA [CXX_FLAGS]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tests/sdk/lib.sh
source "$here/lib.sh"

work=$1 build=$2 config=$3 version=$4 data=$5 flags=${6-}
major=${version%%.*}

empty_folder "$work"
cd "$work"
quietly cmake --install "$build" --prefix "$work/first"
sed "s/CONFIG/${config,,}/; s/MAJOR/$major/; s/VERSION/$version/" "$here/native.list" |
  LC_ALL=C sort | expect_files first
expect_relocatable first
readelf --dynamic --wide first/lib/libbrennet.so >dynamic
says "Library soname: [libbrennet.so.$major]" dynamic

mv first 'another place'
package="$work/another place"
quietly cmake -G Ninja -S "$here/consumer" -B host -DCMAKE_PREFIX_PATH="$package" \
  -DBRENNET_WANTED="$version" -DCMAKE_CXX_FLAGS="$flags"
quietly cmake --build host
[[ $(cat host/library.txt) == "$package/lib/libbrennet.so.$version" ]] ||
  fail "another library was found: $(cat host/library.txt)"

build_contract_host -DCMAKE_PREFIX_PATH="$package" -DCMAKE_CXX_FLAGS="$flags"
run 0 contract/my-host

# The profile is the test's own, and so is the game's preference file in it.
game="home/Documents/Warcraft III"
mkdir -p "$game" run
cp "$data/War3Preferences.txt" "$game/"
cp "$data/KeyInfo.xml" run/
cd run
run 0 env HOME="$work/home" "$work/host/linked"
says 'loaded: 1, save time: 1404738022, filled: 1' out
cd ..
grep -q 'customkeys=2' "$game/War3Preferences.txt" || fail 'the preference file does not follow'

quietly cmake -G Ninja -S "$here/consumer" -B older -DCMAKE_PREFIX_PATH="$package" \
  -DBRENNET_WANTED="$major.0"
expect_refused "compatible with requested version \"$((major + 1)).0\"" refused-major \
  -DCMAKE_PREFIX_PATH="$package" -DBRENNET_WANTED="$((major + 1)).0"
expect_refused "compatible with requested version \"$major.999\"" refused-newer \
  -DCMAKE_PREFIX_PATH="$package" -DBRENNET_WANTED="$major.999"
expect_refused 'Brennet has no component Extra.' refused-component \
  -DCMAKE_PREFIX_PATH="$package" -DBRENNET_WANTED='COMPONENTS;Extra'
