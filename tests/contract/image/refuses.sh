#!/usr/bin/env bash
# Builds a library that is wrong in one way, and fails unless check.py reports exactly the given
# facts as broken: refuses.sh CASE RESOURCE_SCRIPT VERSION [FACT...]
# Facts are named in the order of check.py; there are none for "sound".
set -euo pipefail

case=$1
resource_script=$2
version=$3
expected=${*:4}

here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"

# What the cases change.
target=i686-pc-windows-msvc
imported=kernel32
compiler_options=()
linker_options=(/dll)
resource_edit=
objects=(sample.obj imported.lib version.res)
stripped=()

case $case in
  sound) ;;
  64-bit) target=x86_64-pc-windows-msvc ;;
  program) linker_options=(/subsystem:console) ;;
  no-export) compiler_options=(-DGetBrennetPtr=other) ;;
  second-export) linker_options+=(/export:another) ;;
  nameless-export) linker_options+=(/export:another,@7,NONAME) ;;
  decorated-export) compiler_options=(-DDECORATED) ;;
  unknown-import) imported=unknown ;;
  delayed-import)
    imported=unknown
    linker_options+=(/delayload:unknown.dll)
    ;;
  one-place) linker_options+=(/dynamicbase:no) ;;
  data-may-run) linker_options+=(/nxcompat:no) ;;
  fixed) linker_options+=(/fixed) ;;
  stripped) stripped=(--remove-section=.reloc) ;;
  no-version) objects=(sample.obj imported.lib) ;;
  other-version) resource_edit='s/^FILEVERSION .*/FILEVERSION 9,9,9,0/' ;;
  other-version-text) resource_edit='/"FileVersion"/s/, .*/, "9.9.9"/' ;;
  other-product) resource_edit='/"ProductName"/s/, .*/, "Another"/' ;;
  no-description) resource_edit='/"FileDescription"/d' ;;
  folder) compiler_options=('-DFOLDER="/home/maker/brennet/model/x.cpp"') ;;
  wide-folder) compiler_options=('-DFOLDER=L"D:\\home\\maker\\brennet\\model"') ;;
  *) echo "unknown case: $case" && exit 1 ;;
esac

compile() { # OPTION...
  clang++ --target="$target" -std=c++17 -O1 -c "$@"
}

link() { # OUTPUT ARGUMENT...
  lld-link /nologo /safeseh:no /nodefaultlib /out:"$1" "${@:2}"
}

# Only its import library is used.
build_imported() {
  echo 'extern "C" __declspec(dllexport) void help() {}' | compile -x c++ - -o imported.obj
  link "$imported.dll" /dll /noentry /implib:imported.lib imported.obj
}

build_library() {
  compile "${compiler_options[@]}" "$here/Sample.cpp" -o sample.obj
  sed "$resource_edit" "$resource_script" >version.rc
  i686-w64-mingw32-windres --output-format=res version.rc version.res
  link Brennet.dll /entry:DllMain /implib:own.lib "${linker_options[@]}" "${objects[@]}"
  if [[ ${#stripped[@]} -gt 0 ]]; then
    i686-w64-mingw32-objcopy "${stripped[@]}" Brennet.dll
  fi
}

build_imported
build_library
status=0
told=$(python3 -B "$here/check.py" Brennet.dll "$version" all /home/maker/brennet) || status=$?
printf '%s\n' "$told"
broken=$(sed -n 's/^broken fact: //p' <<<"$told" | paste -sd ' ')
expected_status=0
[[ -z $expected ]] || expected_status=1
if [[ $broken != "$expected" || $status -ne $expected_status ]]; then
  echo "It ended with $status and told \"$broken\" to be broken, where \"$expected\" is."
  exit 1
fi
