# 64-bit Windows by Debian's mingw-w64 (posix threads), with its run-time linked in.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(TSLN_TRIPLET x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/WindowsToolchain.cmake)
