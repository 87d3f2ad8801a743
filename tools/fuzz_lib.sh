# shellcheck shell=bash
# What the scripts for fuzzing share. Sourced, not run.

# The names of the targets in a build folder, one a line.
targets_in() { # BUILD_FOLDER
  local program
  for program in "$1"/bin/fuzz_*; do
    basename "$program" | sed 's/^fuzz_//'
  done
}

# How long the inputs of a target are at most, in bytes. What is longer says nothing new, and takes
# longer to run.
longest_input() { # TARGET
  case $1 in
    settings) echo 16384 ;;
    regFile | dota7 | block | session) echo 8192 ;;
    *) echo 4096 ;;
  esac
}

# Sessions write and flush files all the time.
use_memory_for_files() {
  if [[ -z ${TMPDIR:-} && -d /dev/shm && -w /dev/shm ]]; then
    export TMPDIR=/dev/shm
  fi
}
