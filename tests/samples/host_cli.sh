#!/usr/bin/env bash
# Checks exit statuses, output and written files of the sample host:
# host_cli.sh HOST_PROGRAM LIBRARY SAMPLE_DATA
set -euo pipefail

host=$1
library=$2
samples=$3

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
# Nothing may reach the real profile, whatever the host does.
export HOME=$folder/home
game="$folder/profile/Documents/Warcraft III"
mkdir -p "$HOME" "$game"
cp "$samples/KeyInfo.xml" "$folder/KeyInfo.xml"
cp "$samples/War3Preferences.txt" "$game/War3Preferences.txt"

failures=0
fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# run STATUS ARGUMENT...: runs the host on the library and expects the exit status.
run() {
  local expected=$1 status=0
  shift
  "$host" --library "$library" "$@" >"$folder/out" 2>"$folder/err" || status=$?
  [[ $status == "$expected" ]] || fail "exit status $status, not $expected: $* ($(cat "$folder/err"))"
}
says() { grep -qF -- "$1" "$folder/out" || fail "the output does not say: $1"; }
complains() { grep -qF -- "$1" "$folder/err" || fail "no message says: $1"; }

# Bad usage.
run 2
complains '--settings FILE is needed'
run 2 --settings "$folder/KeyInfo.xml" --enable maybe
run 2 --settings "$folder/KeyInfo.xml" --save-time -1
run 2 --settings "$folder/KeyInfo.xml" --save-time 4294967296
run 2 --settings "$folder/KeyInfo.xml" --nonsense
run 2 --settings "$folder/KeyInfo.xml" stray
run 2 --settings "$folder/KeyInfo.xml" --apply-block "$folder/missing"
run 2 --settings "$folder/KeyInfo.xml" --save-block "$folder/missing/block"
run 2 --settings "$folder/KeyInfo.xml" --library "$folder/missing.so"

# The library says no.
run 1 --settings "$folder/missing.xml"
complains 'could not be loaded'
says 'no, defaults are in place'
run 1 --settings "$folder/KeyInfo.xml" --enable on
complains 'it is so already'

# Without a profile no preference file is touched.
run 0 --settings "$folder/KeyInfo.xml"
cmp -s "$samples/War3Preferences.txt" "$game/War3Preferences.txt" || fail 'a preference file changed'
[[ -z $(ls -A "$HOME") ]] || fail 'the real profile was touched'

# The block, in words, as bytes and as JSON.
run 0 --settings "$folder/KeyInfo.xml" --profile "$folder/profile" --block \
  --save-block "$folder/block"
says 'Loaded           yes'
says '1806  DisableLeftAltShowHP'
[[ $(wc -c <"$folder/block") == 1807 ]] || fail 'the saved block is no record'
grep -q 'customkeys=2' "$game/War3Preferences.txt" || fail 'the preference file does not follow'
run 0 --settings "$folder/KeyInfo.xml" --json
python3 - "$folder/out" <<'PYTHON' || fail 'the JSON is wrong'
import json
import sys

report = json.load(open(sys.argv[1], encoding="utf-8"))
assert report["loaded"] and report["enabled"] and not report["refusals"]
end = 0
for field in report["block"]:
    assert field["offset"] == end, field
    end += len(field["bytes"]) // 2
assert end == 1807, end
PYTHON

# Handing a block back: unchanged, then with another zoom value (offset 68).
run 1 --settings "$folder/KeyInfo.xml" --apply-block "$folder/block"
complains 'nothing in it differs'
printf '\x5A' | dd of="$folder/block" bs=1 seek=68 conv=notrunc status=none
run 0 --settings "$folder/KeyInfo.xml" --apply-block "$folder/block" --save-time 1700000000
run 0 --settings "$folder/KeyInfo.xml" --block
says 'Save time        1700000000'
grep -E '^ +68  ZoomValue +5a +90$' "$folder/out" >/dev/null || fail 'the zoom value was not taken'
head -c 100 "$folder/block" >"$folder/cut"
run 2 --settings "$folder/KeyInfo.xml" --apply-block "$folder/cut"

# Switching off and on again.
run 0 --settings "$folder/KeyInfo.xml" --profile "$folder/profile" --enable off
says 'Feature          off'
grep -q 'customkeys=0' "$game/War3Preferences.txt" || fail 'the preference file does not follow'
run 0 --settings "$folder/KeyInfo.xml" --enable on

exit $((failures > 0))
