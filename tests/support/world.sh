#!/usr/bin/env bash
# Runs a command in the world of the tests, whoever calls it and wherever:
# world.sh [NAME=VALUE]... COMMAND ARGUMENT...
#
# This is to scripts what World.h is to test programs. They keep the caller's toolchain folder.
set -euo pipefail
# shellcheck source=tools/windows/lib.sh
source "$(dirname "$0")/../../tools/windows/lib.sh"

kept=()
for name in $(compgen -e); do
  case $name in
    PATH | LD_LIBRARY_PATH | BRENNET_UPDATE_GOLDEN | ASAN_OPTIONS | LSAN_OPTIONS | UBSAN_OPTIONS | \
      BRENNET_TEST_* | GTEST_*) kept+=("$name=${!name}") ;;
  esac
done
if [[ -n ${BRENNET_TEST_TMPDIR+x} ]]; then
  kept+=("TMPDIR=$BRENNET_TEST_TMPDIR")
fi
exec env -i "${kept[@]}" HOME=/nonexistent LC_ALL=C.UTF-8 TZ=UTC0 \
  BRENNET_TOOLCHAIN_DIR="$toolchain_dir" "$@"
