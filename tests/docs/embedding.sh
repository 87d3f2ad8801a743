#!/usr/bin/env bash
# Runs the host of docs/embedding.md, first without the library, then beside it, with somebody who
# confirms the dialog: embedding.sh WORK HOST LIBRARY SAMPLE_DATA
set -euo pipefail

work=$1 host=$2 library=$3 data=$4

fail() {
  echo "FAILED: $*"
  cat "$work/out" "$work/err"
  exit 1
}

run() { # STATUS
  local status=0
  "$work/host" >"$work/out" 2>"$work/err" || status=$?
  [[ $status == "$1" ]] || fail "exit status $status, not $1"
}

rm -rf "$work"
mkdir -p "$work/home/Documents/Warcraft III"
cp "$host" "$work/host"
export HOME=$work/home QT_QPA_PLATFORM=offscreen BRENNET_REGISTRY=$work/registry.reg
# What the libraries below keep when a program ends is no leak of ours.
printf 'leak:%s\n' libfontconfig libqoffscreen libQt5 >"$work/leaks"
export LSAN_OPTIONS=suppressions=$work/leaks:print_suppressions=0

run 2
grep -q 'Brennet.dll cannot be used: ' "$work/err" || fail 'it does not say what is missing'

# The names are those of Windows, and the loader minds none.
cp "$library" "$work/Brennet.dll"
run 0
grep -q 'DotA 7: no' "$work/out" || fail 'DotA 7 without its keys'
grep -q '<KeyInfo' "$work/KeyInfo.xml" || fail 'the settings were not saved'

rm -f "$work/KeyInfo.xml"
cp "$data/Tollamere.reg" "$work/"
run 0
grep -q 'DotA 7: yes' "$work/out" || fail 'no DotA 7'
# In a pipe, grep -q may end before tr has written all, which would count as a failure.
registry=$(tr -d '\0' <"$work/registry.reg")
[[ $registry == *Tollamere* ]] || fail 'the registry did not get the first keys'
