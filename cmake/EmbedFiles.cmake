# Writes a source file with the texts of other files, so that the program does not need those files at run time.
#   cmake -DOUTPUT=... -DFUNCTION=ns::name -DFILES=a,b -P EmbedFiles.cmake
string(REPLACE "," ";" FILES "${FILES}")
string(REGEX MATCH "^(.*)::([^:]+)$" matched "${FUNCTION}")
set(space "${CMAKE_MATCH_1}")
set(name "${CMAKE_MATCH_2}")

set(text "#include \"automation/EmbeddedFile.h\"\n\nnamespace ${space} {\n\n")
set(entries "")
set(number 0)
foreach(file ${FILES})
    get_filename_component(fileName ${file} NAME)
    file(READ ${file} content)
    # The compiler reads a line end in a raw literal as a line feed alone.
    string(REPLACE "\r" ")~~~~\" \"\\r\" R\"~~~~(" content "${content}")
    string(APPEND text "static const char file${number}[] = R\"~~~~(${content})~~~~\";\n\n")
    string(APPEND entries "    {\"${fileName}\", {file${number}, sizeof file${number} - 1}},\n")
    math(EXPR number "${number} + 1")
endforeach()
string(APPEND text "static const EmbeddedFile files[] = {\n${entries}};\n\n")
string(APPEND text "std::span<const EmbeddedFile> ${name}() { return files; }\n\n}  // namespace ${space}\n")
file(WRITE ${OUTPUT} "${text}")
