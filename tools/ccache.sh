# shellcheck shell=bash
# For scripts that source this and tools/windows/lib.sh: makes their builds reuse what another run
# has compiled, wherever its checkout was.

# Fails, with a message, if the cache cannot be used.
use_ccache() { # CHECKOUT
  local cache=$toolchain_dir/ccache
  if [[ $cache == /* ]] && mkdir -p "$cache/tmp" && [[ -w $cache && -w $cache/tmp ]] &&
    "$1/tools/setup.sh" cache; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_DIR=$cache CCACHE_MAXSIZE=4G CCACHE_COMPILERCHECK=content
    # The language of the compiler's messages does not matter: nothing with a warning is kept.
    export CCACHE_BASEDIR=$1 CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=locale
  else
    say "Everything is compiled anew: $cache cannot be used"
    return 1
  fi
}
