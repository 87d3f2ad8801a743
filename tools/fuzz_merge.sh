#!/usr/bin/env bash
# Brings what runs have found back into the checkout: tools/fuzz_merge.sh BUILD_FOLDER CORPUS_FOLDER
#
# fuzz/corpus/<target>/ then holds the seeds, whose names say what they are, and the fewest others
# that cover the same branches as the old ones and those of CORPUS_FOLDER together. libFuzzer names
# these by their hashes. CORPUS_FOLDER then holds the same, so that the next run does not begin with
# thousands of inputs that show nothing new. Fails, after everything is done, if they exceed 2 MB in
# total.
set -euo pipefail

# shellcheck source=tools/fuzz_lib.sh
source "$(dirname "$0")/fuzz_lib.sh"

readonly most_bytes=2000000
build=$1
corpus=$2

is_seed() { # NAME
  [[ ! $1 =~ ^[0-9a-f]{40}$ ]]
}

# Only which branches are taken counts, not how often: a tenth of the inputs is enough.
merge() { # TARGET NEW_FOLDER
  local target=$1 new=$2 old=fuzz/corpus/$1 file
  mkdir -p "$new" "$old" "$corpus/$target"
  for file in "$old"/*; do
    if [[ -f $file ]] && is_seed "$(basename "$file")"; then cp "$file" "$new/"; fi
  done
  "$build/bin/fuzz_$target" -merge=1 -use_counters=0 -max_len="$(longest_input "$target")" \
    -timeout=25 -rss_limit_mb=2048 "$new" "$old" "$corpus/$target" >"$corpus/$target-merge.log" 2>&1
  rm -rf "$old" "${corpus:?}/$target"
  cp -r "$new" "$old"
  cp -r "$new" "$corpus/$target"
  echo "$target: $(find "$old" -type f | wc -l) inputs, $(size_of "$old") bytes"
}

size_of() { # FOLDER
  find "$1" -type f -printf '%s\n' | awk '{ sum += $1 } END { print sum + 0 }'
}

use_own_temporary_folder
for target in $(targets_in "$build"); do
  merge "$target" "$TMPDIR/$target"
done
size=$(size_of fuzz/corpus)
echo "all: $size bytes"
if ((size > most_bytes)); then
  echo "The corpora are larger than $most_bytes bytes; leave some inputs out." >&2
  exit 1
fi
