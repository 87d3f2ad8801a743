#!/usr/bin/env bash
# Builds Qt for 32-bit Windows once, from the distribution's own source package:
# tools/windows/qt.sh [--folder]
#
# With --folder it only prints where Qt is or would be.
#
# Only what the component needs is built: Core, Gui, Widgets and Test, the platform plugins
# "windows" and "offscreen", and the native style. What it takes: a quarter of an hour on two cores,
# 2 GB of disk while it builds, 100 MB afterwards.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tools/windows/lib.sh
source "$here/lib.sh"

version=5.15.8
package=qtbase-opensource-src
# Where Qt believes to be installed. It finds itself at run time, so the folder need not exist, and
# no path of this machine gets into the binaries.
prefix=/opt/brennet-qt

# Tablet events need a header that the distribution's tarball lacks; the database of file types has
# a licence of its own; the rest is not used.
options=(
  -opensource -confirm-license -release -shared
  -xplatform win32-g++ -device-option CROSS_COMPILE=i686-w64-mingw32-
  -prefix "$prefix" -nomake examples -nomake tests
  -no-opengl -no-dbus -no-openssl -no-icu
  -qt-zlib -qt-pcre -qt-libpng -no-libjpeg -qt-freetype -qt-harfbuzz
  -no-feature-sql -no-feature-network -no-feature-xml -no-feature-concurrent
  -no-feature-tabletevent -no-feature-vulkan -no-feature-printer
  -no-feature-mimetype-database
)
# Folders below src/ that are installed, once the targets of build_qt are made.
parts=(
  winmain corelib gui widgets testlib tools/moc tools/rcc tools/uic
  plugins/platforms/windows plugins/platforms/offscreen plugins/styles/windowsvista
)
key=$(key_of "${options[@]}" "${parts[@]}" 3)
qt_dir=$toolchain_dir/qt-$version-$key

# Prints the name of a file that the build should have made and has not.
first_missing() { # FOLDER
  local file
  for file in bin/Qt5Core.dll bin/Qt5Gui.dll bin/Qt5Widgets.dll bin/Qt5Test.dll bin/moc bin/rcc \
    bin/uic lib/cmake/Qt5Widgets/Qt5WidgetsConfig.cmake plugins/platforms/qwindows.dll \
    plugins/platforms/qoffscreen.dll plugins/styles/qwindowsvistastyle.dll \
    licences/attributions.txt; do
    [[ -s $1/$file ]] || { echo "$file" && return; }
  done
}

fetch_source() {
  cd "$work_dir"
  fetch_sources Qt "the source of Qt $version, 50 MB" "$package"
  local tarball
  tarball=$(compgen -G "${package}_${version}*.orig.tar.xz") ||
    die "This distribution has no $package $version, which Debian 12 has."
  mkdir source
  local log=$work_dir/fetch.log hint='Is the disk full?'
  logged "$log" "Qt: unpack the source" tar -xJf "$tarball" -C source --strip-components=1
  logged "$log" "Qt: take over the distribution's fixes" apply_backports
}

# The fixes, for security above all, that the distribution took over from later versions. They come
# before its own changes in the list.
apply_backports() {
  local series=debian/patches/series name
  tar -xJf "$package"_*.debian.tar.xz debian/patches
  [[ -s $series ]]
  while read -r name; do
    patch -d source -p1 -s <"debian/patches/$name"
  done < <(sed -n '/^# Debian specific/q; /^[^#]/p' "$series")
}

build_qt() {
  local jobs
  jobs=$(nproc)
  mkdir "$work_dir/build"
  cd "$work_dir/build"
  # Messages of Qt name its source files; they need not tell where this was built.
  logged ../configure.log "Qt (1/4): configure" ../source/configure "${options[@]}" \
    "QMAKE_CXXFLAGS+=-ffile-prefix-map=$work_dir/source=qtbase"
  # The target of the whole tree would configure the tests too, which the options above leave out.
  logged ../qmake.log "Qt (2/4): makefiles" make sub-src-qmake_all
  cd src
  progress=count_objects
  logged ../../build.log "Qt (3/4): libraries" \
    make -j "$jobs" sub-widgets sub-testlib sub-winmain sub-platformsupport
  logged ../../plugins.log "Qt (4/4): plugins" build_plugins "$jobs"
  logged ../../install.log "Qt: install" install_parts
}

count_objects() {
  echo "$(find "$work_dir/build" -name '*.o' | wc -l) of about 1220 files compiled"
}

build_plugins() { # JOBS
  local part
  for part in "${parts[@]}"; do
    [[ $part != plugins/* ]] || make -j "$1" -C "$part"
  done
}

install_parts() {
  local part
  for part in "${parts[@]}" platformsupport/*/; do
    make -C "$part" install INSTALL_ROOT="$work_dir/stage"
  done
  make -C .. install_mkspecs INSTALL_ROOT="$work_dir/stage"
  # The CMake files of Qt5Core ask for it.
  cp ../bin/qmake "$work_dir/stage$prefix/bin/"
  # Whoever passes the DLLs on has to pass them on too.
  "$here/qt_licences.sh" "$work_dir/source" "$work_dir/stage$prefix/licences"
}

main() {
  if [[ ${1:-} == --folder ]]; then
    echo "$qt_dir"
    return
  fi
  if is_finished "$qt_dir"; then return; fi
  open_toolchain_dir
  # Another run may have finished it while this one waited.
  if is_finished "$qt_dir"; then return; fi
  need_free_space 3000
  say "Qt $version for Windows is built once, into $qt_dir: about 15 minutes on two cores"
  make_work_dir
  fetch_source
  build_qt
  local missing
  missing=$(first_missing "$work_dir/stage$prefix")
  [[ -z $missing ]] ||
    die "The build of Qt made no $missing; please report this with the output above."
  put_in_place "$work_dir/stage$prefix" "$qt_dir"
  say "Qt is ready"
}

main "$@"
