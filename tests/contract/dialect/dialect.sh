#!/usr/bin/env bash
# Checks that sources compile for 32-bit Windows in Microsoft's dialect, with its layout of records and
# without extensions: dialect.sh HEADERS STANDARD FILE...
# HEADERS are "freestanding" for sources that need next to nothing of the library, or "mingw".
# The exit status is 77 if clang++ is not installed.
set -euo pipefail

headers=$1
standard=$2
shift 2
here=$(cd "$(dirname "$0")" && pwd)

if ! command -v clang++ >/dev/null; then
  echo "clang++ is not installed"
  exit 77
fi

options=(
  --target=i686-pc-windows-msvc -std="$standard" -fsyntax-only -I . -I host/include -I model/include \
  -x c++
  -Wall -Wextra -Wpedantic -Wgnu -Wmicrosoft -Werror
)

# There are no Microsoft headers here, so those of mingw-w64 and libstdc++ are used instead. They
# expect GCC for 32-bit x86, without a Microsoft version.
mingw_options() {
  local cxx
  cxx=$(i686-w64-mingw32-g++-posix -print-file-name=include/c++)
  options+=(
    -U_MSC_VER -fms-compatibility-version=0
    -D__GNUC__=12 -D__GNUC_MINOR__=2 -D__GXX_ABI_VERSION=1017 -D__MINGW32__
    -D__i386__ -D_X86_ -D__declspec=__declspec
    -D__GCC_ATOMIC_TEST_AND_SET_TRUEVAL=1 -D__GCC_ATOMIC_POINTER_LOCK_FREE=2
    -DUNICODE -DNOMINMAX -DWIN32_LEAN_AND_MEAN
    -isystem "$cxx" -isystem "$cxx/i686-w64-mingw32" -isystem /usr/i686-w64-mingw32/include
  )
}

case $headers in
  freestanding) options+=(-ffreestanding -isystem "$here/freestanding") ;;
  mingw) mingw_options ;;
  *) echo "unknown headers: $headers" && exit 2 ;;
esac

[[ $# -gt 0 ]] || { echo "no file was given" && exit 2; }
status=0
for file in "$@"; do
  # As an include, so that a header is compiled as one.
  clang++ "${options[@]}" - <<<"#include \"$file\"" || status=1
done
exit "$status"
