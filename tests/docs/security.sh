#!/usr/bin/env bash
# Fails unless each claim of a page is held by tests that there are: security.sh CHECKOUT PAGE
#
# A claim is a row of a table whose last column is "Held by"; tests stand there as `Suite.Name`, and
# those that are scripts by their whole name, up to the slash where there are several.
set -euo pipefail
cd "$1"
page=$2

failures=0
fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# The names of all test cases, on whatever system they run, one a line.
cases() {
  find tests -name '*.cpp' -exec cat {} + | tr '\n' ' ' |
    grep -oE '\bTEST(_F|_P)?\( *[A-Za-z0-9_]+, *[A-Za-z0-9_]+ *\)' |
    sed -E 's/^TEST(_F|_P)?\( *//; s/, */./; s/ *\)$//'
}
scripts() {
  find tests -name CMakeLists.txt -exec grep -ohE 'brennet_add_script_test\("?[A-Za-z]+\.[A-Za-z]+' {} + |
    tr -d '("' | sed 's/^brennet_add_script_test//'
}
known=$(cases && scripts)

# The last column of each row below such a heading.
held_by() {
  awk -F'|' '
    !/^\|/ { inside = 0; next }
    $(NF - 1) ~ /^ *Held by *$/ { inside = 1; next }
    inside && !/^\|[-| ]+\|$/ { print $(NF - 1) }' "$page"
}

claims=0
while IFS= read -r cell; do
  claims=$((claims + 1))
  mapfile -t names < <(grep -oE '`[^`]+`' <<<"$cell" | tr -d '`')
  [[ ${#names[@]} -gt 0 ]] || fail "no-test: claim $claims"
  for name in "${names[@]}"; do
    grep -qxF -- "$name" <<<"$known" && continue
    case $name in
      [A-Z]*) fail "unknown-test: $name" ;;
      *) fail "unknown-script: $name" ;;
    esac
  done
done < <(held_by)
((claims > 0)) || fail "no-claims: $page"
((failures == 0))
