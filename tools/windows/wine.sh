#!/usr/bin/env bash
# Sets up a 32-bit Wine once: tools/windows/wine.sh
#
# Where a Wine that runs 32-bit programs is installed, it is used. Elsewhere a root file system of
# its own is made, because 32-bit packages seldom install beside the machine's own; that takes root,
# a minute and 1.7 GB. Both end with a template of a Wine prefix, of which each program gets a fresh
# copy (run.sh). The locale is Chinese: the ANSI code page is then 936, as on the players' machines.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tools/windows/lib.sh
source "$here/lib.sh"

make_root() {
  local sources
  sources=$(own_package_sources deb)
  [[ -n $sources ]] || die "apt knows no package source; add the distribution's to /etc/apt."
  # run.sh mounts what a program writes at "layers".
  mkdir -p "$work_dir/whole/layers"
  hint='Is there a network?' logged "$work_dir/root.log" "A root file system with 32-bit Wine" \
    mmdebstrap --arch=i386 --variant=apt --include="$wine_packages" \
    --customize-hook="chroot \"\$1\" localedef -i zh_CN -f UTF-8 $wine_locale" \
    --customize-hook='rm -rf "$1"/var/cache/apt/* "$1"/var/lib/apt/lists/* "$1"/usr/share/doc' \
    "$(own_suite)" "$work_dir/whole/root" "$sources"
  mkdir -p "$work_dir/whole/root$wine_home"
  logged "$work_dir/prefix.log" "A Wine prefix" \
    unshare --mount --pid --fork --kill-child bash -euc '
      mount --make-rprivate /
      mount -t proc proc "$1/proc"
      mount --rbind /dev "$1/dev"
      chroot "$1" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME="$2" WINEPREFIX="$2/prefix" \
        LC_ALL="$3" WINEDEBUG=-all sh -c "wineboot --init && wineserver --wait"' \
    make_prefix "$work_dir/whole/root" "$wine_home" "$wine_locale"
}

# Whether the machine has a Wine of its own, and with it the locale, its letters and a screen for
# windows that nobody sees.
has_wine() {
  local program
  for program in wine wineboot wineserver Xvfb fc-list; do
    command -v "$program" >/dev/null || return 1
  done
  [[ -n $(fc-list :lang=zh-cn) ]] && locale -a | grep -ix "${wine_locale/UTF-8/utf-\\?8}" >/dev/null
}

# Makes a 32-bit prefix, where the machine's Wine runs 32-bit programs.
make_prefix_with_installed_wine() {
  # Wine links the folders of the home folder into the user's profile.
  export HOME=$work_dir/home WINEARCH=win32 WINEPREFIX=$work_dir/whole/prefix WINEDEBUG=-all
  export LC_ALL=$wine_locale
  unset DISPLAY
  mkdir -p "$work_dir/whole" "$HOME"
  trap 'wineserver --kill || true' EXIT
  # In the process group of this, which is stopped as a whole.
  timeout --foreground 300 wineboot --init
  timeout --foreground 60 wineserver --wait
}

# Whether Wine is set up; ends the script when it cannot be used.
is_ready() {
  [[ ! -d $wine_dir/root ]] || need_root "Running programs in the root file system of Wine"
  is_finished "$wine_dir" || return 1
  [[ -d $wine_dir/root ]] || command -v wine >/dev/null ||
    die "$wine_dir is for a Wine that is not installed any more; remove that folder and run again."
}

main() {
  if is_ready; then return; fi
  open_toolchain_dir
  # Another run may have finished it while this one waited.
  if is_ready; then return; fi
  need_free_space 2500
  make_work_dir
  if has_wine; then
    run_job "$work_dir/prefix.log" "A prefix of the installed Wine" make_prefix_with_installed_wine
  fi
  if [[ ${job_status-1} == 0 ]]; then
    say "Wine: the installed one is used"
  else
    rm -rf "$work_dir/whole"
    need_root "No 32-bit Wine is installed, and making a root file system for one"
    "$here/../setup.sh" wine
    make_root
  fi
  put_in_place "$work_dir/whole" "$wine_dir"
  say "Wine is ready"
}

main
