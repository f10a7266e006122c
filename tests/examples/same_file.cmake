# cmake -DPROGRAM=... -DMADE=... -DKEPT=... -P same_file.cmake: the program succeeds, and the file it makes has the bytes of
# the one that is kept.
file(REMOVE ${MADE})
execute_process(COMMAND ${PROGRAM} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${MADE} ${KEPT} COMMAND_ERROR_IS_FATAL ANY)
