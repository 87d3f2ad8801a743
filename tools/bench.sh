#!/usr/bin/env bash
# Runs every benchmark program of a folder, prints one table and draws one picture:
# tools/bench.sh BUILD_FOLDER [COMMAND...]
#
# The command starts a program where the system does not, as tools/windows/run.sh does. Repetitions
# of all benchmarks are shuffled, so that a slow moment of the machine does not hit one side alone;
# with RUNS=3 everything is done three times, and the table says how far apart the runs are. With
# QUIET=0.3 each run waits until the machine has had fewer tasks than that in the last minute.
# BENCH_ARGS holds more arguments for the programs, for example --benchmark_filter=...
set -euo pipefail

build=$1
start=("${@:2}")
read -r -a more_arguments <<<"${BENCH_ARGS:-}"

wait_until_quiet() {
  [[ -n ${QUIET-} ]] || return 0
  echo "Waiting for a load below $QUIET ..."
  until awk -v most="$QUIET" '{ exit $1 >= most }' /proc/loadavg; do sleep 5; done
}

run_all() { # FOLDER
  local program name
  wait_until_quiet
  mkdir -p "$1"
  cut -d ' ' -f 1 /proc/loadavg >"$1/load" 2>/dev/null || rm -f "$1/load"
  for program in "$build"/bin/*_bench{,.exe}; do
    [[ -f $program ]] || continue
    name=$(basename "$program" .exe)
    echo "Running $name ..."
    "${start[@]}" "$program" --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true \
      --benchmark_report_aggregates_only=true --benchmark_display_aggregates_only=true \
      --benchmark_out_format=json --benchmark_out="$1/$name.json" \
      "${more_arguments[@]}" >"$1/$name.log" 2>&1 || { cat "$1/$name.log"; return 1; }
    [[ -s $1/$name.json ]] || rm "$1/$name.json"  # the arguments chose none of its benchmarks
  done
}

# The one that has the library for pictures, which is the distribution's where there are several.
python() {
  local found=python3
  python3 -c 'import matplotlib' 2>/dev/null || found=/usr/bin/python3
  "$found" -B "$@"
}

rm -rf "$build/raw"
for ((run = 1; run <= ${RUNS:-1}; ++run)); do
  run_all "$build/raw/$run"
done
echo
python bench/report/report.py --json "$build/results.json" --picture "$build/ratios.svg" \
  "$build"/raw/*
