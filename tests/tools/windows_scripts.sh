#!/usr/bin/env bash
# Checks that the scripts behind `make windows` and `make test-windows` end with one clear line and
# leave nothing half-made when something is missing: windows_scripts.sh CHECKOUT
set -euo pipefail

# shellcheck source=tests/tools/lib.sh
source "$(dirname "$0")/lib.sh" "$1"

# A toolchain folder that cannot be one.
refuses 'must be an absolute path' env BRENNET_TOOLCHAIN_DIR=relative "$scripts/qt.sh"
touch "$folder/file"
refuses 'Cannot write to the folder' env BRENNET_TOOLCHAIN_DIR="$folder/file" "$scripts/qt.sh"
refuses 'Cannot write to the folder' env BRENNET_TOOLCHAIN_DIR="$folder/file/in" "$scripts/wine.sh"

refuses 'has blanks or signs' env BRENNET_TOOLCHAIN_DIR="$folder/a b" "$scripts/qt.sh"
refuses 'has blanks or signs' env BRENNET_TOOLCHAIN_DIR="$folder/a:b" "$scripts/wine.sh"
[[ ! -e "$folder/a b" && ! -e "$folder/a:b" ]] || fail 'a folder of that name is made'
with_slashes=$(BRENNET_TOOLCHAIN_DIR=$BRENNET_TOOLCHAIN_DIR// "$scripts/qt.sh" --folder)
[[ $with_slashes == "$("$scripts/qt.sh" --folder)" ]] || fail "another name: $with_slashes"
in_home=$(env -u BRENNET_TOOLCHAIN_DIR XDG_CACHE_HOME=relative "$scripts/qt.sh" --folder)
[[ $in_home == "$folder/.cache/brennet/"* ]] || fail "not in the home folder: $in_home"

# No room.
stand_in df 'echo Avail; echo 100'
refuses 'needs 3000 MiB of free space and has 100;' with_stand_ins "$scripts/qt.sh"
refuses 'needs 2500 MiB of free space and has 100;' with_stand_ins "$scripts/wine.sh"
refuses 'needs 200 MiB of free space and has 100;' with_stand_ins "$scripts/peers.sh"
is_clean
without_stand_ins

# No network, and a distribution without the source.
stand_in apt-get 'case "$*" in
  indextargets*) echo "http://none.invalid stable $(. /etc/os-release; echo $VERSION_CODENAME) main" ;;
  *) echo "E: no network" >&2; exit 100 ;;
esac'
refuses '"Qt: fetch the package index" failed. Is there a network?' with_stand_ins "$scripts/qt.sh"
refuses '"Peers: fetch the package index" failed. Is there a network?' \
  with_stand_ins "$scripts/peers.sh"
is_clean
stand_in apt-get 'case "$*" in
  indextargets*) echo "http://none.invalid stable $(. /etc/os-release; echo $VERSION_CODENAME) main" ;;
  *" source "*) echo "E: Unable to find a source package" >&2; exit 100 ;;
esac'
refuses '"Qt: fetch the source of Qt 5.15.8, 50 MB" failed. Is there a network?' \
  with_stand_ins "$scripts/qt.sh"
refuses '"Peers: fetch the sources of the peers, 2 MB" failed. Is there a network?' \
  with_stand_ins "$scripts/peers.sh"
is_clean
stand_in apt-get 'case "$*" in
  indextargets*) echo "http://none.invalid stable $(. /etc/os-release; echo $VERSION_CODENAME) main" ;;
esac'
refuses 'This distribution has no qtbase-opensource-src 5.15.8' with_stand_ins "$scripts/qt.sh"
is_clean
stand_in apt-get 'exit 0'
refuses 'apt knows no package source' with_stand_ins "$scripts/qt.sh"
is_clean
without_stand_ins

# Wine that is not set up, and nobody to set it up.
refuses 'Wine is not set up' "$scripts/run.sh" program.exe
[[ $EUID -ne 0 ]] || chown -R 65534 "$folder"
stand_in dpkg-query 'echo not-installed'
stand_in sudo 'exit 1'
refuses 'Packages are missing and take root to install; please run: sudo apt-get install' \
  with_stand_ins "${as_nobody[@]}" "$scripts/../setup.sh" wine
stand_in sudo 'shift; exec "$@"'
stand_in apt-get 'echo "E: no network" >&2; exit 100'
refuses 'could not be installed; is there a network? Missing: arch-test mmdebstrap' \
  with_stand_ins "${as_nobody[@]}" "$scripts/../setup.sh" wine
stand_in wineboot 'exit 1'
stand_in wineserver 'exit 1'
refuses 'needs root; run the same command as root' with_stand_ins "${as_nobody[@]}" "$scripts/wine.sh"
is_clean

exit $((failures > 0))
