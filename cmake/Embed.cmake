# tsln_embed(TARGET FUNCTION FILE...): builds the files into the target. The function ns::name, declared in the sources
# as `std::span<const EmbeddedFile> name();`, returns their names and texts.
function(tsln_embed target function)
    if(NOT TARGET ${target} OR NOT ARGN)
        return()
    endif()
    string(MAKE_C_IDENTIFIER ${function} stem)
    set(output ${CMAKE_BINARY_DIR}/embedded/${stem}.cpp)
    string(REPLACE ";" "," files "${ARGN}")
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -DOUTPUT=${output} -DFUNCTION=${function} -DFILES=${files}
                -P ${CMAKE_SOURCE_DIR}/cmake/EmbedFiles.cmake
        DEPENDS ${ARGN} ${CMAKE_SOURCE_DIR}/cmake/EmbedFiles.cmake
        VERBATIM)
    target_sources(${target} PRIVATE ${output})
endfunction()
