# 32-bit Windows, what a 32-bit host loads; otherwise like the 64-bit one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)
set(TSLN_TRIPLET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/WindowsToolchain.cmake)
