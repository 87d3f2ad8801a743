# shellcheck shell=bash
# Shared by the tests of the scripts in tools/windows/, which source it: copies of the scripts in a
# folder of their own, commands that replace the real ones, and checks.

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
# A copy, because not everybody may read every checkout.
cp -r "$1/tools" "$1/cmake" "$folder"
# shellcheck disable=SC2034  # for those who source this
scripts=$folder/tools/windows
export BRENNET_TOOLCHAIN_DIR=$folder/toolchain
export HOME=$folder

failures=0
fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# accepts COMMAND...: the command succeeds; its output is in the file "out".
accepts() {
  "$@" >"$folder/out" 2>&1 9>&- || fail "exit status $?: $* ($(tail -n 3 "$folder/out"))"
}

# refuses MESSAGE COMMAND...: the command fails, and its last line is the scripts' own message.
refuses() {
  local message=$1 status=0
  shift
  "$@" >"$folder/out" 2>"$folder/err" 9>&- || status=$?
  [[ $status == 1 ]] || fail "exit status $status, not 1: $*"
  [[ $(tail -n 1 "$folder/err") == brennet:*"$message"* ]] ||
    fail "no line says \"$message\": $* ($(tail -n 3 "$folder/err"))"
}

# The toolchain folder has only finished folders, the lock and the log of a failure.
is_clean() {
  local left
  left=$(find "$BRENNET_TOOLCHAIN_DIR" -mindepth 1 -maxdepth 1 ! -name lock ! -name failed.log \
    ! -exec test -e '{}/contents.txt' ';' -print)
  [[ -z $left ]] || fail "left behind: $left"
}

# Makes a command that replaces the real one.
stand_in() { # NAME BODY
  mkdir -p "$folder/bin"
  printf '#!/bin/sh\n%s\n' "$2" >"$folder/bin/$1"
  chmod +x "$folder/bin/$1"
}
without_stand_ins() { rm -rf "$folder/bin"; }
with_stand_ins() { env PATH="$folder/bin:$PATH" "$@"; }

# wait_for WHAT COMMAND...: until the command succeeds, for half a minute at most.
wait_for() {
  local what=$1
  shift
  for _ in {1..300}; do
    "$@" && return
    sleep 0.1
  done
  fail "$what"
}

# The programs that have the word in their command line, as folders of /proc. The pattern does not
# match itself.
programs_with() { # WORD
  grep -lsa "[${1:0:1}]${1:1}" /proc/[0-9]*/cmdline | xargs -r dirname || true
}
runs() { [[ -n $(programs_with "$1") ]]; }
runs_not() { ! runs "$1"; }

# starts WORD COMMAND...: starts a command that goes on for ever, and waits until a command line has
# the word. The number of its process is in "program".
starts() {
  local word=$1
  shift
  # With job control, because commands in the background cannot be interrupted without it.
  set -m
  (exec env PATH="$folder/bin:$PATH" "$@") >"$folder/out" 2>&1 9>&- &
  program=$!
  set +m
  wait_for "does not start: $*" runs "$word"
}

kill_all() { # WORD
  local program
  for program in $(programs_with "$1"); do kill -KILL "${program#/proc/}" || true; done
}

# stopped_by SIGNAL WORD COMMAND...: starts such a command, sends it the signal and waits for its
# end. Its exit status is in "status".
stopped_by() {
  local signal=$1 word=$2
  shift 2
  starts "$word" "$@"
  kill "-$signal" "$program"
  status=0
  wait "$program" 2>/dev/null || status=$?
  wait_for "goes on after $signal: $*" runs_not "$word"
}

# The words before a command that somebody without rights is to run.
as_nobody=()
if [[ $EUID -eq 0 ]]; then
  chmod 755 "$folder"
  as_nobody=(setpriv --reuid=65534 --regid=65534 --clear-groups)
fi
