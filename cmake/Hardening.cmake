# The platform's mitigations for all code of the project, and reproducible binaries. tests/hardening.sh reads the built
# programs and fails when one is missing.
include(CheckCXXCompilerFlag)

# In optimized builds. The tests' builds have sanitizers, which find more and do not go together with these.
set(mitigations -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
check_cxx_compiler_flag(-fcf-protection=full TSLN_HAS_CF_PROTECTION)
if(TSLN_HAS_CF_PROTECTION)
    list(APPEND mitigations -fcf-protection=full)
endif()
if(NOT WIN32)
    list(APPEND mitigations -fPIE)
endif()
# The same sources give the same bytes in any folder.
list(APPEND mitigations -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=build)
target_compile_options(tsln_flags INTERFACE "$<$<CONFIG:Release>:${mitigations}>")

if(WIN32)
    # The stack protector's functions are in a library of their own.
    target_link_options(tsln_flags INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong> -Wl,--dynamicbase
        -Wl,--nxcompat -Wl,--no-insert-timestamp)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        target_link_options(tsln_flags INTERFACE -Wl,--high-entropy-va)
    endif()
else()
    target_link_options(tsln_flags INTERFACE -pie -Wl,-z,relro,-z,now,-z,noexecstack)
endif()
