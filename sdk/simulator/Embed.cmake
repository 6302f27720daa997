# Writes the C++ file OUTPUT with the contents of files: with TEXTS as the array DescriptionFragments.h, or with ZIP
# as the string of ZippedDescription.h.
#
# usage: cmake -D OUTPUT=FILE (-D TEXTS=FILE,… | -D ZIP=FILE) -P Embed.cmake

# Sets `result` to the contents of a file as the elements of an array of bytes.
function(read_bytes file result)
    file(READ ${file} digits HEX)
    string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${digits}")
    set(${result} "${bytes}" PARENT_SCOPE)
endfunction()

if(TEXTS)
    string(REPLACE "," ";" files "${TEXTS}")
    set(code "#include \"sdk/simulator/DescriptionFragments.h\"\n\n")
    set(names "")
    foreach(file IN LISTS files)
        get_filename_component(name ${file} NAME_WE)
        file(READ ${file} text)
        string(APPEND code "static const char text${name}[] = R\"fragment(${text})fragment\";\n")
        string(APPEND names "    std::string_view(text${name}, sizeof text${name} - 1),\n")
    endforeach()
    list(LENGTH files count)
    string(APPEND code "\nconst std::array<std::string_view, ${count}> descriptionFragments{\n${names}};\n")
else()
    read_bytes(${ZIP} bytes)
    set(code "#include \"sdk/simulator/ZippedDescription.h\"\n\nstatic const char zippedBytes[] = {${bytes}};\n")
    string(APPEND code "const std::string_view zippedDescription(zippedBytes, sizeof zippedBytes);\n")
endif()
file(WRITE ${OUTPUT} "${code}")
