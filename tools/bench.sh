#!/usr/bin/env bash
# Runs every benchmark program of a folder and prints one table:
# tools/bench.sh BUILD_FOLDER [COMMAND...]
#
# The command starts a program where the system does not, as tools/windows/run.sh does. Repetitions
# of all benchmarks are shuffled, so that a slow moment of the machine does not hit one side alone.
# BENCH_ARGS holds more arguments for the programs, for example --benchmark_filter=...
set -euo pipefail

build=$1
start=("${@:2}")
raw=$build/raw
rm -rf "$raw"
mkdir -p "$raw"

read -r -a more_arguments <<<"${BENCH_ARGS:-}"
for program in "$build"/bin/*_bench{,.exe}; do
  [[ -f $program ]] || continue
  name=$(basename "$program" .exe)
  echo "Running $name ..."
  "${start[@]}" "$program" --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true \
    --benchmark_report_aggregates_only=true --benchmark_display_aggregates_only=true \
    --benchmark_out_format=json --benchmark_out="$raw/$name.json" \
    "${more_arguments[@]}" >"$raw/$name.log" 2>&1 || { cat "$raw/$name.log"; exit 1; }
done
echo
python3 bench/report/report.py --json "$build/results.json" "$raw"/*.json
