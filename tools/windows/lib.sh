# shellcheck shell=bash disable=SC2034
# Shared by the scripts of this folder, which source it: where the toolchain lives, how a step is
# made once and whole, and how a failure is told.
#
# The toolchain folder holds one folder per thing and version, say qt-5.15.8-1a2b3c4d. It is made
# under another name and renamed when it is whole, so a folder that is there is finished.

# Where nobody says so, the shell knows the home folder from the user's entry.
export HOME=${HOME:-$(unset HOME && echo ~)}
toolchain_dir=${BRENNET_TOOLCHAIN_DIR:-${XDG_CACHE_HOME:-$HOME/.cache}/brennet}

# Eight hexadecimal digits that change when one of the arguments does.
key_of() {
  printf '%s\n' "$@" | sha256sum | cut -c1-8
}

# What wine.sh sets up and run.sh uses.
wine_packages=wine,wine32,locales,fonts-wqy-microhei,xvfb
wine_locale=zh_CN.UTF-8
wine_home=/home/wine
wine_dir=$toolchain_dir/wine-$(key_of "$wine_packages" "$wine_locale" "$wine_home" 1)

say() {
  echo "-- $*"
}

# One line on what is missing and what to do about it; nothing else of the script runs.
die() {
  echo "brennet: $*" >&2
  exit 1
}

# Makes the toolchain folder, keeps other runs out until this one ends, and removes what a run that
# was stopped half-way left behind.
open_toolchain_dir() {
  [[ $toolchain_dir == /* ]] ||
    die "BRENNET_TOOLCHAIN_DIR must be an absolute path, and is \"$toolchain_dir\"."
  mkdir -p "$toolchain_dir" 2>/dev/null && [[ -w $toolchain_dir ]] ||
    die "Cannot write to the folder $toolchain_dir; set BRENNET_TOOLCHAIN_DIR to another one."
  exec 9>"$toolchain_dir/lock"
  flock --nonblock 9 || {
    say "Waiting for another run that sets up the toolchain"
    flock 9
  }
  rm -rf --one-file-system "$toolchain_dir"/unfinished.*
}

# A fresh folder to work in; what is whole at the end is moved out of it, the rest is thrown away.
make_work_dir() {
  work_dir=$(mktemp -d "$toolchain_dir/unfinished.XXXXXX")
  # Programs that are not root look things up in it.
  chmod 755 "$work_dir"
}

need_free_space() { # MEBIBYTES
  local free
  free=$(df --output=avail -m "$toolchain_dir" | tail -n 1)
  ((free >= $1)) ||
    die "$toolchain_dir needs $1 MiB of free space and has $free; free some or set BRENNET_TOOLCHAIN_DIR."
}

need_root() { # WHAT FOR
  [[ $EUID -eq 0 ]] ||
    die "$1 needs root; run the same command as root, with BRENNET_TOOLCHAIN_DIR=$toolchain_dir."
}

# Runs a command with its output in a log file; tells every 20 seconds how long it has run and, when
# "progress" names a function, how far it is. When the command fails, the end of the log is shown
# and the script ends.
logged() { # LOG WHAT COMMAND...
  local log=$1 what=$2 started=$SECONDS beat=0
  shift 2
  say "$what"
  "$@" >"$log" 2>&1 9>&- &
  local pid=$!
  while kill -0 "$pid" 2>/dev/null; do
    sleep 1
    if ((++beat % 20 == 0)); then
      say "$what: $((SECONDS - started)) s${progress:+, $($progress)}"
    fi
  done
  if ! wait "$pid"; then
    tail -n 20 "$log" >&2
    cp "$log" "$toolchain_dir/failed.log"
    die "\"$what\" failed; the whole output is in $toolchain_dir/failed.log."
  fi
}

# The package sources of this machine's own release, as lines for a sources.list with the given
# type. Updates are left out: their indexes change under way, and nothing of it is shipped but Qt.
own_package_sources() { # deb|deb-src
  apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(CODENAME) $(COMPONENT) $(TRUSTED)' \
    'Created-By: Packages' | awk -v type="$1" -v suite="$(own_suite)" '
      ($2 == suite || $3 == suite) && $4 == "main" && !seen[$1]++ {
        print type ($5 == "yes" ? " [trusted=yes]" : ""), $1, $2, $4
      }'
}

# The name of this machine's release, such as bookworm.
own_suite() {
  (. /etc/os-release && echo "$VERSION_CODENAME")
}
