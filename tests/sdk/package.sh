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

# Neither the time nor the user's settings get into it.
(umask 077 && export TZ=Asia/Shanghai && quietly "$checkout/tools/sdk.sh" "$build" second)
for zip in "$name.zip" "$name-symbols.zip"; do
  cmp "first/$zip" "second/$zip" || fail "the same build gives another $zip"
done
zipinfo -v "first/$name.zip" >entries
! grep -E 'length of extra field: +[1-9]' entries ||
  fail 'the zip tells more of its files than names and times'
zips="$name-symbols.zip $name.zip"
[[ $(ls first second | tr '\n' ' ') == "first: $zips  second: $zips " ]] ||
  fail "more than the zips was left: $(ls -R first second)"

quietly unzip -q "first/$name.zip" -d 'un packed 包'
quietly unzip -q "first/$name-symbols.zip" -d symbols
[[ $(ls 'un packed 包') == "$name" ]] || fail "the top folder is $(ls 'un packed 包')"
package="un packed 包/$name"
expect_files "$package" <"$here/windows.list"
expect_relocatable "$package"

# No folder of this machine is named, except where licence texts name the copies of Debian systems.
leaks=$(find "$package" -type f -exec \
  grep -alF -e "$checkout" -e "$build" -e "$qt_dir" -e "$HOME/." {} + || true)
leaks+=$(grep -alE '/usr/(lib|include|src|i686)' "$package"/{bin,lib}/*.* || true)
[[ -z $leaks ]] || fail "folders of this machine are named in $leaks"

# Expects a text in a file of licences/; such a file is too long to be shown.
names() { # TEXT FILE
  grep -qF -- "$1" "$package/licences/$2" || fail "\"$1\" is not in $2"
}

# Each file under bin/ is named with its terms, and each text that is named is there.
while read -r file; do
  names "\`$file\`" NOTICE.md
done < <(cd "$package" && find bin -type f)
grep -oE '`[A-Za-z0-9.-]+\.txt`' "$package/licences/NOTICE.md" | tr -d '`' | sort -u >texts
[[ $(wc -l <texts) -ge 9 ]] || fail "few texts are named: $(cat texts)"
while read -r file; do
  [[ -s $package/licences/$file ]] || fail "NOTICE.md names $file, which is not there"
done <texts

# So are all texts that others refer to by their place on a Debian system, where names without a
# version mean the last one.
grep -ohE 'common-licenses/[A-Z][A-Za-z0-9.-]*[A-Za-z0-9]' "$package"/licences/*.txt | sort -u |
  sed -E 's|.*/||; s/^(L?GPL)$/\1-3/' >texts
[[ $(wc -l <texts) -ge 3 ]] || fail "few texts are referred to: $(cat texts)"
while read -r file; do
  [[ -s $package/licences/$file.txt ]] || fail "a text refers to $file, which is not there"
done <texts

# The runtime's licence texts name the parts that are shipped, and the list of other people's code
# in Qt has each part.
names 'GCC RUNTIME LIBRARY EXCEPTION' gcc-runtime.txt
names ' - libgcc (' gcc-runtime.txt
names ' - libstdc++-v3' gcc-runtime.txt
names 'Files: mingw-w64-libraries/winpthreads/*' mingw-w64.txt
"$package/licences/qt-build/qt_licences.sh" --parts >parts
[[ $(wc -l <parts) -ge 30 ]] || fail "few parts of Qt are named: $(cat parts)"
while read -r part; do
  names " [$part]" qt-parts.txt
done <parts
[[ $(grep -cE '^[^ ].* \[[A-Za-z0-9_-]+\]$' "$package/licences/qt-parts.txt") == $(wc -l <parts) ]] ||
  fail 'the list has a part that is not built'

# Links in the documents lead to files of the package.
while IFS=: read -r document link; do
  target=$(dirname "$document")/${link%%#*}
  [[ -e $target ]] || fail "$document links to $link, which is not there"
done < <(find "$package" -name '*.md' -exec grep -oHE '\]\([^)h][^)]*\)' {} + |
  sed -E 's/:\]\(/:/; s/\)$//')

# The import library for Microsoft's linker asks for the name that the DLL exports.
llvm-readobj --coff-exports "$package/bin/Brennet.dll" >exports
[[ $(grep -c 'Name: ' exports) == 1 ]] || fail "not one export: $(cat exports)"
says 'Name: GetBrennetPtr' exports
llvm-readobj "$package/lib/Brennet.lib" >imports
says 'Symbol: _GetBrennetPtr' imports
says 'Name type: noprefix' imports

# The checksums are right, and no file is left out.
(cd "$package" && quietly sha256sum --check --strict SHA256SUMS)
cut -c 67- "$package/SHA256SUMS" >summed
expect_files "$package" < <(LC_ALL=C sort summed <(echo SHA256SUMS))
python3 -B "$here/check_bill.py" "$package" "$version"

# A debugger finds the symbols of what is ours, and they have names of functions.
for file in Brennet.dll BrennetCheck.dll brennet.exe brennet-host.exe; do
  symbols=symbols/$name-symbols/bin/$file.debug
  i686-w64-mingw32-objdump -h "$package/bin/$file" >sections
  says .buildid sections
  says .gnu_debuglink sections
  i686-w64-mingw32-nm "$symbols" >names.of
  [[ $(wc -l <names.of) -ge 100 ]] || fail "$symbols names few functions"
done
