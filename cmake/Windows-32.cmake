# 32-bit Windows, for 32-bit hosts, with Debian's mingw-w64 (posix threads) and its static run-time library.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)
set(TSLN_TRIPLET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/WindowsToolchain.cmake)
