#!/usr/bin/env bash
# Installs what is missing for the given needs: tools/setup.sh build test ...
#
# Needs: build, test, anywhere, bench, report, fuzz, lint, windows, wine, cache. On Debian and its
# derivatives it looks packages up with dpkg and installs them with apt-get, as root or if sudo asks
# for no password; otherwise it prints the command to run and exits with status 1. On other systems
# only the commands are checked.
set -euo pipefail

declare -A packages=(
  [build]="g++ cmake ninja-build pkg-config libicu-dev qtbase5-dev
           qttools5-dev-tools libcli11-dev nlohmann-json3-dev"
  [test]="qtbase5-private-dev libgtest-dev libgmock-dev clang python3 python3-jsonschema make patch
          xz-utils fonts-dejavu-core fonts-wqy-microhei fonts-noto-cjk"
  [anywhere]="locales tzdata util-linux"
  [bench]="libbenchmark-dev libpugixml-dev librapidxml-dev libtinyxml2-dev libexpat1-dev
           libxml2-dev valgrind python3 fonts-dejavu-core fonts-wqy-microhei"
  [report]="python3-matplotlib"
  [fuzz]="clang libclang-rt-14-dev llvm"
  [lint]="clang-format clang-tidy"
  [windows]="cmake ninja-build pkg-config g++ make patch xz-utils g++-mingw-w64-i686-posix googletest
             clang lld llvm zip unzip python3 qttools5-dev-tools libcli11-dev nlohmann-json3-dev"
  [wine]="mmdebstrap arch-test"
  [cache]="ccache"
)
# shellcheck disable=SC2034  # read through the name reference of words_of
declare -A commands=(
  [build]="g++ cmake ninja lrelease lupdate"
  [test]="ctest python3 make patch xz"
  [anywhere]="localedef setpriv"
  [bench]="valgrind python3"
  [report]="python3"
  [fuzz]="clang++ llvm-cov llvm-profdata"
  [lint]="clang-format clang-tidy"
  [windows]="cmake ninja make patch xz i686-w64-mingw32-g++-posix clang++ lld-link zip unzip python3
             lrelease"
  [wine]="mmdebstrap"
  [cache]="ccache"
)

usage() {
  echo "usage: tools/setup.sh {build|test|anywhere|bench|report|fuzz|lint|windows|wine|cache}..." >&2
  exit 2
}

is_installed() {
  [[ $(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# Prints the words of the given needs, each word once.
words_of() {
  local -n table=$1
  shift
  local need
  for need in "$@"; do
    # shellcheck disable=SC2086  # the words are to be split
    printf '%s\n' ${table[$need]}
  done | sort -u
}

# Prints one line on what is missing and what to do about it.
die() {
  echo "brennet: $*" >&2
  exit 1
}

install_packages() {
  local as_root=()
  if [[ $EUID -ne 0 ]]; then
    sudo -n true 2>/dev/null || die "Packages are missing and take root to install;" \
      "please run: sudo apt-get install --no-install-recommends $*"
    as_root=(sudo -n)
  fi
  echo "Installing: $*"
  # Even if a part of the index cannot be fetched, the packages may still be available.
  "${as_root[@]}" apt-get update -q || true
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "$@" ||
    die "The packages above could not be installed; is there a network? Missing: $*"
}

main() {
  [[ $# -gt 0 ]] || usage
  local need
  for need in "$@"; do
    [[ -n ${packages[$need]:-} ]] || usage
  done

  local missing=() name
  if command -v dpkg-query >/dev/null && command -v apt-get >/dev/null; then
    for name in $(words_of packages "$@"); do
      is_installed "$name" || missing+=("$name")
    done
    [[ ${#missing[@]} -eq 0 ]] || install_packages "${missing[@]}"
    return
  fi

  for name in $(words_of commands "$@"); do
    command -v "$name" >/dev/null || missing+=("$name")
  done
  if [[ ${#missing[@]} -gt 0 ]]; then
    die "Please install these commands: ${missing[*]}" \
      "(the libraries that go with them are listed in tools/setup.sh)."
  fi
}

main "$@"
