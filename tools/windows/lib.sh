# shellcheck shell=bash disable=SC2034
# Shared by the scripts of this folder, which source it: where the toolchain lives, how a step is
# made once and whole, and how a failure is told.
#
# The toolchain folder holds one folder per thing and version, say qt-5.15.8-1a2b3c4d. It is made
# under another name and renamed when it is whole, so a folder that is there is finished. A list of
# its files tells whether it still is as it was then.

# Where nobody says so, the shell knows the home folder from the user's entry.
export HOME=${HOME:-$(unset HOME && echo ~)}
[[ ${XDG_CACHE_HOME-} == /* ]] || XDG_CACHE_HOME=$HOME/.cache
toolchain_dir=${BRENNET_TOOLCHAIN_DIR:-$XDG_CACHE_HOME/brennet}
# The build compares names of folders, so that each has one.
while [[ $toolchain_dir == ?*/ ]]; do toolchain_dir=${toolchain_dir%/}; done

# Eight hexadecimal digits that change when one of the arguments does.
key_of() {
  printf '%s\n' "$@" | sha256sum | cut -c1-8
}

# What wine.sh sets up and run.sh uses.
wine_packages=wine,wine32,locales,fonts-wqy-microhei,xvfb
wine_locale=zh_CN.UTF-8
wine_home=/home/wine
wine_dir=$toolchain_dir/wine-$(key_of "$wine_packages" "$wine_locale" "$wine_home" 2)

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
  # Neither makefiles nor the options of mount take other names.
  [[ $toolchain_dir != *[^[:alnum:]/._+@%~-]* ]] ||
    die "The name $toolchain_dir has blanks or signs that compilers stumble over;" \
      "set BRENNET_TOOLCHAIN_DIR to another folder."
  local lock=$toolchain_dir/lock
  mkdir -p "$toolchain_dir" 2>/dev/null && [[ -w $toolchain_dir && (! -e $lock || -w $lock) ]] ||
    die "Cannot write to the folder $toolchain_dir; set BRENNET_TOOLCHAIN_DIR to another one."
  exec 9>"$lock"
  flock --nonblock 9 || {
    say "Waiting for another run that sets up the toolchain"
    flock 9
  }
  rm -rf --one-file-system "$toolchain_dir"/unfinished.*
}

# A fresh folder to work in; what is whole at the end is moved out of it, the rest is thrown away,
# also when the script is stopped.
make_work_dir() {
  work_dir=
  trap 'stop_job; rm -rf --one-file-system "$work_dir"' EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM
  work_dir=$(mktemp -d "$toolchain_dir/unfinished.XXXXXX")
  # Programs that are not root look things up in it.
  chmod 755 "$work_dir"
}

# Every file of a folder but the list itself, with its rights, its size and what it links to.
contents_of() { # FOLDER
  (cd "$1" && find . ! -type d ! -path ./contents.txt -printf '%m %s %p -> %l\n' | LC_ALL=C sort)
}

# Gives a folder of the work folder its place in the toolchain folder.
put_in_place() { # FROM TO
  contents_of "$1" >"$1/contents.txt"
  mv "$1" "$2"
}

# Whether a folder is there; ends the script when it is not as it was when it was finished.
is_finished() { # FOLDER
  [[ -d $1 ]] || return 1
  local wrong
  wrong=$({ diff "$1/contents.txt" <(contents_of "$1") 2>/dev/null || [[ $? == 1 ]]; } ||
    echo '< 0 0 ./contents.txt -> ')
  wrong=$(sed -n 's,^[<>] [0-7]* [0-9]* \./\(.*\) -> .*,\1,p;T;q' <<<"$wrong")
  [[ -z $wrong ]] ||
    die "$1 is damaged ($wrong is missing or changed); remove that folder and run again."
}

need_free_space() { # MEBIBYTES
  local free
  free=$(df --output=avail -m "$toolchain_dir" | tail -n 1)
  ((free >= $1)) ||
    die "$toolchain_dir needs $1 MiB of free space and has $((free)); free some or set BRENNET_TOOLCHAIN_DIR."
}

need_root() { # WHAT FOR
  [[ $EUID -eq 0 ]] ||
    die "$1 needs root; run the same command as root, with BRENNET_TOOLCHAIN_DIR=$toolchain_dir."
}

# Runs a command with its output in a log file; tells every 20 seconds how long it has run and, when
# "progress" names a function, how far it is. When the command fails, the end of the log is shown
# and the script ends; "hint" is a question that may help.
logged() { # LOG WHAT COMMAND...
  local log=$1 what=$2 started=$SECONDS beat=0
  shift 2
  say "$what"
  # A process group of its own, so that everything below it can be stopped.
  set -m
  "$@" >"$log" 2>&1 </dev/null 9>&- &
  job=$!
  set +m
  while kill -0 "$job" 2>/dev/null; do
    sleep 0.2
    if ((++beat % 100 == 0)); then
      say "$what: $((SECONDS - started)) s${progress:+, $($progress)}"
    fi
  done
  local status=0
  wait "$job" || status=$?
  job=
  if [[ $status != 0 ]]; then
    tail -n 20 "$log" >&2
    cp "$log" "$toolchain_dir/failed.log"
    die "\"$what\" failed.${hint:+ $hint} The whole output is in $toolchain_dir/failed.log."
  fi
}

# Ends what "logged" has started and all that this has started.
stop_job() {
  [[ -n ${job-} ]] || return 0
  kill -TERM -- "-$job" 2>/dev/null || return 0
  for _ in {1..50}; do
    kill -0 -- "-$job" 2>/dev/null || return 0
    sleep 0.1
  done
  kill -KILL -- "-$job" 2>/dev/null || true
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
