#!/usr/bin/env bash
# Rewrites the files of the project that are made from the code or by running it:
# tools/update.sh BUILD_FOLDER
#
# These are the catalogues, as far as a machine can fill them, the table of the contract, and what
# tests compare with tests/support/Golden.h. The target "golden" must have been built.
set -euo pipefail
cd "$(dirname "$0")/.."

main() {
  local build=$1 failed=() program suites
  tools/translations.sh || failed+=(tools/translations.sh)
  tests/docs/contract.py --update host/include/brennet/IBrennet.h sdk/CONTRACT.md ||
    failed+=(tests/docs/contract.py)
  while read -r program suites; do
    BRENNET_UPDATE_GOLDEN=1 "$build/bin/$program" --gtest_brief=1 --gtest_filter="$suites" ||
      failed+=("$program")
  done <"$build/golden.txt"
  if [[ ${#failed[@]} -gt 0 ]]; then
    echo "brennet: not all could be updated, see above: ${failed[*]}" >&2
    return 1
  fi
  echo "Up to date. Look at the difference (git diff) before you commit it."
}

main "$@"
