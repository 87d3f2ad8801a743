#!/usr/bin/env bash
# Formats every C++ source of the checkout, or with --check only lists those that are not formatted.
set -euo pipefail

mode=(-i)
if [[ ${1:-} == --check ]]; then
  mode=(--dry-run --Werror)
fi
find platform keys markup gameside model cli ui host samples tests bench fuzz tools \
  \( -name '*.h' -o -name '*.cpp' \) -print0 | xargs -0 -r clang-format "${mode[@]}"
