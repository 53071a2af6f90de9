# The common part of both Windows tool chains, each of which sets TSLN_TRIPLET.
set(CMAKE_C_COMPILER ${TSLN_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TSLN_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${TSLN_TRIPLET}-windres)
set(TSLN_WIDL ${TSLN_TRIPLET}-widl)

# The machine's packages are native ones; CMAKE_PREFIX_PATH names the cross-built ones.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_USE_CMAKE_SYSTEM_PATH OFF)
set(CMAKE_FIND_USE_PACKAGE_REGISTRY OFF)
set(CMAKE_LIBRARY_PATH /usr/${TSLN_TRIPLET}/lib)  # the system's own import libraries

# Static, so that no run-time library must be delivered.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -s")
