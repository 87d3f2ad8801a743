#!/usr/bin/env bash
# Fails unless a foreign program ends with the given code and prints it: expect.sh CODE COMMAND...
set -euo pipefail

code=$1
shift

status=0
output=$("$@") || status=$?
printf '%s\n' "$output"
if [[ $status -ne $code ]] || ! grep -q "^failure $code: " <<<"$output"; then
  echo "It ended with $status, where failure $code was expected."
  exit 1
fi
