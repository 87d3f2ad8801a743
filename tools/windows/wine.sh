#!/usr/bin/env bash
# Sets up a 32-bit Wine once: tools/windows/wine.sh
#
# Where a Wine that runs 32-bit programs is installed, it is used. Elsewhere a root file system of
# its own is made, because 32-bit packages seldom install beside the machine's own; that takes root,
# a minute and 1 GB. Both end with a template of a Wine prefix, of which each program gets a fresh
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
  logged "$work_dir/root.log" "A root file system with 32-bit Wine" \
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

# Succeeds when the machine's own Wine makes a 32-bit prefix and the machine has the locale.
make_prefix_with_installed_wine() {
  command -v wineboot >/dev/null && command -v wineserver >/dev/null || return 1
  locale -a | grep -qix "${wine_locale/UTF-8/utf-\\?8}" || return 1
  mkdir -p "$work_dir/whole" "$work_dir/home"
  (
    # Wine links the folders of the home folder into the user's profile.
    export HOME=$work_dir/home WINEARCH=win32 WINEPREFIX=$work_dir/whole/prefix WINEDEBUG=-all LC_ALL=$wine_locale
    unset DISPLAY
    timeout 300 wineboot --init && timeout 60 wineserver --wait
  ) >"$work_dir/prefix.log" 2>&1 9>&- && return
  rm -rf "$work_dir/whole"
  return 1
}

main() {
  open_toolchain_dir
  if [[ -d $wine_dir ]]; then
    local prefix=$wine_dir/prefix
    [[ ! -d $wine_dir/root ]] || prefix=$wine_dir/root$wine_home/prefix
    [[ -s $prefix/system.reg ]] ||
      die "$wine_dir is damaged (system.reg is missing); remove that folder and run again."
    return
  fi
  need_free_space 2500
  make_work_dir
  trap 'rm -rf --one-file-system "$work_dir"' EXIT
  if make_prefix_with_installed_wine; then
    say "Wine: the installed one is used"
  else
    need_root "No 32-bit Wine is installed, and making a root file system for one"
    "$here/../setup.sh" wine
    make_root
  fi
  mv "$work_dir/whole" "$wine_dir"
  say "Wine is ready"
}

main
