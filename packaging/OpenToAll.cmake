# CPack runs this between staging and packing. A strict umask would otherwise make directories that only root may enter.
execute_process(COMMAND chmod --recursive u=rwX,go=rX ${CPACK_TEMPORARY_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
