#!/usr/bin/env bash
# Brings the catalogues up to date with the texts of ui/: tools/translations.sh
#
# New texts are added, to be translated; texts that are gone are dropped; translations stay. The
# Chinese of a text that is Chinese is the text itself. With --check nothing is written, and the exit
# status is 1 if something would be.
set -euo pipefail
cd "$(dirname "$0")/.."

die() {
  echo "brennet: $*" >&2
  exit 1
}

# Debian's command of that name in the path is a wrapper, which does not always find a version.
find_lupdate() {
  local candidate
  for candidate in /usr/lib/qt5/bin/lupdate lupdate-qt5 lupdate; do
    if command -v "$candidate"; then return; fi
  done
  die "Please install lupdate, of Qt 5's Linguist tools."
}

# Translates the Chinese texts of a catalogue of that language: those with a character from U+4E00 to
# U+9FFF, in UTF-8.
fill_in_chinese() {
  LC_ALL=C awk '
    /<source>/ { text = /<source>.*[\344-\351].*<\/source>/ ? $0 : "" }
    /<translation type="unfinished">/ && text != "" {
      gsub(/source>/, "translation>", text)
      $0 = text
    }
    { print }' "$1" >"$1.filled"
  mv "$1.filled" "$1"
}

main() {
  local lupdate sources languages=(en zh_CN) language file
  [[ $# -eq 0 || $* == --check ]] || { echo "usage: tools/translations.sh [--check]" >&2 && exit 2; }
  lupdate=$(find_lupdate)
  # The same order on all machines.
  mapfile -t sources < <(find ui \( -name '*.cpp' -o -name '*.h' -o -name '*.ui' \) | LC_ALL=C sort)

  work_dir=$(mktemp -d)
  trap 'rm -rf "$work_dir"' EXIT
  local status=0
  for language in "${languages[@]}"; do
    file=translations/brennet_$language.ts
    [[ ! -f $file ]] || cp "$file" "$work_dir/"
    "$lupdate" -silent -I . -locations none -no-obsolete "${sources[@]}" \
      -target-language "$language" -ts "$work_dir/brennet_$language.ts"
    if [[ $language == zh_CN ]]; then fill_in_chinese "$work_dir/brennet_$language.ts"; fi
    if [[ $# -eq 0 ]]; then
      cp "$work_dir/brennet_$language.ts" "$file"
    elif ! diff -u "$file" "$work_dir/brennet_$language.ts"; then
      status=1
    fi
  done
  [[ $status -eq 0 ]] || echo "The catalogues are not those of the sources; run: make update"
  return $status
}

main "$@"
