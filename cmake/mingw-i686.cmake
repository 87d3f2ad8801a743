# Cross-builds the 32-bit Windows library with Debian's mingw-w64 compilers. The posix thread model
# is needed for guarded statics; every processor that runs the game has SSE2.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)

set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)

set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")

# The Qt for the target, as tools/windows/qt.sh builds it.
set(BRENNET_QT_DIR "" CACHE PATH "The folder of Qt for 32-bit Windows")
# What benchmarks are linked with, as tools/windows/peers.sh builds it.
set(BRENNET_PEERS_DIR "" CACHE PATH "The folder of the benchmarks' peers for 32-bit Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES BRENNET_QT_DIR BRENNET_PEERS_DIR)

set(CMAKE_FIND_ROOT_PATH ${BRENNET_QT_DIR} ${BRENNET_PEERS_DIR} /usr/i686-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs for the target run under Wine, tests among them.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tools/windows/run.sh")
