# shellcheck shell=bash
# For scripts that source this and tools/windows/lib.sh: has what they build taken from what was
# compiled in another run, wherever its checkout was.

# Fails, with a word on it, where the cache cannot be used.
use_ccache() { # CHECKOUT
  local cache=$toolchain_dir/ccache
  if [[ $cache == /* ]] && mkdir -p "$cache/tmp" && [[ -w $cache && -w $cache/tmp ]] &&
    "$1/tools/setup.sh" cache; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_DIR=$cache CCACHE_MAXSIZE=4G CCACHE_COMPILERCHECK=content
    # Whose language the compiler speaks makes no difference: nothing with a warning is kept.
    export CCACHE_BASEDIR=$1 CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=locale
  else
    say "Everything is compiled anew: $cache cannot be used"
    return 1
  fi
}
