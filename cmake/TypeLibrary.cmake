# tsln_interface(TARGET TEMPLATE): generates the module's interface description from the table of operations, and from
# it the type library and the header for callers and server. TARGET adds their folder to the include path.

function(tsln_interface target template)
    get_filename_component(stem ${template} NAME_WE)
    set(folder ${CMAKE_BINARY_DIR}/interface)
    file(MAKE_DIRECTORY ${folder})
    find_program(TSLN_WIDL_PROGRAM ${TSLN_WIDL} REQUIRED)
    # The system's interface descriptions, and the type library that all automation type libraries import.
    find_path(TSLN_IDL_FOLDER oaidl.idl PATHS /usr/include/wine/wine/windows /usr/include/wine/windows REQUIRED
        NO_CMAKE_FIND_ROOT_PATH)
    find_path(TSLN_TLB_FOLDER stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows
        /usr/lib/i386-linux-gnu/wine/i386-windows REQUIRED NO_CMAKE_FIND_ROOT_PATH)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        set(system --win64)
    else()
        set(system --win32)
    endif()
    add_custom_command(
        OUTPUT ${folder}/${stem}.idl ${folder}/${stem}.tlb ${folder}/${stem}.h
        COMMAND ${CMAKE_CXX_COMPILER} -E -P -x c++ -std=c++20 -I${CMAKE_SOURCE_DIR} -o ${folder}/${stem}.idl
                ${CMAKE_SOURCE_DIR}/${template}
        COMMAND ${TSLN_WIDL_PROGRAM} ${system} -t -I${TSLN_IDL_FOLDER} -L${TSLN_TLB_FOLDER} -o ${folder}/${stem}.tlb
                ${folder}/${stem}.idl
        # The compiler notes the time, as a text and as a number.
        COMMAND perl -0777 -pi -e "s/(Created by WIDL version \\S+ at ).{24}/\${1}Thu Jan  1 00:00:00 1970/s; s/\\x13\\x00.{4}WW/\\x13\\x00\\0\\0\\0\\0WW/s"
                ${folder}/${stem}.tlb
        COMMAND ${TSLN_WIDL_PROGRAM} ${system} -h -I${TSLN_IDL_FOLDER} -o ${folder}/${stem}.h ${folder}/${stem}.idl
        DEPENDS ${template} bridge/Operations.def
        VERBATIM)
    add_custom_target(${target}_files DEPENDS ${folder}/${stem}.idl ${folder}/${stem}.tlb ${folder}/${stem}.h)
    add_library(${target} INTERFACE)
    add_dependencies(${target} ${target}_files)
    target_include_directories(${target} SYSTEM INTERFACE ${folder})
endfunction()
