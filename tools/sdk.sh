#!/usr/bin/env bash
# Writes the package for embedders: tools/sdk.sh BUILD_FOLDER OUTPUT_FOLDER
#
# The build is one of the Windows library. The package is brennet-sdk-<version>.zip in the output
# folder; symbols for debuggers are apart, in brennet-sdk-<version>-symbols.zip. Their names are
# printed, and what the files below bin/ take. The same build gives the same bytes: files are sorted
# by name and carry the time of SOURCE_DATE_EPOCH, or else of the last commit.
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

# Strips the symbols from what was linked here, and puts those of our own into another folder, where
# a debugger finds them by the name of the file and its build-id. The linker's runtime has 20 MB with
# its symbols. Qt's files have none and stay as they are.
strip_programs() { # FOLDER SYMBOLS
  local file name
  mkdir -p "$2"
  for file in "$1"/*.dll "$1"/*.exe; do
    name=${file##*/}
    case $name in
      Qt5*.dll) ;;
      Brennet*.dll | brennet*.exe)
        "$(cached CMAKE_OBJCOPY)" --only-keep-debug "$file" "$2/$name.debug"
        "$(cached CMAKE_STRIP)" "$file"
        "$(cached CMAKE_OBJCOPY)" --add-gnu-debuglink="$2/$name.debug" "$file"
        ;;
      *) "$(cached CMAKE_STRIP)" "$file" ;;
    esac
  done
}

print_sizes() { # FOLDER
  echo "What bin/ takes:"
  (cd "$1" && find bin -type f -printf '%12s  %p\n' | sort -rn)
  find "$1/bin" -type f -printf '%s\n' | awk '{ all += $1 } END { printf "%12d  in all\n", all }'
}

zip_folder() { # NAME ZIP
  find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
  find "$1" -type f | LC_ALL=C sort | TZ=UTC0 zip -X -D -q -9 -@ "$2"
}

main() {
  [[ $# -eq 2 ]] || { echo "usage: tools/sdk.sh BUILD_FOLDER OUTPUT_FOLDER" >&2 && exit 2; }
  local checkout build output name version
  checkout=$(cd "$(dirname "$0")/.." && pwd)
  [[ -f $1/CMakeCache.txt ]] || die "$1 is no build folder; make one with: cmake --preset windows"
  build=$(cd "$1" && pwd)
  [[ $(cached CMAKE_STRIP) == */i686-w64-mingw32-strip ]] || die "$1 builds nothing for Windows."
  # The rights of files are in the zip.
  umask 022
  mkdir -p "$2"
  output=$(cd "$2" && pwd)
  version=$(cached CMAKE_PROJECT_VERSION)
  name=brennet-sdk-$version
  # The linker's tools write it into what they touch.
  SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(commit_time)}
  export SOURCE_DATE_EPOCH

  work_dir=$(mktemp -d "$output/unfinished.XXXXXX")
  trap 'rm -rf "$work_dir"' EXIT
  cd "$work_dir"
  cmake --install "$build" --prefix "$work_dir/$name" >install.log ||
    die "The build in $1 could not be installed; is it whole?"
  strip_programs "$name/bin" "$name-symbols/bin"
  "$checkout/tools/sdk_inventory.py" "$name" "$version" "$(cached BRENNET_COMPILER)" \
    "$(cached BRENNET_QT_DIR)/include" "$build/cli/headers"
  local part
  for part in "$name" "$name-symbols"; do
    zip_folder "$part" "$part.zip"
    mv "$part.zip" "$output/"
    echo "$output/$part.zip"
  done
  print_sizes "$name"
}

main "$@"
