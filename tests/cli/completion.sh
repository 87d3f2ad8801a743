#!/usr/bin/env bash
# Checks what bash completes for `brennet`: completion.sh PROGRAM COMPLETION
set -euo pipefail

program=$1
# What somebody types who calls it; its path may have blanks.
typed="\"$program\""
# shellcheck source=cli/completion/brennet
source "$2"
failures=0

# completes WORDS EXPECTED: the last of the words, the first being the program.
completes() {
  read -r -a COMP_WORDS <<<"$1"
  COMP_WORDS=("$typed" "${COMP_WORDS[@]}")
  [[ $1 != *' ' && -n $1 ]] || COMP_WORDS+=('')
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  COMPREPLY=()
  # A shell that completes goes on after commands that fail.
  _brennet || true
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
mkdir 'b l'
ln -s "$program" 'b l/brennet'
for typed in '"b l/brennet"' "'b l/brennet'" 'b\ l/brennet'; do
  completes 're' 'record repair'
done
HOME=$PWD
# shellcheck disable=SC2088 # Nobody has expanded what is typed.
typed='~/b\ l/brennet'
completes 're' 'record repair'
# Completing a line runs nothing that the line says.
# shellcheck disable=SC2016
typed='"$(touch run)"'
completes 're' ''
[[ ! -e run ]] || {
  echo 'FAILED: the completion runs what a typed word says'
  failures=1
}
exit "$failures"
