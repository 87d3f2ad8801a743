#!/usr/bin/env bash
# Runs a Windows program under Wine and ends with its exit status:
# tools/windows/run.sh PROGRAM.exe ARGUMENT...
#
# The program finds the registry and the profile folder as a new user would, whatever ran before,
# and nothing of Wine is left running when it ends. It sees this checkout, the toolchain folder and
# the working folder under their own names (drive Z: is the root), unless Wine has one of that name.
# DLLs are looked for beside the program and in the folders of WINEPATH. With BRENNET_SCREEN=1 there
# is a screen of its own, which nobody sees, with BRENNET_SCREEN=1024x768 one of that size; else
# windows are made without one.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tools/windows/lib.sh
source "$here/lib.sh"
checkout=$(cd "$here/../.." && pwd)

# Runs a command and ends with its exit status; kills it when this script is told to end, and has the
# system kill it when the script is killed. It runs in the background, because a signal does not end
# the waiting for anything else.
stoppable() {
  local status=0
  setpriv --pdeathsig KILL "$@" <&0 &
  # shellcheck disable=SC2064  # the process of now
  trap "kill -KILL $!; exit 143" HUP INT TERM
  wait $! || status=$?
  exit "$status"
}

# Starts a screen that nobody sees, and lets DISPLAY name it.
start_screen() { # PREFIX LOG_FOLDER COMMAND...
  local prefix=$1 log=$2 number tries=0 size=1280x1024
  shift 2
  if [[ $BRENNET_SCREEN == *x* ]]; then size=$BRENNET_SCREEN; fi
  # The number is one that no other program has at the moment.
  "$@" -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$log/screen" >"$log/screen.log" 2>&1 &
  until read -r number 2>/dev/null <"$log/screen"; do
    if ((++tries == 300)); then
      cat "$log/screen.log" >&2
      echo "brennet: The screen for windows does not start." >&2
      exit 1
    fi
    sleep 0.1
  done
  export DISPLAY=:$number
  # No window manager is there to wait for.
  printf '%s\n' '' '[Software\\Wine\\X11 Driver]' '"Managed"="N"' >>"$prefix/user.reg"
}

# In namespaces of its own: mounts and processes go with the program. What is written to the root
# file system goes to memory, so that the next program finds it fresh.
run_in_root() {
  need_root "Running programs in the root file system of Wine"
  export -f start_screen
  stoppable unshare --mount --pid --fork --kill-child bash -euc '
    wine_dir=$1 home=$2 locale=$3
    shift 3
    mount --make-rprivate /
    layers=$wine_dir/layers
    mount -t tmpfs none "$layers"
    mkdir "$layers/upper" "$layers/work" "$layers/root"
    root=$layers/root
    mount -t overlay overlay \
      -o "lowerdir=$wine_dir/root,upperdir=$layers/upper,workdir=$layers/work" "$root"
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    # Wine looks there for processors, which only benchmarks ask for.
    mount --bind -o ro /sys "$root/sys" 2>/dev/null || true
    for folder in "$checkout" "$toolchain_dir" "$PWD"; do
      # What is there already is part of Wine, or was mounted with a folder above it.
      [[ ! -e $root$folder ]] || continue
      mkdir -p "$root$folder"
      mount --rbind "$folder" "$root$folder"
    done
    unset DISPLAY
    [[ -z ${BRENNET_SCREEN-} ]] ||
      start_screen "$root$home/prefix" "$root/tmp" chroot "$root" Xvfb
    status=0
    chroot "$root" env -u "BASH_FUNC_start_screen%%" --chdir="$PWD" \
      HOME="$home" WINEPREFIX="$home/prefix" LC_ALL="$locale" PATH=/usr/bin:/bin \
      wine "$@" || status=$?
    exit $status' run_in_root "$wine_dir" "$wine_home" "$wine_locale" "$@"
}

# When this script is killed, the program ends with it, but not what the program has started; that
# Wine ends by itself.
run_with_installed_wine() {
  local folder
  folder=$(mktemp -d)
  # Wine links the folders of the home folder into the user's profile.
  export HOME=$folder WINEPREFIX=$folder/prefix
  # shellcheck disable=SC2064  # the folder of now
  trap "wineserver --kill 2>/dev/null || true; wineserver --wait || true; rm -rf '$folder'" EXIT
  cp -a "$wine_dir/prefix" "$WINEPREFIX"
  unset DISPLAY
  [[ -z ${BRENNET_SCREEN-} ]] ||
    start_screen "$WINEPREFIX" "$folder" setpriv --pdeathsig KILL Xvfb  # it ends with this script
  stoppable env LC_ALL="$wine_locale" wine "$@"
}

# Wine hands on what it finds in the environment, and programs ask it for the language and the time.
leave_callers_world() {
  local name
  for name in $(compgen -e); do
    case $name in
      LANG | LANGUAGE | LC_* | TZ | TMPDIR | TMP | TEMP | XDG_* | FONTCONFIG_*) unset "$name" ;;
    esac
  done
}

main() {
  [[ $# -gt 0 ]] || { echo "usage: tools/windows/run.sh PROGRAM.exe ARGUMENT..." >&2 && exit 2; }
  leave_callers_world
  # Wine is silent but for the DLLs that it does not find.
  export WINEDEBUG=${WINEDEBUG:--all,err+module} checkout toolchain_dir
  if [[ -d $wine_dir/root ]]; then
    run_in_root "$@"
  elif [[ -d $wine_dir ]]; then
    run_with_installed_wine "$@"
  fi
  die "Wine is not set up; run tools/windows/wine.sh."
}

main "$@"
