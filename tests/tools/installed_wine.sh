#!/usr/bin/env bash
# Checks how an installed Wine is found and used: installed_wine.sh CHECKOUT
#
# Stand-ins for Wine's programs print how they were started.
set -euo pipefail
# shellcheck source=tests/tools/lib.sh
source "$(dirname "$0")/lib.sh" "$1"

stand_in df 'echo Avail; echo 100000'
stand_in locale 'echo C; echo zh_CN.utf8'
stand_in fc-list 'echo "letters.ttf"'
stand_in wineboot 'mkdir -p "$WINEPREFIX" && echo registry >"$WINEPREFIX/system.reg"'
stand_in wineserver 'exit 0'
stand_in Xvfb 'echo 77 >&3; exec sleep "$LONG_SCREEN"'
stand_in wine 'case "$1" in
  wait.exe) exec sleep "$LONG" ;;
  environment.exe) env | grep -E "^(LANG|LC_|TZ|TMP|TEMP|XDG_|FONTCONFIG_)"; exit ;;
esac
echo "$*, display ${DISPLAY-none}, locale $LC_ALL, input $(cat)"
cat "$WINEPREFIX"/*.reg
echo "a change" >>"$WINEPREFIX/system.reg"
touch "$HOME/left-behind"
exit 7'
run=("$scripts/run.sh")
# Times to sleep that no other program has in its command line.
export LONG=3600.$$ LONG_SCREEN=3700.$$

# says STATUS TEXT COMMAND...: the command has this exit status and this output.
says() {
  local expected=$1 text=$2 status=0
  shift 2
  echo typed | with_stand_ins "$@" >"$folder/out" 2>&1 || status=$?
  [[ $status == "$expected" ]] || fail "exit status $status, not $expected: $*"
  [[ $(cat "$folder/out") == "$text" ]] || fail "said by $*: $(cat "$folder/out")"
}

# If any of it is missing, a root file system is made instead. That takes root, or a package.
stand_in mmdebstrap 'echo "E: no network" >&2; exit 1'
stand_in dpkg-query 'echo installed'
stand_in apt-get 'echo "http://none.invalid stable $(. /etc/os-release; echo $VERSION_CODENAME) main"'
for program in wine wineboot wineserver Xvfb fc-list locale; do
  mv "$folder/bin/$program" "$folder/kept"
  stand_in "$program" 'exit 1'
  [[ $program == wine || $program == wineserver || $program == Xvfb ]] || {
    refuses 'oot' with_stand_ins "$scripts/wine.sh"
    is_clean
  }
  mv "$folder/kept" "$folder/bin/$program"
done
if [[ $EUID -eq 0 ]]; then
  mv "$folder/bin/fc-list" "$folder/kept"
  stand_in fc-list ''
  refuses '"A root file system with 32-bit Wine" failed. Is there a network?' \
    with_stand_ins "$scripts/wine.sh"
  is_clean
  mv "$folder/kept" "$folder/bin/fc-list"
fi

# A Wine that does not run, and one that is stopped by a signal.
mv "$folder/bin/wineboot" "$folder/kept"
stand_in wineboot 'exec sleep "$LONG"'
stopped_by TERM "$LONG" "$scripts/wine.sh"
[[ $status == 143 ]] || fail "exit status $status"
is_clean
mv "$folder/kept" "$folder/bin/wineboot"

accepts with_stand_ins "$scripts/wine.sh"
grep -q 'the installed one is used' "$folder/out" || fail "not used: $(cat "$folder/out")"
is_clean
accepts with_stand_ins "$scripts/wine.sh"
[[ ! -s $folder/out ]] || fail "said for nothing: $(cat "$folder/out")"

# Each program finds everything as the first one did.
for _ in 1 2; do
  says 7 $'program.exe an argument, display none, locale zh_CN.UTF-8, input typed\nregistry' \
    "${run[@]}" program.exe 'an argument'
done
[[ ! -e $HOME/left-behind ]] || fail 'written into the home folder'

# Nothing of the caller's language, time and folders gets through.
says 0 'LC_ALL=zh_CN.UTF-8' env LANG=C LANGUAGE=tr LC_CTYPE=C TZ=Pacific/Kiritimati \
  TMPDIR=/tmp TMP=/tmp TEMP=/tmp XDG_CACHE_HOME="$folder/none" FONTCONFIG_FILE=none \
  "${run[@]}" environment.exe

# With a screen, which ends with the program.
says 7 $'program.exe, display :77, locale zh_CN.UTF-8, input typed\nregistry\n
[Software\\\\Wine\\\\X11 Driver]\n"Managed"="N"' env BRENNET_SCREEN=1 "${run[@]}" program.exe
wait_for 'the screen goes on' runs_not "$LONG_SCREEN"

# Nothing goes on running when it is stopped or killed.
for signal in HUP INT TERM KILL; do
  export BRENNET_SCREEN=1
  stopped_by "$signal" "$LONG" "${run[@]}" wait.exe
  wait_for "the screen goes on after $signal" runs_not "$LONG_SCREEN"
  unset BRENNET_SCREEN
done

# A Wine that is removed later.
rm "$folder/bin/wine"
if ! command -v wine >/dev/null; then
  refuses 'is for a Wine that is not installed any more; remove that folder' \
    with_stand_ins "$scripts/wine.sh"
fi

exit $((failures > 0))
