#!/usr/bin/env bash
# Checks that a Windows program runs in a fresh state, that its exit status comes through, and that
# nothing of it is left running: emulator.sh EMULATOR
set -euo pipefail

emulator=$1
marker=brennet-emulator-test-$$
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

failures=0
fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# cmd STATUS COMMAND: runs a command of the Windows shell and expects the exit status.
cmd() {
  local status=0
  "$emulator" cmd.exe /c "$2" </dev/null >"$folder/out" 2>&1 || status=$?
  [[ $status == "$1" ]] || fail "exit status $status, not $1: $2 ($(cat "$folder/out"))"
}

# The command lines that have the marker, as files. The pattern does not match itself.
marked() {
  grep -lsa "[${marker:0:1}]${marker:1}" /proc/[0-9]*/cmdline || true
}

# Whether the program itself is running, and not only what starts it.
is_waiting() {
  marked | xargs -r grep -qsa 'system32.cmd.exe'
}

cmd 7 'exit 7'

key='HKCU\Software\BrennetTest'
file='%USERPROFILE%\left-behind'
cmd 0 "reg add $key /v Value /d 1 /f && reg query $key /v Value"
cmd 1 "reg query $key /v Value"
cmd 0 "echo x>$file && type $file"
cmd 1 "type $file"

# A program that waits for input for ever, and is stopped or killed. This takes job control, because
# programs in the background cannot be interrupted without it.
mkfifo "$folder/input"
for signal in HUP INT TERM KILL; do
  set -m
  "$emulator" cmd.exe /k "rem $marker" <>"$folder/input" >/dev/null 2>&1 &
  program=$!
  set +m
  waiting=no
  for _ in {1..300}; do
    is_waiting && waiting=yes && break
    sleep 0.1
  done
  [[ $waiting == yes ]] || fail 'the program that waits does not start'
  kill "-$signal" "$program"
  for _ in {1..50}; do
    [[ -z $(marked) ]] && break
    sleep 0.1
  done
  [[ -z $(marked) ]] || fail "left running after $signal: $(marked | tr '\n' ' ')"
done

exit $((failures > 0))
