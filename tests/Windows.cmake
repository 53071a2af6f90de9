# The Windows suite: what runs under Wine, one test a program. The tests that drive windows by the X server, and those
# that start and kill processes by POSIX calls (most of tests/desktop, tests/workbench/app, parts of
# tests/workbench/company), are for the native suite alone; here the windows are driven by the system's messages.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(bits 64)
else()
    set(bits 32)
endif()
set(onWine ${CMAKE_SOURCE_DIR}/scripts/on-wine ${bits})

# All tests share one Windows, with its registry and its display, and run in it one after the other.

# tsln_windows_test(NAME FOLDER USES TARGET...): the tests of a folder as one program.
function(tsln_windows_test name folder)
    cmake_parse_arguments(TEST "" "" "USES" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    add_executable(test_${name} ${sources})
    target_link_libraries(test_${name} PRIVATE ${TEST_USES} tsln_flags GTest::gmock)
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
tsln_windows_test(pricing pricing USES tsln_doubles)
tsln_windows_test(options options USES tsln_doubles)
tsln_windows_test(measurements measurements USES tsln_doubles)
tsln_windows_test(messages messages USES tsln_doubles)
tsln_windows_test(security security USES tsln_doubles)
tsln_windows_test(roaming roaming USES tsln_doubles)
tsln_windows_test(properties properties USES tsln_doubles)
tsln_windows_test(migration migration USES tsln_doubles)
tsln_windows_test(workbench_host workbench/host USES tsln_workbench_host tsln_doubles)
tsln_windows_test(com_edge com/edge USES tsln_com_edge tsln_shared)
tsln_windows_test(com_slots com/slots USES tsln_com_server)

# The controls in real windows, worked by the keyboard.
set(manifest ${CMAKE_SOURCE_DIR}/workbench/app/tessaline-workbench)  # asks for the system's newer controls
add_executable(test_desktop desktop/main.cpp desktop/Robot.cpp desktop/Picture.cpp desktop/EveryControlTest.cpp desktop/JobTest.cpp
               desktop/WindowsAccessibilityTest.cpp ${manifest}.rc)
set_source_files_properties(${manifest}.rc PROPERTIES OBJECT_DEPENDS ${manifest}.manifest
                            INCLUDE_DIRECTORIES ${CMAKE_SOURCE_DIR}/workbench/app)
tsln_use_wx(test_desktop)
target_link_libraries(test_desktop PRIVATE tsln_desktop tsln_flags GTest::gmock oleacc)
add_test(NAME desktop COMMAND ${onWine} $<TARGET_FILE:test_desktop>)
set_tests_properties(desktop PROPERTIES TIMEOUT 300 RESOURCE_LOCK windows ENVIRONMENT TSLN_BUILD=${CMAKE_BINARY_DIR})

add_library(tsln_window_driver STATIC com/driver/WindowDriver.cpp)
target_link_libraries(tsln_window_driver PUBLIC tsln_com_edge tsln_flags)
add_executable(window_driver com/driver/main.cpp)
target_link_libraries(window_driver PRIVATE tsln_window_driver)

tsln_windows_test(com_server com/server
    USES tsln_com_edge tsln_window_driver tsln_workbench_host tsln_doubles tsln_interface)
add_dependencies(test_com_server tslnmaint5 tsln5pkg.exe tessaline-agent tsln_interface_files)

# A hostile host and a random user. A thread that ends within a call takes the front end of its program with it.
file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/com/hostile/*.cpp)
add_executable(test_com_hostile ${sources} com/server/Server.cpp com/server/main.cpp)
target_link_libraries(test_com_hostile PRIVATE tsln_com_edge tsln_window_driver tsln_workbench_host tsln_doubles
                      tsln_interface tsln_flags GTest::gmock)
add_dependencies(test_com_hostile tslnmaint5 tsln_interface_files)
add_test(NAME com_hostile COMMAND ${onWine} $<TARGET_FILE:test_com_hostile> --gtest_filter=-EndedThread.*)
add_test(NAME com_ended_thread COMMAND ${onWine} $<TARGET_FILE:test_com_hostile> --gtest_filter=EndedThread.*)
set_tests_properties(com_hostile com_ended_thread PROPERTIES RESOURCE_LOCK windows
                     ENVIRONMENT TSLN_BUILD=${CMAKE_BINARY_DIR})
set_tests_properties(com_hostile PROPERTIES TIMEOUT 7200)
set_tests_properties(com_ended_thread PROPERTIES TIMEOUT 120)

# The headers of the built programs show the platform's mitigations.
add_test(NAME hardening COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/hardening.sh release $<TARGET_FILE:tslnmaint5>
    $<TARGET_FILE:tessaline-workbench> $<TARGET_FILE:tessaline-meter> $<TARGET_FILE:tessaline-agent>
    $<TARGET_FILE:tsln5pkg.exe>)
set_tests_properties(hardening PROPERTIES ENVIRONMENT OBJDUMP=${CMAKE_OBJDUMP})

# The package as a user has it: unpacked, registered by its script, used from a script, unregistered.
add_test(NAME package COMMAND ${CMAKE_CPACK_COMMAND} -B ${CMAKE_BINARY_DIR}/package
                              --config ${CMAKE_BINARY_DIR}/CPackConfig.cmake)
set_tests_properties(package PROPERTIES FIXTURES_SETUP package)
add_test(NAME com_script COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/com/run-script ${bits}
    ${CMAKE_BINARY_DIR}/package/${package}.zip ${CMAKE_CURRENT_SOURCE_DIR}/com/client.vbs
    $<TARGET_FILE:window_driver>)
add_test(NAME com_workbench COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/com/run-workbench ${bits}
    ${CMAKE_BINARY_DIR}/package/${package}.zip $<TARGET_FILE:window_driver>)
set_tests_properties(com_script com_workbench PROPERTIES TIMEOUT 300 FIXTURES_REQUIRED package RESOURCE_LOCK windows
                                           ENVIRONMENT TSLN_BUILD=${CMAKE_BINARY_DIR})
