# The target `package`: a zip with all files that a Windows machine needs. Two builds of one commit give the same bytes.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(bits 64)
else()
    set(bits 32)
endif()

# Each file is a component of its own, because only components have a fixed order in the zip.
foreach(target tslnmaint5 tessaline-workbench tessaline-meter tessaline-agent tsln5pkg.exe)
    install(TARGETS ${target} RUNTIME DESTINATION . COMPONENT ${target} LIBRARY DESTINATION . COMPONENT ${target})
endforeach()
install(FILES ${CMAKE_BINARY_DIR}/interface/tslnmaint5.tlb DESTINATION . COMPONENT type-library)

# Windows text files: lines end in carriage return and line feed.
include(SoftwareList)
tsln_software_list(${CMAKE_BINARY_DIR}/software.spdx)
configure_file(${CMAKE_BINARY_DIR}/software.spdx package/tessaline-maintenance.spdx COPYONLY)
foreach(file README.txt register.cmd unregister.cmd)
    configure_file(com/package/${file} package/${file} @ONLY NEWLINE_STYLE WIN32)
endforeach()
foreach(file README.txt register.cmd unregister.cmd tessaline-maintenance.spdx)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/package/${file} DESTINATION . COMPONENT ${file})
endforeach()

# All files have the time of the commit. Asked for when the zip is made, not when the build is configured.
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_BINARY_DIR}/PackageTime.cmake)
file(WRITE ${CPACK_PROJECT_CONFIG_FILE} "
execute_process(COMMAND git -C \"${CMAKE_SOURCE_DIR}\" log -1 --format=%ct OUTPUT_VARIABLE time
                OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
if(NOT time)
    set(time 1700000000)  # no repository: an arbitrary, but fixed time
endif()
set(ENV{SOURCE_DATE_EPOCH} \${time})
set(ENV{TZ} UTC)
")
set(CPACK_GENERATOR ZIP)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(package tessaline-maintenance-${PROJECT_VERSION}-windows-${bits})
set(CPACK_PACKAGE_FILE_NAME ${package})
set(CPACK_OUTPUT_CONFIG_FILE ${CMAKE_BINARY_DIR}/CPackConfig.cmake)
include(CPack)
