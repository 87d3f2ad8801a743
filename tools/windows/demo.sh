#!/usr/bin/env bash
# Shows the Windows library at work, under Wine: tools/windows/demo.sh BUILD_FOLDER
#
# The sample host loads copies of the sample files in build/run-windows/, takes pictures of the
# settings dialog there, and prints what the library hands to the game and what has changed.
set -euo pipefail
cd "$(dirname "$0")/../.."

program=$PWD/$1/bin/brennet-host.exe
run=build/run-windows
rm -rf "$run"
mkdir -p "$run"
cp samples/data/KeyInfo.xml samples/data/Tollamere.reg samples/data/War3Preferences.txt "$run/"

# Wine's user is a new one each time: the game's file has to come to his profile and back.
printf '%s\r\n' '@echo off' \
  'md "%USERPROFILE%\Documents\Warcraft III"' \
  'copy /b War3Preferences.txt "%USERPROFILE%\Documents\Warcraft III" >nul' \
  "Z:${program//\//\\} --settings KeyInfo.xml --data .\\ --block --pictures ." \
  'set result=%ERRORLEVEL%' \
  'copy /b "%USERPROFILE%\Documents\Warcraft III\War3Preferences.txt" . >nul' \
  'exit %result%' >"$run/demo.bat"
status=0
(cd "$run" && BRENNET_SCREEN=1 ../../tools/windows/run.sh cmd /c demo.bat) || status=$?
rm "$run/demo.bat"

echo
echo "The files are in $run/"
exit "$status"
