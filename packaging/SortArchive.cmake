# Packs the archive anew: CPack takes its files in the order in which the file system lists them, which differs from
# machine to machine.

if(NOT CPACK_GENERATOR STREQUAL "TGZ")
    return()
endif()

string(TIMESTAMP now "%s" UTC) # Of SOURCE_DATE_EPOCH, where that is set.
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
