#!/usr/bin/env bash
# Shows what the inputs in fuzz/corpus/ reach: tools/fuzz_coverage.sh BUILD_FOLDER
#
# BUILD_FOLDER is that of the preset fuzz-coverage. Prints, by file and by folder, how many lines
# and branches of the code under test are reached. The same is left there in coverage.txt, and in
# uncovered.txt each line that was never run and each branch that was never taken.
set -euo pipefail

# shellcheck source=tools/fuzz_lib.sh
source "$(dirname "$0")/fuzz_lib.sh"

readonly sources='^(markup|model|gameside)/|^platform/RegFile'
build=$1
profiles=$build/profiles

# File names may have been given to the compiler from the root or from the build folder. Makes them
# relative to the checkout.
from_checkout() {
  sed -E "s|^($PWD/\|(\.\./)+)||"
}

# One row for each file, and one for each folder, from the report of llvm-cov.
table() {
  awk -v sources="$sources" '
    function row(name, lines, missed, branches, untaken) {
      printf "%-36s %6d %6d %7s %6d %6d %7s\n", name, lines, missed, share(lines, missed),
        branches, untaken, share(branches, untaken)
    }
    function share(all, missed) { return all ? sprintf("%.1f %%", 100 - 100 * missed / all) : "-" }
    BEGIN { printf "%-36s %22s %22s\n", "", "lines, missed", "branches, missed" }
    $1 ~ sources && $1 !~ /_autogen/ {
      row($1, $5, $6, $8, $9)
      split($1, parts, "/")
      folder = parts[1]
      if (!(folder in lines)) order[++folders] = folder
      lines[folder] += $5; missed[folder] += $6; branches[folder] += $8; untaken[folder] += $9
    }
    END {
      for (i = 1; i <= folders; ++i) {
        f = order[i]
        row(f, lines[f], missed[f], branches[f], untaken[f])
      }
    }'
}

# The lines in the report of llvm-cov that nothing reached, below the names of their files.
uncovered() {
  awk -v sources="$sources" '
    /^[^ |]+:$/ { file = $0; wanted = $0 ~ sources && $0 !~ /_autogen/; next }
    wanted && (/^ +[0-9]+\| +0\|/ || /Branch \([0-9:]+\): \[.*(True|False): 0[],]/) {
      if (file != "") print file
      file = ""
      print
    }'
}

rm -rf "$profiles"
mkdir -p "$profiles"
use_own_temporary_folder
programs=()
for target in $(targets_in "$build"); do
  echo "Running the inputs of $target ..."
  LLVM_PROFILE_FILE=$profiles/$target.profraw \
    "$build/bin/fuzz_$target" -runs=0 "fuzz/corpus/$target" >"$profiles/$target.log" 2>&1
  programs+=("$build/bin/fuzz_$target")
done
profile=$profiles/all.profdata
llvm-profdata merge -sparse "$profiles"/*.profraw -o "$profile"

# The first program stands alone, the others are objects.
objects=("${programs[@]/#/-object=}")
objects[0]=${programs[0]}
llvm-cov report "${objects[@]}" -instr-profile="$profile" -show-region-summary=false |
  from_checkout | table >"$build/coverage.txt"
(cd "$build" && llvm-cov show "${objects[@]//$build\//}" -instr-profile="profiles/all.profdata" \
  -show-branches=count -show-instantiations=false) | from_checkout | uncovered \
  >"$build/uncovered.txt"
cat "$build/coverage.txt"
echo "What was never run is in $build/uncovered.txt"
