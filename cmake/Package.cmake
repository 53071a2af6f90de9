# The target `package`: a zip with all files that a Windows machine needs.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(bits 64)
else()
    set(bits 32)
endif()
install(TARGETS tslnmaint5 tessaline-workbench tessaline-meter tessaline-agent tsln5pkg.exe RUNTIME DESTINATION . LIBRARY DESTINATION .)
install(FILES ${CMAKE_BINARY_DIR}/interface/tslnmaint5.tlb DESTINATION .)

# Windows text files: lines end in carriage return and line feed.
foreach(file README.txt register.cmd unregister.cmd)
    configure_file(com/package/${file} package/${file} @ONLY NEWLINE_STYLE WIN32)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/package/${file} DESTINATION .)
endforeach()

set(CPACK_GENERATOR ZIP)
set(package tessaline-maintenance-${PROJECT_VERSION}-windows-${bits})
set(CPACK_PACKAGE_FILE_NAME ${package})
set(CPACK_OUTPUT_CONFIG_FILE ${CMAKE_BINARY_DIR}/CPackConfig.cmake)
include(CPack)
