#!/usr/bin/env bash
# The scripts around the fuzz targets, with targets that are no more than scripts themselves:
# tests/tools/fuzz_scripts.sh CHECKOUT
set -euo pipefail

tools=$1/tools
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# A target writes down how it was called. With -merge=1 it takes over what begins with "good".
make_target() { # NAME EXIT_STATUS
  cat >"build/bin/fuzz_$1" <<'END'
#!/usr/bin/env bash
echo "$*" >>"$(basename "$0").calls"
mktemp >>left-behind
folders=()
for word in "$@"; do [[ $word == -* ]] || folders+=("$word"); done
if [[ " $* " == *" -merge=1 "* ]]; then
  grep -l '^good' "${folders[@]:1}" -r | while read -r file; do cp "$file" "${folders[0]}/"; done
  exit 0
fi
echo "#7 DONE   cov: 12 ft: 34 corp: 5/6b"
echo "stat::number_of_executed_units: 7"
echo "stat::new_units_added:          3"
END
  echo "exit $2" >>"build/bin/fuzz_$1"
  chmod +x "build/bin/fuzz_$1"
}

hash_of() { printf '%040d' "$1"; }

mkdir -p build/bin fuzz/corpus/one
make_target one 0
make_target two 0
echo "a seed" >fuzz/corpus/one/a-seed
echo "good, old" >"fuzz/corpus/one/$(hash_of 1)"
echo "bad, old" >"fuzz/corpus/one/$(hash_of 2)"

# Each target gets its seconds; hours are divided by the targets, of which two run at a time.
output=$("$tools/fuzz.sh" build found 11)
[[ $output == *"one: 7 inputs run, 3 of them new, 12 edges"* ]] || fail "no account: $output"
grep -q -- '-max_total_time=11 ' fuzz_one.calls || fail "not 11 seconds: $(cat fuzz_one.calls)"
[[ -f found/one/a-seed && -f found/one/$(hash_of 1) ]] || fail "the inputs are not taken along"
"$tools/fuzz.sh" build found 0.5h >/dev/null
grep -q -- '-max_total_time=1800 ' fuzz_two.calls || fail "not 1800 s: $(cat fuzz_two.calls)"

# What one finds fails the run, but does not keep the others from running.
make_target one 77
rm fuzz_two.calls
if output=$("$tools/fuzz.sh" build found 1); then fail "a find passed"; fi
[[ $output == *"one failed"* && -f fuzz_two.calls ]] || fail "not all were run: $output"
make_target one 0

# Merging keeps the seeds, and of the others what says something new.
echo "good, new" >"found/one/$(hash_of 3)"
echo "bad, new" >"found/one/$(hash_of 4)"
"$tools/fuzz_merge.sh" build found >/dev/null
listing=$(cd fuzz/corpus/one && echo *)
[[ $listing == "$(hash_of 1) $(hash_of 3) a-seed" ]] || fail "merged to $listing"
[[ $(cd found/one && echo *) == "$listing" ]] || fail "the next run begins with $(ls found/one)"

# Corpora that are too large are told of.
{
  echo good
  head -c 2000001 /dev/zero
} >"found/two/$(hash_of 5)"
if "$tools/fuzz_merge.sh" build found >/dev/null 2>&1; then fail "2 MB passed"; fi
# Targets leave temporary files behind, the scripts do not.
while read -r file; do
  if [[ -e $file ]]; then fail "$file is left behind"; fi
done <left-behind
echo passed
