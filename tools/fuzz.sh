#!/usr/bin/env bash
# Runs every fuzz target for some seconds: tools/fuzz.sh BUILD_FOLDER CORPUS_FOLDER SECONDS
#
# The seeds of fuzz/corpus/<target>/ are copied into CORPUS_FOLDER, where what a run finds stays
# for the next one; the checkout is only read. Inputs that break something are left in
# CORPUS_FOLDER/<target>-findings/.
set -euo pipefail

build=$1
corpus=$2
seconds=$3

status=0
for program in "$build"/bin/fuzz_*; do
  target=$(basename "$program")
  target=${target#fuzz_}
  mkdir -p "$corpus/$target" "$corpus/$target-findings"
  if [[ -d fuzz/corpus/$target ]]; then
    cp "fuzz/corpus/$target"/* "$corpus/$target/"
  fi
  echo "Fuzzing $target for $seconds seconds ..."
  "$program" -max_total_time="$seconds" -timeout=25 -rss_limit_mb=2048 -print_final_stats=1 \
    -verbosity=0 -artifact_prefix="$corpus/$target-findings/" "$corpus/$target" || {
    echo "$target failed; what it found is in $corpus/$target-findings/"
    status=1
  }
done
exit "$status"
