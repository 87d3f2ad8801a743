#!/usr/bin/env bash
# Runs the test of the sample host's command line with the checking layer in place of the library;
# the host behaves the same, and nothing is found:
# clean_host.sh HOST_CLI_TEST WORK_FOLDER SAMPLE_DATA CHECKING_LAYER HOST_COMMAND...
set -euo pipefail

test=$1 work=$2
shift
mkdir -p "$work"
BRENNET_CHECK_LOG=$(mktemp "$work/check.XXXXXX")
export BRENNET_CHECK_LOG
trap 'rm -f "$BRENNET_CHECK_LOG"' EXIT

"$test" "$@"
clean=$(grep -c 'summary: 0 findings' "$BRENNET_CHECK_LOG" || true)
if grep -F '[' "$BRENNET_CHECK_LOG" || [[ $clean -lt 10 ]]; then
  echo "FAILED: the host was found to break the contract, or was not checked ($clean clean runs)"
  exit 1
fi
