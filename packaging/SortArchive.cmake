# Repacks the archive with sorted entries. CPack packs the files in the order of the file system, which differs between
# machines.

if(NOT CPACK_GENERATOR STREQUAL "TGZ")
    return()
endif()

string(TIMESTAMP now "%s" UTC) # The result is SOURCE_DATE_EPOCH if that variable is set.
foreach(archive IN LISTS CPACK_PACKAGE_FILES)
    string(REGEX REPLACE "\\.gz$" "" tar ${archive})
    file(REMOVE ${archive})
    execute_process(
        COMMAND tar --create --file=${tar} --format=gnu --sort=name --mtime=@${now}
            --owner=root:0 --group=root:0 ${CPACK_PACKAGE_FILE_NAME}
        WORKING_DIRECTORY ${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}/..
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND gzip --best --no-name ${tar} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
