#!/usr/bin/env bash
# Shows the library at work: tools/run.sh HOST_PROGRAM LIBRARY [SETTINGS]
#
# Copies a settings file (the sample by default) and the sample preference file of the game into
# build/run/, and has the sample host load them there, open the settings dialog and say what has
# changed. Without a screen, it takes pictures of the dialog instead.
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

# On systems other than Windows this file is the registry.
export BRENNET_REGISTRY=$PWD/$run/registry.reg
status=0
# The messages of Qt's platform without a screen are of no use here.
"$program" --library "$library" --settings "$run/settings/KeyInfo.xml" --data "$run/data/" \
  --profile "$run/profile" --block "${windows[@]}" \
  2> >(grep --line-buffered -v '^This plugin does not support ' >&2) || status=$?

echo
echo "The files:"
echo "  $run/settings/KeyInfo.xml"
echo "  $game/War3Preferences.txt"
echo "  $run/War3Preferences.before.txt"
[[ ! -e $BRENNET_REGISTRY ]] || echo "  $run/registry.reg"
exit "$status"
