#!/usr/bin/env bash
# Fails when a folder includes what is not below it, or when code for one system stands outside
# platform/: layers.sh ROOT
set -euo pipefail
cd "$1"

layers=(platform keys markup gameside model ui host)  # lowest first
public_headers='brennet/IBrennet\.h|brennet/HotkeyBlock\.h'

status=0

# report RULE MATCHES: prints the lines that break a rule, if there are any.
report() {
  if [[ -n $2 ]]; then
    echo "broken rule: $1"
    printf '%s\n' "$2"
    status=1
  fi
}

# sources FOLDER... : the C++ files of those folders that exist.
sources() {
  local folder
  for folder in "$@"; do
    if [[ -d $folder ]]; then
      find "$folder" -name '*.h' -o -name '*.cpp'
    fi
  done
}

# lines PATTERN FOLDER... : the lines of the folders' sources that match, with file and number.
lines() {
  local pattern=$1
  shift
  sources "$@" | xargs -r grep -HnE "$pattern" || true
}

check_layers() {
  local allowed='' layer
  for layer in "${layers[@]}"; do
    allowed+="${allowed:+|}$layer"
    local others
    # Headers that are made from forms have no folder.
    others=$(lines '^ *# *include *"' "$layer" |
      grep -vE "include *\"(($allowed)/|ui_[A-Za-z0-9]+\.h\")" || true)
    local known
    known=$(IFS='|'; echo "${layers[*]}")
    report upward "$(grep -E "include *\"($known)/" <<<"$others" || true)"
    report unknown-folder "$(grep -vE "include *\"($known)/" <<<"$others" | grep . || true)"
  done
}

check_systems() {
  report windows-header "$(lines '# *include *<[Ww]indows\.h>' "${layers[@]}" samples |
    grep -vE '^platform/win/' || true)"
  # The calling convention of the interface is the one difference that a header has to state.
  report system-switch "$(lines '\b_?WIN(32|64)\b' "${layers[@]}" samples |
    grep -vE '^(platform/|host/include/brennet/IBrennet\.h:[0-9]+:#if defined\(_WIN32\) && \(defined\(_M_IX86\))' ||
    true)"
}

check_samples() {
  # A host's own headers stand beside it; ours go by the names that the package gives them.
  report private-header "$(lines '^ *# *include *("|<[^>]*/)' samples |
    grep -vE "include *(\"[^/\"]+\"|<($public_headers)>)" || true)"
}

check_layers
check_systems
check_samples
exit "$status"
