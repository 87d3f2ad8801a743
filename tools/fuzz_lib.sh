# shellcheck shell=bash
# What the scripts for fuzzing share. Sourced, not run.

# The names of the targets in a build folder, one a line.
targets_in() { # BUILD_FOLDER
  local program
  for program in "$1"/bin/fuzz_*; do
    basename "$program" | sed 's/^fuzz_//'
  done
}

# The longest inputs of a target, in bytes. Longer ones show nothing new and take longer to run.
longest_input() { # TARGET
  case $1 in
    settings) echo 16384 ;;
    regFile | dota7 | block | session) echo 8192 ;;
    *) echo 4096 ;;
  esac
}

# Puts all temporary files into a folder of this script's own, which is removed when it ends:
# libFuzzer ends its programs without a chance to clean up. The folder is in memory if possible,
# because sessions write and flush files all the time.
use_own_temporary_folder() {
  local place=${TMPDIR:-/tmp}
  if [[ -z ${TMPDIR:-} && -d /dev/shm && -w /dev/shm ]]; then place=/dev/shm; fi
  TMPDIR=$(mktemp -d "$place/brennet-fuzz-XXXXXX")
  export TMPDIR
  trap 'rm -rf "$TMPDIR"' EXIT
}
