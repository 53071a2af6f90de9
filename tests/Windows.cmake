# The Windows suite: the tests that run under Wine, one test per program. Tests that drive windows through the X server
# and tests that start and kill processes by POSIX calls (tests/desktop, tests/workbench/app, parts of
# tests/workbench/company) run in the native suite only. Here windows are driven by messages of the system.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(bits 64)
else()
    set(bits 32)
endif()
set(onWine ${CMAKE_SOURCE_DIR}/scripts/on-wine ${bits})

# All tests share one Wine prefix with its registry and display, so they run one after the other.

# tsln_windows_test(NAME FOLDER USES TARGET...): adds the tests of a folder as one program.
function(tsln_windows_test name folder)
    cmake_parse_arguments(TEST "" "" "USES" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    add_executable(test_${name} ${sources})
    target_link_libraries(test_${name} PRIVATE ${TEST_USES} tsln_options GTest::gmock)
    if(NOT EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/main.cpp)
        target_link_libraries(test_${name} PRIVATE GTest::gmock_main)
    endif()
    add_test(NAME ${name} COMMAND ${onWine} $<TARGET_FILE:test_${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 900 RESOURCE_LOCK windows
                                              ENVIRONMENT TSLN_BUILD=${CMAKE_BINARY_DIR})
endfunction()

tsln_windows_test(automation automation USES tsln_automation)
tsln_windows_test(shared shared USES tsln_shared)
tsln_windows_test(bridge bridge USES tsln_doubles)
tsln_windows_test(maintenance maintenance USES tsln_doubles)
tsln_windows_test(lists lists USES tsln_doubles)
tsln_windows_test(entities entities USES tsln_doubles)
tsln_windows_test(workbench_host workbench/host USES tsln_workbench_host tsln_doubles)
tsln_windows_test(com_edge com/edge USES tsln_com_edge tsln_shared)
tsln_windows_test(com_slots com/slots USES tsln_com_server)

add_library(tsln_window_driver STATIC com/driver/WindowDriver.cpp)
target_link_libraries(tsln_window_driver PUBLIC tsln_com_edge tsln_options)
add_executable(window_driver com/driver/main.cpp)
target_link_libraries(window_driver PRIVATE tsln_window_driver)

tsln_windows_test(com_server com/server
    USES tsln_com_edge tsln_window_driver tsln_workbench_host tsln_doubles tsln_interface)
add_dependencies(test_com_server tslnmaint5 tsln5pkg.exe tsln_interface_files)

# Tests the package as a user receives it: unpacked, registered by its script, used from a script, unregistered.
add_test(NAME package COMMAND ${CMAKE_CPACK_COMMAND} -B ${CMAKE_BINARY_DIR}/package
                              --config ${CMAKE_BINARY_DIR}/CPackConfig.cmake)
set_tests_properties(package PROPERTIES FIXTURES_SETUP package)
add_test(NAME com_script COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/com/run-script ${bits}
    ${CMAKE_BINARY_DIR}/package/${package}.zip ${CMAKE_CURRENT_SOURCE_DIR}/com/road.vbs
    $<TARGET_FILE:window_driver>)
add_test(NAME com_workbench COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/com/run-workbench ${bits}
    ${CMAKE_BINARY_DIR}/package/${package}.zip $<TARGET_FILE:window_driver>)
set_tests_properties(com_script com_workbench PROPERTIES TIMEOUT 300 FIXTURES_REQUIRED package RESOURCE_LOCK windows
                                           ENVIRONMENT TSLN_BUILD=${CMAKE_BINARY_DIR})
