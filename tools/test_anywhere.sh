#!/usr/bin/env bash
# Runs `make test` as other users on other machines would:
# tools/test_anywhere.sh [ROW...]    (all rows where none is named)
#
# Each row of the table below is one way of running all tests. Reports for each whether they passed
# and how long it took; the output of a row is in build/anywhere/ROW.log. The exit status is 1 if a
# row failed. Nothing is left running or behind, even when it is stopped.
set -euo pipefail
checkout=$(cd "$(dirname "$0")/.." && pwd)
cd "$checkout"
# shellcheck source=tools/windows/lib.sh
source tools/windows/lib.sh
# shellcheck source=tools/ccache.sh
source tools/ccache.sh

# name | what is different
rows=(
  'path|a checkout at a path with blanks and Chinese letters'
  'user|an ordinary user who cannot install anything'
  'two|two checkouts at once'
  'locale-c|LC_ALL=C'
  'locale-gb18030|LC_ALL=zh_CN.GB18030'
  'locale-turkish|LC_ALL=tr_TR.UTF-8'
  'home-unset|no HOME'
  'home-read-only|a HOME that nobody can write to'
  'home-untouched|an empty HOME, which stays empty'
  'environment|variables of Qt, fontconfig, XDG and TMPDIR that would break everything'
  'fonts-dejavu|the fonts of the set dejavu in all tests'
  'fonts-wqy|the fonts of the set wqy in all tests'
  'fonts-noto|the fonts of the set noto in all tests'
  'zone-east|a time zone 14 hours ahead'
  'zone-west|a time zone 11 hours behind'
  'busy|six busy loops beside it'
  'random|each test three times, in random order'
)

skipped=77  # the exit status of a row that cannot be run here
loops=()

# What the rows do. They run in a process of their own, with their output in a log. -----------------

tests() { # [NAME=VALUE|-u NAME]...
  env "$@" make --no-print-directory test
}

# A copy of this checkout, built there, with nothing from the caller except the system's programs.
# The rows that need a second checkout share it.
system=(env -i PATH=/usr/local/bin:/usr/bin:/bin)
make_copy() {
  [[ ! -e $work_dir/copy-is-built ]] || return 0
  mkdir -p "$copy"
  tar --exclude=./build --exclude=./.git -c . | tar -x -C "$copy"
  (
    cd "$copy"
    use_ccache "$copy" || true
    local cached=() name
    for name in $(compgen -e | grep -E '^(CCACHE_|CMAKE_)'); do cached+=("$name=${!name}"); done
    "${system[@]}" "${cached[@]}" cmake --preset native
    "${system[@]}" "${cached[@]}" cmake --build --preset native -j "$(nproc)"
  )
  touch "$work_dir/copy-is-built"
}

row_path() {
  make_copy
  cd "$copy"
  "${system[@]}" make --no-print-directory test
}

row_user() {
  [[ -n $user ]] || {
    echo 'takes root, who can make a user'
    return "$skipped"
  }
  make_copy
  mkdir "$work_dir/home-of-user"
  chown -R "$user" "$copy" "$work_dir/home-of-user"
  cd "$copy"
  setpriv --reuid="$user" --regid="$user" --clear-groups --no-new-privs \
    "${system[@]}" HOME="$work_dir/home-of-user" make --no-print-directory test
}

row_two() {
  make_copy
  local status=0
  (cd "$copy" && "${system[@]}" make --no-print-directory test) >"$work_dir/other.log" 2>&1 &
  tests || status=$?
  wait $! || status=$?
  cat "$work_dir/other.log"
  return "$status"
}

# The locales are made only for the row, from the package locales.
locale_tests() { # LOCALE CHARACTERS
  mkdir -p "$work_dir/locales"
  localedef -i "${1%%.*}" -f "$2" "$work_dir/locales/$1"
  tests LOCPATH="$work_dir/locales" LC_ALL="$1" LANG="$1" LANGUAGE="${1%%_*}"
}
row_locale-c() { tests LC_ALL=C LANG=C; }
row_locale-gb18030() { locale_tests zh_CN.GB18030 GB18030; }
row_locale-turkish() { locale_tests tr_TR.UTF-8 UTF-8; }

row_home-unset() { tests -u HOME; }
# Not even root can write there.
row_home-read-only() { tests HOME=/proc; }
row_home-untouched() {
  mkdir "$work_dir/home"
  tests -u XDG_CACHE_HOME -u XDG_CONFIG_HOME -u XDG_DATA_HOME HOME="$work_dir/home"
  [[ -z $(ls -A "$work_dir/home") ]] || {
    echo "The tests wrote into HOME: $(ls -A "$work_dir/home")"
    return 1
  }
}

row_environment() {
  tests QT_SCALE_FACTOR=3 QT_STYLE_OVERRIDE=windows QT_QPA_PLATFORM=none QT_PLUGIN_PATH=/none \
    QT_FONT_DPI=200 QT_QPA_FONTDIR=/none QT_LOGGING_RULES='*=true' FONTCONFIG_FILE=/none \
    FONTCONFIG_PATH=/none XDG_CACHE_HOME=/none XDG_CONFIG_HOME=/none XDG_DATA_HOME=/none \
    XDG_RUNTIME_DIR=/none TMPDIR=/none DISPLAY=:none BRENNET_REGISTRY=/none/none
}

row_fonts-dejavu() { tests BRENNET_TEST_FONTS=dejavu; }
row_fonts-wqy() { tests BRENNET_TEST_FONTS=wqy; }
row_fonts-noto() { tests BRENNET_TEST_FONTS=noto; }
row_zone-east() { tests TZ=Pacific/Kiritimati; }
row_zone-west() { tests TZ=Pacific/Pago_Pago; }
row_busy() { tests; }
row_random() { tests CTEST_ARGS='--schedule-random --repeat until-fail:3'; }

# Around the rows. ----------------------------------------------------------------------------------

start_loops() {
  local _
  for _ in {1..6}; do
    while :; do :; done &
    loops+=($!)
  done
}

stop_loops() {
  [[ ${#loops[@]} -eq 0 ]] || kill -KILL "${loops[@]}" 2>/dev/null || true
  loops=()
}

clear_up() {
  trap '' HUP INT QUIT TERM
  stop_job
  stop_loops
  # Qt creates the folder for users who have none.
  [[ -z $user ]] || { userdel "$user" && rm -rf "/tmp/runtime-$user"; } || true
  rm -rf --one-file-system "$work_dir"
}

prepare() {
  work_dir=
  user=
  trap clear_up EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM
  work_dir=$(mktemp -d)
  chmod 755 "$work_dir"
  copy="$work_dir/a checkout/魔兽 改键"
  if [[ $EUID -eq 0 ]]; then
    user=brennet$$
    useradd --no-create-home --home-dir "$work_dir" --shell /usr/sbin/nologin "$user"
  fi
  mkdir -p build/anywhere
}

# Runs one row in a process of its own, so that its settings end with it.
run_row() { # NAME
  local name=$1 log=build/anywhere/$1.log started=$SECONDS
  [[ $name != busy ]] || start_loops
  run_job "$log" "$name" tools/test_anywhere.sh --row "$name"
  stop_loops
  local seconds=$((SECONDS - started))
  case $job_status in
    0) results+=("passed  $(printf '%5d s  %s' "$seconds" "$name")") ;;
    "$skipped") results+=("skipped          $name: $(tail -n 1 "$log")") ;;
    *)
      failures=$((failures + 1))
      results+=("FAILED  $(printf '%5d s  %s' "$seconds" "$name")  ($log)")
      tail -n 30 "$log"
      ;;
  esac
  echo "${results[-1]}"
}

main() {
  local chosen=("$@") row name
  if [[ ${1-} == --row ]]; then
    "row_$2"
    return
  fi
  for name in "${chosen[@]}"; do
    declare -F "row_$name" >/dev/null || die "There is no row \"$name\"; see the table in $0."
  done
  prepare
  export work_dir copy user
  # What all rows share is built once.
  use_ccache "$checkout" || true
  logged build/anywhere/build.log 'Build this checkout' make --no-print-directory test CTEST_ARGS=-N
  results=()
  failures=0
  for row in "${rows[@]}"; do
    name=${row%%|*}
    [[ ${#chosen[@]} -eq 0 || " ${chosen[*]} " == *" $name "* ]] || continue
    say "$name: ${row#*|}"
    run_row "$name"
  done
  printf '\n%s\n' '=== The tests anywhere'
  printf '%s\n' "${results[@]}"
  [[ $failures -eq 0 ]]
}

main "$@"
