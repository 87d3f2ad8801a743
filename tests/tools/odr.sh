#!/usr/bin/env bash
# Checks the check for two definitions of one name: odr.sh CHECKOUT
#
# It builds two small programs with the flags of `make odr`; the one with two types of one name must
# not link.
set -euo pipefail

checkout=$1
samples=$checkout/tests/tools/odr
if ! command -v g++ >/dev/null; then
  echo 'There is no g++.'
  exit 77
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# The flags are kept in one place.
read -r -a flags < <(sed -n 's/^ *set(BRENNET_ODR_FLAGS \(.*\))$/\1/p' "$checkout/cmake/BrennetTargets.cmake")
((${#flags[@]} > 0)) || { echo 'FAILED: the flags are not found'; exit 1; }

# links FILE...: whether the program links, from object files as in a build.
links() {
  local objects=() file
  for file in "$@"; do
    g++ -std=c++20 -g "${flags[@]}" -c "$samples/$file.cpp" -o "$folder/$file.o"
    objects+=("$folder/$file.o")
  done
  g++ -g "${flags[@]}" "${objects[@]}" -o "$folder/program" 2>"$folder/messages"
}

failures=0
if ! links number same; then
  echo "FAILED: one type in two sources is refused: $(cat "$folder/messages")"
  failures=1
fi
if links number text; then
  echo 'FAILED: two types of one name are linked'
  failures=1
elif ! grep -q 'One Definition Rule' "$folder/messages"; then
  echo "FAILED: the linker has another reason: $(cat "$folder/messages")"
  failures=1
fi
exit "$failures"
