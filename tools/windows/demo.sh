#!/usr/bin/env bash
# Shows the Windows library at work, under Wine: tools/windows/demo.sh BUILD_FOLDER
#
# The sample host loads copies of the sample files in build/run-windows/, opens the settings dialog
# without a screen, takes pictures of it and prints what the library hands to the game. The letters
# are those of the system that Wine runs on: without a screen Qt does not ask Windows for them.
set -euo pipefail
cd "$(dirname "$0")/../.."

program=$1/bin/brennet-host.exe
run=build/run-windows
rm -rf "$run"
mkdir -p "$run"
cp samples/data/KeyInfo.xml samples/data/Tollamere.reg "$run/"

QT_QPA_FONTDIR=Z:/usr/share/fonts/truetype/wqy tools/windows/run.sh "$program" \
  --settings "$run/KeyInfo.xml" --data "$run/" --block --pictures "$run"
