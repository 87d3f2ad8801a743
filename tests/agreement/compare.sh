#!/usr/bin/env bash
# Fails unless two builds of agreement_dump write the same files:
# compare.sh NATIVE_PROGRAM EMULATOR PROGRAM WHAT ARGUMENT...
set -euo pipefail

native=$1
emulator=$2
program=$3
shift 3

if [[ ! -x $native ]]; then
  echo "The native build has no $native; make it first."
  exit 1
fi
# Beside the program, because the emulator shows this folder to it.
folder=$(mktemp -d "$(dirname "$program")/agreement.XXXXXX")
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/native" "$folder/windows"

"$native" "$folder/native" "$@"
"$emulator" "$program" "$folder/windows" "$@"
if ! diff -r "$folder/native" "$folder/windows" >"$folder/differences"; then
  head -n 20 "$folder/differences" | cat -v
  echo "$(wc -l <"$folder/differences") lines of differences"
  exit 1
fi
files=$(find "$folder/native" -type f | wc -l)
echo "$files files are the same"
((files > 0))
