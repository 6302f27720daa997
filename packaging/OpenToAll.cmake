# CPack runs this script between staging and packing. Without it, a strict umask could make directories that only root
# may enter.
execute_process(COMMAND chmod --recursive u=rwX,go=rX ${CPACK_TEMPORARY_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
