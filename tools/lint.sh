#!/usr/bin/env bash
# Runs clang-tidy over the sources of the component and the sample host: tools/lint.sh BUILD_FOLDER
# The build folder supplies the compiler's arguments; those that only g++ knows do not count.
set -euo pipefail

build=$1
find platform keys markup gameside model host samples -name '*_win.cpp' -prune -o \
  -name '*.cpp' -print0 |
  xargs -0 -r -n 1 -P "$(nproc)" clang-tidy -p "$build" --quiet \
    --extra-arg=-Wno-unknown-warning-option 2> >(grep -v 'warnings generated' >&2)
