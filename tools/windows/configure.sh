#!/usr/bin/env bash
# Configures a preset for Windows with the Qt that qt.sh made, and the benchmarks' peers, if peers.sh
# has made them: tools/windows/configure.sh [PRESET]    (windows if none is named)
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cd "$here/../.."

preset=${1:-windows}
qt_dir=$("$here/qt.sh" --folder)
# A build that knows another Qt has found its parts there; it starts afresh.
if ! grep -qxF "BRENNET_QT_DIR:PATH=$qt_dir" "build/$preset/CMakeCache.txt" 2>/dev/null; then
  rm -rf "build/$preset/CMakeCache.txt" "build/$preset/CMakeFiles"
fi
cmake --preset "$preset" -DBRENNET_QT_DIR="$qt_dir" \
  -DBRENNET_PEERS_DIR="$("$here/peers.sh" --folder)"
