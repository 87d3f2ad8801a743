#!/usr/bin/env bash
# Compiles a public header by itself: header.sh COMPILER STANDARD HEADER
# The exit status is 77 if the compiler is not installed.
set -euo pipefail

compiler=$1
standard=$2
header=$3

if ! command -v "$compiler" >/dev/null; then
  echo "$compiler is not installed"
  exit 77
fi
echo "#include \"$header\"" |
  "$compiler" -std="$standard" -fsyntax-only -Wall -Wextra -Wpedantic -Werror -I . -x c++ -
