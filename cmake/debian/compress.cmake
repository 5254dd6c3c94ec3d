# Run by CPack on what it is about to pack.
file(GLOB_RECURSE files
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/usr/share/doc/*/changelog
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/usr/share/man/*.1)
foreach(file IN LISTS files)
    execute_process(COMMAND gzip -9n ${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
