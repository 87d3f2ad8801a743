#!/usr/bin/env bash
# Builds the package for embedders twice from the last commit, at different times and in folders of
# different names, and compares every byte: tools/reproducible.sh
#
# The second build compiles everything anew; the first takes from the cache what was compiled in yet
# another folder. What differs stays for comparison, in the folder that is named then.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/windows/lib.sh
source tools/windows/lib.sh
# shellcheck source=tools/ccache.sh
source tools/ccache.sh

build_package() { # FOLDER
  git clone -q --no-hardlinks . "$1"
  (
    cd "$1"
    use_ccache "$PWD" || true
    logged "$1.log" "${1##*/}: configure" tools/windows/configure.sh windows
    logged "$1.log" "${1##*/}: compile" cmake --build build/windows -j "$(nproc)" \
      --target brennet brennet-check brennet-host brennet-program brennet_translations \
      brennet_runtime brennet_import_library
    logged "$1.log" "${1##*/}: package" tools/sdk.sh build/windows "$work/of ${1##*/}"
  )
}

main() {
  work=$(mktemp -d)
  build_package "$work/first"
  CCACHE_RECACHE=1 build_package "$work/the second one"
  if ! diff -r "$work/of first" "$work/of the second one"; then
    die "The two packages differ; they are in $work."
  fi
  rm -rf "$work"
  say "The two packages are the same"
}

main "$@"
