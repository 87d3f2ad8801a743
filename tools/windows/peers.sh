#!/usr/bin/env bash
# Builds what benchmarks need as 32-bit Windows programs, once, from the distribution's own source
# packages: tools/windows/peers.sh [--folder]
#
# These are Google Benchmark and the parsers that we measure ourselves against. With --folder it only
# prints where they are or would be.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tools/windows/lib.sh
source "$here/lib.sh"

# Package, version, and options of its configuration.
packages=(
  'benchmark 1.7.1 -DGIT_VERSION=1.7.1 -DBENCHMARK_ENABLE_TESTING=OFF'
  'pugixml 1.13 -DPUGIXML_BUILD_TESTS=OFF'
  'tinyxml2 9.0.0 -Dtinyxml2_BUILD_TESTING=OFF'
)
# Headers alone, the same for all processors.
headers=/usr/include/rapidxml
toolchain=$here/../../cmake/mingw-i686.cmake
key=$(key_of "${packages[@]}" "$headers" "$(cat "$toolchain")" 1)
peers_dir=$toolchain_dir/peers-$key

unpack() { # PACKAGE VERSION
  local tarball name
  tarball=$(compgen -G "$1_$2*.orig.tar.*z") ||
    die "This distribution has no $1 $2, which Debian 12 has."
  mkdir "$1"
  tar -xaf "$tarball" -C "$1" --strip-components=1
  tar -xaf "$1_$2"*.debian.tar.xz -C "$1"
  while read -r name; do
    patch -d "$1" -p1 -s <"$1/debian/patches/$name"
  done < <(sed '/^ *\(#\|$\)/d' "$1/debian/patches/series")
}

build() { # PACKAGE VERSION OPTION...
  local name=$1
  unpack "$1" "$2"
  cmake -S "$name" -B "$name/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DCMAKE_INSTALL_PREFIX=/opt/brennet-peers "${@:3}"
  cmake --build "$name/build"
  cmake --install "$name/build" --prefix "$work_dir/stage"
}

build_all() {
  local row options
  for row in "${packages[@]}"; do
    read -r -a options <<<"$row"
    build "${options[@]}"
  done
  mkdir -p "$work_dir/stage/include"
  cp -R "$headers" "$work_dir/stage/include/"
}

main() {
  if [[ ${1:-} == --folder ]]; then
    echo "$peers_dir"
    return
  fi
  if is_finished "$peers_dir"; then return; fi
  open_toolchain_dir
  # Another run may have finished it while this one waited.
  if is_finished "$peers_dir"; then return; fi
  need_free_space 200
  make_work_dir
  cd "$work_dir"
  fetch_sources Peers "the sources of the peers, 2 MB" "${packages[@]%% *}"
  [[ -d $headers ]] || die "There is no $headers; run tools/setup.sh bench."
  local hint='Is the disk full?'
  logged "$work_dir/build.log" "Peers: build" build_all
  put_in_place "$work_dir/stage" "$peers_dir"
  say "The peers are ready"
}

main "$@"
