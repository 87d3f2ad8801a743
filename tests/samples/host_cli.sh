#!/usr/bin/env bash
# Checks exit statuses, output and written files of the sample host:
# host_cli.sh WORK_FOLDER SAMPLE_DATA LIBRARY HOST_COMMAND...
#
# The command is the host's program, behind an emulator if it needs one.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
work=$1
samples=$2
library=$3
shift 3
host=("$@")
program=${*: -1}
is_windows() { [[ $program == *.exe ]]; }

mkdir -p "$work"
folder=$(mktemp -d "$work/files.XXXXXX")
trap 'rm -rf "$folder"' EXIT
# Nothing may reach the real profile, whatever the host does.
home=$folder/home
is_windows || export HOME=$home
game="$folder/profile/Documents/Warcraft III"
mkdir -p "$home" "$game"
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
  "${host[@]}" --library "$library" "$@" >"$folder/out.raw" 2>"$folder/err" || status=$?
  tr -d '\r' <"$folder/out.raw" >"$folder/out"
  [[ $status == "$expected" ]] || fail "exit status $status, not $expected: $* ($(cat "$folder/err"))"
}
says() { grep -qF -- "$1" "$folder/out" || fail "the output does not say: $1"; }
complains() { grep -qF -- "$1" "$folder/err" || fail "no message says: $1"; }

# Help goes to standard output, even without a console.
for option in --help -h; do
  run 0 "$option"
  says '--settings <FILE>'
  says 'Print this list.'
  [[ ! -s $folder/err ]] || fail "help complains: $(cat "$folder/err")"
done

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

# Under Windows the profile is the user's own; elsewhere only a given one is touched.
if is_windows; then
  run 2 --settings "$folder/KeyInfo.xml" --profile "$folder/profile"
  complains 'cannot be given under Windows'
  profile=()
else
  profile=(--profile "$folder/profile")
fi
# follows WORD: the preference file has the word, on systems where the host can be given that file.
follows() {
  is_windows || grep -q "$1" "$game/War3Preferences.txt" ||
    fail 'the preference file does not follow'
}
run 0 --settings "$folder/KeyInfo.xml"
cmp -s "$samples/War3Preferences.txt" "$game/War3Preferences.txt" || fail 'a preference file changed'
[[ -z $(ls -A "$home") ]] || fail 'the real profile was touched'

# The block, in words, as bytes and as JSON.
run 0 --settings "$folder/KeyInfo.xml" "${profile[@]}" --block \
  --save-block "$folder/block"
says 'Loaded           yes'
says '1806  DisableLeftAltShowHP'
[[ $(wc -c <"$folder/block") == 1807 ]] || fail 'the saved block is no record'
follows 'customkeys=2'
run 0 --settings "$folder/KeyInfo.xml" --json
python3 -B "$here/check_report.py" "$folder/out" || fail 'the JSON is wrong'

# What a settings file holds that cannot be used.
printf '%s' '<KeyInfo><LastSaveTime>5</LastSaveTime>
<HeroSkillKey><Key id="0">20736</Key>
 <Key id="7">20736</Key></HeroSkillKey></KeyInfo>' >"$folder/twice.xml"
run 0 --settings "$folder/twice.xml"
says 'Not used         line 3, column 2: setting group 1, hero skill 8: Q is hero skill 1'
grep -q 'hero skill 8' "$folder/err" && fail 'what the load tells comes twice'
run 0 --settings "$folder/twice.xml" --json
says '"line 3, column 2: setting group 1, hero skill 8: Q is hero skill 1"'

# Handing a block back: unchanged, then with another zoom value (offset 68).
run 1 --settings "$folder/KeyInfo.xml" --apply-block "$folder/block"
complains 'nothing in it differs'
printf '\x5A' | dd of="$folder/block" bs=1 seek=68 conv=notrunc status=none
run 0 --settings "$folder/KeyInfo.xml" --apply-block "$folder/block" --save-time 1700000000
says 'ZoomValue: 120 -> 90'
run 0 --settings "$folder/KeyInfo.xml" --block
says 'Save time        1700000000'
grep -E '^ +68  ZoomValue +5a +90$' "$folder/out" >/dev/null || fail 'the zoom value was not taken'
head -c 100 "$folder/block" >"$folder/cut"
run 2 --settings "$folder/KeyInfo.xml" --apply-block "$folder/cut"

# Switching off and on again.
run 0 --settings "$folder/KeyInfo.xml" "${profile[@]}" --enable off
says 'Feature          off'
follows 'customkeys=0'
is_windows || says '[Gameplay] customkeys: 2 -> 0'
run 0 --settings "$folder/KeyInfo.xml" --enable on

# The settings dialog, unseen: the host takes a picture of it and changes nothing. If a sanitizer
# looks for leaks, what the libraries below still hold at the end is none of ours.
printf 'leak:%s\n' libfontconfig libqoffscreen libQt5 >"$folder/leaks"
export LSAN_OPTIONS=suppressions=$folder/leaks:print_suppressions=0
mkdir "$folder/pictures"
cp "$folder/KeyInfo.xml" "$folder/before.xml"
cp "$samples/Tollamere.reg" "$folder"
export BRENNET_REGISTRY=$folder/registry.reg
run 0 --settings "$folder/KeyInfo.xml" --data "$folder/" --pictures "$folder/pictures"
for picture in settings orrery quick-chat dota7 dota7-chat; do
  complains "$picture.png"
  [[ $(head -c 4 "$folder/pictures/$picture.png" | tail -c 3) == PNG ]] || fail 'it is no picture'
done
says '[HKEY_CURRENT_USER\Software\Tollamere\CONTROL]: (nothing) -> 96 values'
cmp -s "$folder/before.xml" "$folder/KeyInfo.xml" || fail 'the settings changed'
run 1 --settings "$folder/KeyInfo.xml" --pictures "$folder/missing/folder"
complains 'no picture of the dialog was made'

exit $((failures > 0))
