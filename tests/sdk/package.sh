#!/usr/bin/env bash
# Makes the zip and unpacks it for the other tests: package.sh WORK BUILD CHECKOUT VERSION QT_DIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tests/sdk/lib.sh
source "$here/lib.sh"

work=$1 build=$2 checkout=$3 version=$4 qt_dir=$5
name=brennet-sdk-$version

empty_folder "$work"
cd "$work"
export SOURCE_DATE_EPOCH=1500000000
quietly "$checkout/tools/sdk.sh" "$build" first

# Neither the hour nor the person's own settings get into it.
(umask 077 && export TZ=Asia/Shanghai && quietly "$checkout/tools/sdk.sh" "$build" second)
cmp "first/$name.zip" "second/$name.zip" || fail 'the same build gives another zip'
zipinfo -v "first/$name.zip" >entries
! grep -E 'length of extra field: +[1-9]' entries ||
  fail 'the zip tells more of its files than names and times'
[[ $(ls first second | tr '\n' ' ') == "first: $name.zip  second: $name.zip " ]] ||
  fail "more than the zip was left: $(ls -R first second)"

quietly unzip -q "first/$name.zip" -d unpacked
[[ $(ls unpacked) == "$name" ]] || fail "the top folder is $(ls unpacked)"
package=unpacked/$name
expect_files "$package" <"$here/windows.list"
expect_relocatable "$package"

# No folder of this machine is named; the licence texts tell where a Debian system keeps its copies.
leaks=$(find "$package" -type f -exec \
  grep -alF -e "$checkout" -e "$build" -e "$qt_dir" -e "$HOME/." {} + || true)
leaks+=$(grep -alE '/usr/(lib|include|src|i686)' "$package"/{bin,lib}/*.* || true)
[[ -z $leaks ]] || fail "folders of this machine are named in $leaks"

# The import library for Microsoft's linker asks for the name that the DLL exports.
llvm-readobj --coff-exports "$package/bin/Brennet.dll" >exports
[[ $(grep -c 'Name: ' exports) == 1 ]] || fail "not one export: $(cat exports)"
says 'Name: GetBrennetPtr' exports
llvm-readobj "$package/lib/Brennet.lib" >imports
says 'Symbol: _GetBrennetPtr' imports
says 'Name type: noprefix' imports
