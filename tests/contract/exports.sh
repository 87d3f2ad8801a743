#!/usr/bin/env bash
# Fails unless the dynamic symbol table of a library defines GetBrennetPtr and nothing else:
# exports.sh LIBRARY
set -euo pipefail

# What the linkers of some systems define in every library.
linkers_own='_init|_fini|_edata|_end|__bss_start'

exported=$(nm -D --defined-only --format=posix "$1" | awk '{print $1}' | sed 's/@.*//' |
  grep -Evx "$linkers_own" || true)
if [[ $exported != GetBrennetPtr ]]; then
  echo "exported symbols, where GetBrennetPtr alone was expected:"
  echo "${exported:-(none)}"
  exit 1
fi
