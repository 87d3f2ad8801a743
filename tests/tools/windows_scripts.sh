#!/usr/bin/env bash
# Checks that the scripts behind `make windows` and `make test-windows` end with one clear line and
# leave nothing half-made when something is missing: windows_scripts.sh CHECKOUT
set -euo pipefail

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
# A copy, because not everybody may read every checkout.
cp -r "$1/tools" "$folder/tools"
scripts=$folder/tools/windows
export BRENNET_TOOLCHAIN_DIR=$folder/toolchain
export HOME=$folder

failures=0
fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# refuses MESSAGE COMMAND...: the command fails, and its last line says so in our words.
refuses() {
  local message=$1 status=0
  shift
  "$@" >"$folder/out" 2>"$folder/err" 9>&- || status=$?
  [[ $status == 1 ]] || fail "exit status $status, not 1: $*"
  [[ $(tail -n 1 "$folder/err") == brennet:*"$message"* ]] ||
    fail "no line says \"$message\": $* ($(tail -n 3 "$folder/err"))"
}

# Nothing but the lock and the log of a failure is in the toolchain folder.
is_clean() {
  local left
  left=$(find "$BRENNET_TOOLCHAIN_DIR" -mindepth 1 -maxdepth 1 ! -name lock ! -name failed.log)
  [[ -z $left ]] || fail "left behind: $left"
}

# Commands that stand before the real ones.
stand_in() { # NAME BODY
  mkdir -p "$folder/bin"
  printf '#!/bin/sh\n%s\n' "$2" >"$folder/bin/$1"
  chmod +x "$folder/bin/$1"
}
without_stand_ins() { rm -rf "$folder/bin"; }
with_stand_ins() { env PATH="$folder/bin:$PATH" "$@"; }

# A toolchain folder that cannot be one.
refuses 'must be an absolute path' env BRENNET_TOOLCHAIN_DIR=relative "$scripts/qt.sh"
touch "$folder/file"
refuses 'Cannot write to the folder' env BRENNET_TOOLCHAIN_DIR="$folder/file" "$scripts/qt.sh"
refuses 'Cannot write to the folder' env BRENNET_TOOLCHAIN_DIR="$folder/file/in" "$scripts/wine.sh"

# No room.
stand_in df 'echo Avail; echo 100'
refuses 'needs 3000 MiB of free space and has 100' with_stand_ins "$scripts/qt.sh"
is_clean
without_stand_ins

# No network, and a distribution without the source.
stand_in apt-get 'case "$*" in
  indextargets*) echo "http://none.invalid stable $(. /etc/os-release; echo $VERSION_CODENAME) main" ;;
  *) echo "E: no network" >&2; exit 100 ;;
esac'
refuses 'the package index cannot be fetched; is there a network?' \
  with_stand_ins "$scripts/qt.sh"
is_clean
stand_in apt-get 'case "$*" in
  indextargets*) echo "http://none.invalid stable $(. /etc/os-release; echo $VERSION_CODENAME) main" ;;
  *" source "*) echo "E: Unable to find a source package" >&2; exit 100 ;;
esac'
refuses 'the package qtbase-opensource-src cannot be fetched' with_stand_ins "$scripts/qt.sh"
is_clean
stand_in apt-get 'case "$*" in
  indextargets*) echo "http://none.invalid stable $(. /etc/os-release; echo $VERSION_CODENAME) main" ;;
esac'
refuses 'this distribution has no qtbase-opensource-src 5.15.8' with_stand_ins "$scripts/qt.sh"
is_clean
stand_in apt-get 'exit 0'
refuses 'apt knows no package source' with_stand_ins "$scripts/qt.sh"
is_clean
without_stand_ins

# What an interrupted run left is cleared away, what is damaged is named and kept.
mkdir "$BRENNET_TOOLCHAIN_DIR/unfinished.abcdef"
qt=$("$scripts/qt.sh" --folder)
mkdir -p "$qt/bin"
refuses "$qt is damaged (bin/Qt5Core.dll is missing); remove that folder" "$scripts/qt.sh"
[[ ! -e $BRENNET_TOOLCHAIN_DIR/unfinished.abcdef ]] || fail 'an interrupted run is not cleared away'
rm -r "$qt"

# Wine that is not set up, and nobody to set it up.
refuses 'Wine is not set up' "$scripts/run.sh" program.exe
if [[ $EUID -eq 0 ]]; then
  chmod 755 "$folder"
  chown -R 65534 "$folder"
  as_nobody=(setpriv --reuid=65534 --regid=65534 --clear-groups)
else
  as_nobody=()
fi
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
refuses 'needs root; run the same command as root' with_stand_ins "${as_nobody[@]}" \
  "$scripts/wine.sh"
is_clean

exit $((failures > 0))
