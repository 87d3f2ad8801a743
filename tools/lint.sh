#!/usr/bin/env bash
# Runs clang-tidy over the sources of the component and the sample host:
# tools/lint.sh {native|windows} BUILD_FOLDER
#
# The build folder supplies the compiler's arguments; those that only g++ knows are ignored. For the
# Windows build only the sources are checked that the native one lacks.
set -euo pipefail

usage() {
  echo "usage: tools/lint.sh {native|windows} BUILD_FOLDER" >&2
  exit 2
}

# Checks the files named on standard input, each name ending in a zero byte.
tidy() { # BUILD_FOLDER ARGUMENT...
  xargs -0 -r -n 1 -P "$(nproc)" clang-tidy -p "$1" --quiet \
    --extra-arg=-Wno-unknown-warning-option "${@:2}" 2> >(grep -v 'warnings generated' >&2)
}

lint_native() {
  find platform keys markup gameside model cli ui host check samples tools/skin \
    -path platform/win -prune -o -name '*.cpp' -print0 | tidy "$1"
}

lint_windows() {
  local headers commands=$1/lint
  headers=$(i686-w64-mingw32-g++-posix -print-search-dirs | sed -n 's/^install: //p')include/c++
  mkdir -p "$commands"
  sed 's/ -fno-keep-inline-dllexport//' "$1/compile_commands.json" >"$commands/compile_commands.json"
  find platform/win -name '*.cpp' -print0 |
    tidy "$commands" --extra-arg=--target=i686-w64-mingw32 \
      --extra-arg=-isystem"$headers" --extra-arg=-isystem"$headers/i686-w64-mingw32" \
      --extra-arg=-Wno-ignored-optimization-argument
}

[[ $# -eq 2 ]] || usage
case $1 in
  native) lint_native "$2" ;;
  windows) lint_windows "$2" ;;
  *) usage ;;
esac
