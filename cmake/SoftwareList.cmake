# tsln_software_list(FILE): writes the versions and licences of all software in the package, in the SPDX format.

# The libraries that are linked in: their Debian source package, how they are called, and their licence.
set(TSLN_LINKED_SOFTWARE
    "wxwidgets3.2|wxWidgets|LGPL-2.0-or-later WITH WxWindows-exception-3.1"
    "pugixml|pugixml|MIT"
    "utf8proc|utf8proc|MIT AND Unicode-DFS-2015"
    "sqlite3|SQLite|blessing"
    "sqlitecpp|SQLiteCpp|MIT"
    "cli11|CLI11|BSD-3-Clause")

function(tsln_software name id version licence)
    string(APPEND list "
PackageName: ${name}
SPDXID: SPDXRef-${id}
PackageVersion: ${version}
PackageDownloadLocation: NOASSERTION
FilesAnalyzed: false
PackageLicenseConcluded: ${licence}
PackageLicenseDeclared: ${licence}
PackageCopyrightText: NOASSERTION
")
    if(NOT id STREQUAL "module")
        string(APPEND list "Relationship: SPDXRef-module STATIC_LINK SPDXRef-${id}\n")
    endif()
    set(list "${list}" PARENT_SCOPE)
endfunction()

function(tsln_software_list file)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env TZ=UTC git -C ${CMAKE_SOURCE_DIR} log -1 --format=%cd
                            --date=format-local:%Y-%m-%dT%H:%M:%SZ
                    OUTPUT_VARIABLE created OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    # A further commit changes the date.
    execute_process(COMMAND git -C ${CMAKE_SOURCE_DIR} rev-parse --path-format=absolute --git-path logs/HEAD
                    OUTPUT_VARIABLE commits OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(EXISTS "${commits}")
        set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${commits}")
    endif()
    if(NOT created)
        set(created 2023-11-14T22:13:20Z)
    endif()
    set(list "SPDXVersion: SPDX-2.3
DataLicense: CC0-1.0
SPDXID: SPDXRef-DOCUMENT
DocumentName: tessaline-maintenance-${PROJECT_VERSION}
DocumentNamespace: https://tessaline.example/spdx/maintenance-${PROJECT_VERSION}-windows-${bits}
Creator: Tool: tessaline-maintenance/cmake/SoftwareList.cmake
Created: ${created}
Relationship: SPDXRef-DOCUMENT DESCRIBES SPDXRef-module
")
    tsln_software(tessaline-maintenance module ${PROJECT_VERSION} NOASSERTION)
    foreach(row ${TSLN_LINKED_SOFTWARE})
        string(REPLACE "|" ";" row "${row}")
        list(GET row 0 source)
        list(GET row 1 name)
        list(GET row 2 licence)
        # scripts/windows-libraries keeps each library in a folder PACKAGE-VERSION-RECIPE.
        set(version NOASSERTION)
        foreach(prefix ${CMAKE_PREFIX_PATH})
            get_filename_component(folder "${prefix}" NAME)
            if(folder MATCHES "^${source}-(.+)-[0-9a-f]+$")
                set(version ${CMAKE_MATCH_1})
            endif()
        endforeach()
        if(version STREQUAL "NOASSERTION")
            message(WARNING "The version of ${name} is not known: its folder is not ${source}-VERSION-RECIPE.")
        endif()
        tsln_software(${name} ${source} ${version} "${licence}")
    endforeach()
    tsln_software("GCC run-time libraries" gcc ${CMAKE_CXX_COMPILER_VERSION} "GPL-3.0-or-later WITH GCC-exception-3.1")
    execute_process(COMMAND dpkg-query -W -f \${Version} mingw-w64-common OUTPUT_VARIABLE version ERROR_QUIET)
    tsln_software("mingw-w64 run-time libraries" mingw-w64 "${version}" "ZPL-2.1 AND MIT AND BSD-3-Clause")
    file(WRITE ${file} "${list}")
endfunction()
