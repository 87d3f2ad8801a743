#!/usr/bin/env bash
# Runs every fuzz target for some time, two at a time: tools/fuzz.sh BUILD_FOLDER CORPUS_FOLDER TIME
#
# TIME is the seconds for each target, or "4h": that many hours for all of them together.
#
# The inputs of fuzz/corpus/<target>/ are copied into CORPUS_FOLDER, where what a run finds stays
# for the next one; the checkout is only read (tools/fuzz_merge.sh brings the finds back). All
# inputs there run first. Inputs that break something are left in CORPUS_FOLDER/<target>-findings/,
# the output of libFuzzer in CORPUS_FOLDER/<target>.log.
set -euo pipefail

# shellcheck source=tools/fuzz_lib.sh
source "$(dirname "$0")/fuzz_lib.sh"

readonly jobs=2
build=$1
corpus=$2
time=$3

# Prints the result of a run, from its log.
account_of() { # TARGET
  awk -v target="$1" '
    /^stat::number_of_executed_units/ { executed = $2 }
    /^stat::new_units_added/ { added = $2 }
    / cov: / { for (i = 1; i < NF; ++i) if ($i == "cov:") covered = $(i + 1) }
    END { printf "%s: %d inputs run, %d of them new, %d edges\n", target, executed, added, covered }
  ' "$corpus/$1.log"
}

fuzz() { # TARGET SECONDS
  local target=$1 seconds=$2
  mkdir -p "$corpus/$target" "$corpus/$target-findings"
  if [[ -d fuzz/corpus/$target ]]; then
    cp "fuzz/corpus/$target"/* "$corpus/$target/"
  fi
  if ! "$build/bin/fuzz_$target" -max_total_time="$seconds" -max_len="$(longest_input "$target")" \
    -timeout=25 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="$corpus/$target-findings/" "$corpus/$target" >"$corpus/$target.log" 2>&1; then
    tail -n 40 "$corpus/$target.log"
    echo "$target failed; what it found is in $corpus/$target-findings/"
    return 1
  fi
  account_of "$target"
}

mapfile -t targets < <(targets_in "$build")
seconds=$time
if [[ $time == *h ]]; then
  seconds=$(awk "BEGIN { print int(${time%h} * 3600 * $jobs / ${#targets[@]}) }")
fi
mkdir -p "$corpus"
use_own_temporary_folder

echo "Fuzzing ${targets[*]}, $seconds seconds each, $jobs at a time ..."
status=0
running=0
for target in "${targets[@]}"; do
  if ((running == jobs)); then
    wait -n || status=1
    running=$((running - 1))
  fi
  fuzz "$target" "$seconds" &
  running=$((running + 1))
done
for ((; running > 0; --running)); do
  wait -n || status=1
done
exit "$status"
