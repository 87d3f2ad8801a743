#!/usr/bin/env bash
# Checks what bash completes for `brennet`: completion.sh PROGRAM COMPLETION
set -euo pipefail

program=$1
# shellcheck source=cli/completion/brennet
source "$2"
failures=0

# completes WORDS EXPECTED: the last of the words, the first being the program.
completes() {
  read -r -a COMP_WORDS <<<"$1"
  # The path of a checkout may have blanks.
  COMP_WORDS=("$program" "${COMP_WORDS[@]}")
  [[ $1 != *' ' && -n $1 ]] || COMP_WORDS+=('')
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  COMPREPLY=()
  _brennet
  local found
  found=$(printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd ' ')
  [[ $found == "$2" ]] || {
    echo "FAILED: \"$1\" completes to \"$found\", not \"$2\""
    failures=1
  }
}

cd "$(mktemp -d)"
trap 'rm -r "$PWD"' EXIT
touch 'a file.xml'
completes 're' 'record repair'
completes '' 'apply check diff explain keys prefs record repair show'
completes '--v' '--version'
completes 'apply --' '--help --json --write'
completes 'show --s' '--scheme'
completes 'show --scheme ' '1 2 3'
completes 'record x --output a' 'a file.xml'
completes 'check a' 'a file.xml'
exit "$failures"
