#!/usr/bin/env bash
# Checks that every line of a file except comments is reported: hidden.sh PYTHON EXTENSIONS FILE
set -euo pipefail

told=$("$@" | sed -n 's/.*:\([0-9]*\): broken rule: .*/\1/p' | sort -nu | tr '\n' ' ' || true)
expected=$(grep -vn '^//' "$3" | cut -d : -f 1 | tr '\n' ' ')
[[ $told == "$expected" ]] || { echo "told of the lines $told, not of $expected" && exit 1; }
