#!/usr/bin/env bash
# Checks how tools/windows/qt.sh makes its folder: once, whole, and without a trace if it fails or
# is stopped: windows_setup.sh CHECKOUT
#
# A stand-in for Qt's source builds in a moment.
set -euo pipefail
# shellcheck source=tests/tools/lib.sh
source "$(dirname "$0")/lib.sh" "$1"

# The configure script writes makefiles for every folder that is built, and records that it ran. It
# requires the distribution's fix.
make_source() {
  mkdir -p source/src debian/patches
  echo broken >source/file
  cat >source/configure <<'CONFIGURE'
#!/bin/sh
echo configured >>"$RUNS"
# Whose sleep is ended writes nothing more.
[ -z "${SLOW-}" ] || sleep "$LONG" || exit 1
grep -q fixed ../source/file || exit 1
mkdir -p bin src/platformsupport/a
echo qmake >bin/qmake
printf 'sub-src-qmake_all install_mkspecs:\n' >Makefile
printf 'sub-widgets sub-testlib sub-winmain sub-platformsupport:\n\t%s\n' "${MAKES-}" >src/Makefile
for part in winmain corelib gui widgets testlib tools/moc tools/rcc tools/uic platformsupport/a \
  plugins/platforms/windows plugins/platforms/offscreen plugins/styles/windowsvista; do
  mkdir -p "src/$part"
  printf 'all install:\n' >"src/$part/Makefile"
done
{
  echo "at = \$(INSTALL_ROOT)/opt/brennet-qt"
  echo "all:"
  echo "install:"
  for file in bin/Qt5Core.dll bin/Qt5Gui.dll bin/Qt5Widgets.dll bin/Qt5Test.dll bin/moc bin/rcc \
    bin/uic lib/cmake/Qt5Widgets/Qt5WidgetsConfig.cmake plugins/platforms/qwindows.dll \
    plugins/platforms/qoffscreen.dll plugins/styles/qwindowsvistastyle.dll; do
    [ "$file" = "${LEAVES_OUT-}" ] || printf '\tmkdir -p $(at)/%s && echo whole >$(at)/%s\n' \
      "$(dirname "$file")" "$file"
  done
} >src/corelib/Makefile
CONFIGURE
  chmod +x source/configure
  printf '%s\n' '--- a/file' '+++ b/file' '@@ -1 +1 @@' '-broken' '+fixed' >debian/patches/fix.diff
  printf '%s\n' '# Fixes' fix.diff '# Debian specific.' of-their-own.diff >debian/patches/series
  tar -cJf "$folder/qtbase-opensource-src_5.15.8+dfsg.orig.tar.xz" source
  tar -cJf "$folder/qtbase-opensource-src_5.15.8+dfsg-1.debian.tar.xz" debian
}
(mkdir "$folder/package" && cd "$folder/package" && make_source)

stand_in apt-get "case \"\$*\" in
  indextargets*) echo \"http://none.invalid stable \$(. /etc/os-release; echo \$VERSION_CODENAME) main\" ;;
  *\" source \"*) cp $folder/*.tar.xz . ;;
esac"
stand_in df 'echo Avail; echo 100000'
printf '#!/bin/sh\nmkdir "$2" && echo theirs >"$2/attributions.txt"\n' >"$scripts/qt_licences.sh"
# A time to sleep that no other program has in its command line.
export RUNS=$folder/runs LONG=3600.$$
qt=$("$scripts/qt.sh" --folder)

# expect_runs COUNT: the source has been configured that often since the last call.
expect_runs() {
  local count
  count=$(wc -l <"$RUNS")
  [[ $count == "$1" ]] || fail "built $count times, not $1"
  : >"$RUNS"
}
: >"$RUNS"

# A build that fails, in each of its steps.
refuses '"Qt (3/4): libraries" failed. The whole output is in' \
  env MAKES=false PATH="$folder/bin:$PATH" "$scripts/qt.sh"
is_clean
refuses 'made no plugins/platforms/qwindows.dll; please report this' \
  env LEAVES_OUT=plugins/platforms/qwindows.dll PATH="$folder/bin:$PATH" "$scripts/qt.sh"
is_clean
expect_runs 2
mv "$folder"/*.debian.tar.xz "$folder/kept"
(cd "$folder/package" && : >debian/patches/series &&
  tar -cJf "$folder/qtbase-opensource-src_5.15.8+dfsg-1.debian.tar.xz" debian)
refuses "\"Qt: take over the distribution's fixes\" failed" with_stand_ins "$scripts/qt.sh"
is_clean
expect_runs 0
mv "$folder/kept" "$folder/qtbase-opensource-src_5.15.8+dfsg-1.debian.tar.xz"

# A build that is stopped.
for row in HUP:129 INT:130 TERM:143; do
  SLOW=yes stopped_by "${row%:*}" "$LONG" "$scripts/qt.sh"
  [[ $status == "${row#*:}" ]] || fail "exit status $status after ${row%:*}"
  is_clean
done
# Whatever a killed build leaves does not stop the next one.
SLOW=yes starts "$LONG" "$scripts/qt.sh"
kill -KILL "$program"
wait "$program" 2>/dev/null || true
kill_all "$LONG"
expect_runs 4

# Two builds at the same time make it once, and a third has nothing to do.
with_stand_ins "$scripts/qt.sh" >"$folder/first" 2>&1 9>&- &
first=$!
with_stand_ins "$scripts/qt.sh" >"$folder/second" 2>&1 9>&- || fail "the second: $(cat "$folder/second")"
wait "$first" || fail "the first: $(cat "$folder/first")"
grep -qx -- '-- Waiting for another run that sets up the toolchain' "$folder/first" "$folder/second" ||
  fail 'nobody waited'
[[ $(cat "$folder/first" "$folder/second") == *"-- Qt is ready"* ]] || fail 'nobody says that it is ready'
is_clean
expect_runs 1
accepts with_stand_ins "$scripts/qt.sh"
[[ ! -s $folder/out ]] || fail "said for nothing: $(cat "$folder/out")"
expect_runs 0
[[ $(cat "$qt/bin/qmake" "$qt/licences/attributions.txt") == $'qmake\ntheirs' ]] ||
  fail 'a part is missing'

# Somebody who may only read it can use it all the same.
accepts with_stand_ins "${as_nobody[@]}" "$scripts/qt.sh"
chmod 644 "$BRENNET_TOOLCHAIN_DIR/lock"

# What is damaged is named, and kept.
damage() { # FILE COMMAND...
  local file=$1
  shift
  cp -a "$qt/$file" "$folder/whole"
  "$@" "$qt/$file"
  refuses "$qt is damaged ($file is missing or changed); remove that folder and run again." \
    with_stand_ins "$scripts/qt.sh"
  mv "$folder/whole" "$qt/$file"
}
damage bin/Qt5Core.dll rm
damage plugins/platforms/qwindows.dll truncate --size=1
damage bin/moc chmod +x
rm "$qt/contents.txt"
refuses "$qt is damaged (contents.txt is missing" with_stand_ins "$scripts/qt.sh"
expect_runs 0

# A lock that somebody else made.
rm -r "$qt"
if [[ $EUID -eq 0 ]]; then
  chmod 777 "$BRENNET_TOOLCHAIN_DIR"
  refuses "Cannot write to the folder $BRENNET_TOOLCHAIN_DIR" with_stand_ins "${as_nobody[@]}" "$scripts/qt.sh"
fi

exit $((failures > 0))
