#!/usr/bin/env bash
# Writes the package for embedders: tools/sdk.sh BUILD_FOLDER OUTPUT_FOLDER
#
# The build is one of the Windows library. The zip is brennet-sdk-<version>.zip in the output folder
# and its name is printed. The same build gives the same bytes: files are sorted by name and carry
# the time of SOURCE_DATE_EPOCH, or else of the last commit.
set -euo pipefail

die() {
  echo "brennet: $*" >&2
  exit 1
}

# The value of a variable of the build's CMake cache.
cached() { # VARIABLE
  sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"
}

commit_time() {
  git -C "$checkout" log -1 --format=%ct 2>/dev/null ||
    die "There is no last commit to take the time from; set SOURCE_DATE_EPOCH."
}

# Strips the symbols from what was linked here, and with them the names of this machine's folders.
# The linker's runtime has 20 MB with its symbols. Qt's files have none and stay as they are.
strip_programs() { # FOLDER
  local file
  for file in "$1"/*.dll "$1"/*.exe; do
    [[ ${file##*/} == Qt5*.dll ]] || "$(cached CMAKE_STRIP)" "$file"
  done
}

zip_folder() { # NAME ZIP
  find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
  find "$1" -type f | LC_ALL=C sort | TZ=UTC0 zip -X -D -q -9 -@ "$2"
}

main() {
  [[ $# -eq 2 ]] || { echo "usage: tools/sdk.sh BUILD_FOLDER OUTPUT_FOLDER" >&2 && exit 2; }
  local checkout build output name
  checkout=$(cd "$(dirname "$0")/.." && pwd)
  [[ -f $1/CMakeCache.txt ]] || die "$1 is no build folder; make one with: cmake --preset windows"
  build=$(cd "$1" && pwd)
  [[ $(cached CMAKE_STRIP) == */i686-w64-mingw32-strip ]] || die "$1 builds nothing for Windows."
  mkdir -p "$2"
  output=$(cd "$2" && pwd)
  name=brennet-sdk-$(cached CMAKE_PROJECT_VERSION)
  # The linker's tools write it into what they touch.
  SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(commit_time)}
  export SOURCE_DATE_EPOCH

  work_dir=$(mktemp -d "$output/unfinished.XXXXXX")
  trap 'rm -rf "$work_dir"' EXIT
  cd "$work_dir"
  cmake --install "$build" --prefix "$work_dir/$name" >install.log ||
    die "The build in $1 could not be installed; is it whole?"
  strip_programs "$name/bin"
  zip_folder "$name" "$name.zip"
  mv "$name.zip" "$output/"
  echo "$output/$name.zip"
}

main "$@"
