#!/usr/bin/env bash
# Shows the library at work: tools/run.sh HOST_PROGRAM LIBRARY [SETTINGS]
#
# Copies a settings file (the sample by default) and the sample preference file of the game into
# build/run/, lets the sample host load them there and open the settings dialog, and prints what that
# did to the game's file. Where there is no screen, pictures of the dialog are made instead.
set -euo pipefail

program=$1
library=$2
samples=samples/data
settings=${3:-$samples/KeyInfo.xml}

run=build/run
game="$run/profile/Documents/Warcraft III"
rm -rf "$run"
mkdir -p "$run/settings" "$run/data" "$game"
cp "$settings" "$run/settings/KeyInfo.xml"
cp "$samples/War3Preferences.txt" "$game/War3Preferences.txt"
cp "$samples/War3Preferences.txt" "$run/War3Preferences.before.txt"
cp "$samples/Tollamere.reg" "$run/data/"
chmod u+w "$run/settings/KeyInfo.xml"

windows=(--pictures "$run")
[[ -z ${DISPLAY-}${WAYLAND_DISPLAY-} ]] || windows=(--dialog)

# Elsewhere than on Windows this file is the registry.
export BRENNET_REGISTRY=$PWD/$run/registry.reg
status=0
"$program" --library "$library" --settings "$run/settings/KeyInfo.xml" --data "$run/data/" \
  --profile "$run/profile" --block "${windows[@]}" || status=$?

echo
echo "What changed in the game's preference file:"
before=$(mktemp) && after=$(mktemp)
trap 'rm -f "$before" "$after"' EXIT
tr -d '\r' <"$run/War3Preferences.before.txt" >"$before"
tr -d '\r' <"$game/War3Preferences.txt" >"$after"
if diff -u --label before --label after "$before" "$after"; then
  echo "  nothing"
fi

echo
echo "The files:"
echo "  $run/settings/KeyInfo.xml"
echo "  $game/War3Preferences.txt"
echo "  $run/War3Preferences.before.txt"
exit "$status"
