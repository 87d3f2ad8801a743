#!/usr/bin/env bash
# Configures the preset "windows" with the Qt that qt.sh made: tools/windows/configure.sh
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cd "$here/../.."

qt_dir=$("$here/qt.sh" --folder)
# A build that knows another Qt has found its parts there; it starts afresh.
if ! grep -qxF "BRENNET_QT_DIR:PATH=$qt_dir" build/windows/CMakeCache.txt 2>/dev/null; then
  rm -rf build/windows/CMakeCache.txt build/windows/CMakeFiles
fi
cmake --preset windows -DBRENNET_QT_DIR="$qt_dir"
