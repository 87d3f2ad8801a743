# shellcheck shell=bash disable=SC2034
# Shared by the scripts of this folder, which source it: where the toolchain lives, how a step is
# made once and whole, and how a failure is told.
#
# The toolchain folder holds one folder per thing and version, say qt-5.15.8-1a2b3c4d. It is made
# under another name and renamed when it is whole, so a folder that is there is finished. A list of
# its files with their sizes and rights tells whether it still is.
unset progress hint

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
  # Makefiles and the options of mount take no such names.
  [[ $toolchain_dir != *[[:space:]:,\;\"\'\`\$\&\*\?\#\(\)\<\>\|\!\{\}\[\]\=\%\^\\]* ]] ||
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
  rm -rf --one-file-system "$toolchain_dir"/unfinished.* ||
    die "What an earlier run left in $toolchain_dir cannot be removed; is it still at work?"
}

# A fresh folder to work in; what is whole at the end is moved out of it, the rest is thrown away,
# also when the script is stopped.
make_work_dir() {
  work_dir=
  # Nobody gets impatient while it is cleared up.
  trap 'trap "" HUP INT QUIT TERM; stop_job; rm -rf --one-file-system "$work_dir"' EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 131' QUIT
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
  ! wrong=$(diff "$1/contents.txt" <(contents_of "$1") 2>&1) || return 0
  # The name in the first line that differs; the list itself where there is none.
  wrong=$(LC_ALL=C sed -n 's,^[<>] [0-7]* [0-9]* \./\(.*\) -> .*,\1,p;T;q' <<<"$wrong")
  die "$1 is damaged (${wrong:-contents.txt} is missing or changed); remove that folder and run again."
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
# "progress" names a function, how far it is. The exit status is in "job_status"; this is called in
# no condition, because a function that is the command would go on after its first failure then.
run_job() { # LOG WHAT COMMAND...
  local log=$1 what=$2 started=$SECONDS beat=0
  shift 2
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
  job_status=0
  wait "$job" || job_status=$?
  job=
}

# Does that for a command that has to succeed. When it fails, the end of the log is shown and the
# script ends; "hint" is a question that may help.
logged() { # LOG WHAT COMMAND...
  say "$2"
  run_job "$@"
  [[ $job_status != 0 ]] || return 0
  tail -n 20 "$1" >&2
  local whole=''
  ! cp "$1" "$toolchain_dir/failed.log" 2>/dev/null ||
    whole=" The whole output is in $toolchain_dir/failed.log."
  die "\"$2\" failed.${hint:+ $hint}$whole"
}

# Ends what "run_job" has started and all that this has started.
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

# Fetches the sources of packages of the distribution into the working folder, with a configuration
# of apt of its own below "work_dir", so that the machine's stays as it is. apt compares the files
# with the signed index.
fetch_sources() { # FOR WHAT PACKAGE...
  local for=$1 what=$2 apt=$work_dir/apt
  shift 2
  mkdir -p "$apt/lists/partial" "$apt/archives/partial"
  own_package_sources deb-src >"$apt/sources.list"
  [[ -s $apt/sources.list ]] || die "apt knows no package source; add the distribution's to /etc/apt."
  local options=(-o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=-
    -o "Dir::State::Lists=$apt/lists" -o "Dir::Cache=$apt" -o APT::Sandbox::User=
    -o Acquire::Languages=none)
  local log=$work_dir/fetch.log hint='Is there a network?'
  logged "$log" "$for: fetch the package index" \
    apt-get "${options[@]}" update -qq -o APT::Update::Error-Mode=any
  progress=count_fetched logged "$log" "$for: fetch $what" \
    apt-get "${options[@]}" source -qq --download-only --only-source "$@"
}

count_fetched() {
  echo "$(du -sm "$work_dir" | cut -f 1) MB"
}

# The name of this machine's release, such as bookworm.
own_suite() {
  (. /etc/os-release && echo "$VERSION_CODENAME")
}
