#!/usr/bin/env bash
# Checks what only a process shows of `brennet`: command_line.sh PROGRAM CHECKOUT
set -euo pipefail

brennet=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failures=0

# expect STATUS COMMAND...
expect() {
  local wanted=$1 status=0
  shift
  "$@" >"$folder/out" 2>"$folder/err" || status=$?
  [[ $status == "$wanted" ]] || {
    echo "FAILED: exit status $status, not $wanted: $* ($(cat "$folder/err"))"
    failures=1
  }
}

# A file whose name is no UTF-8.
name=$folder/$'na\xFFme.xml'
cp "$2/samples/data/KeyInfo.xml" "$name"
expect 1 "$brennet" check "$name"
expect 1 "$brennet" check --json "$name"

# A disk that takes no more.
[[ ! -e /dev/full ]] || expect 2 bash -c '"$0" keys >/dev/full' "$brennet"

exit "$failures"
