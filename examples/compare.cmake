# Runs PROGRAM with ARGUMENTS, and fails unless it succeeds and prints what the file EXPECTED holds. Both streams count.
execute_process(COMMAND ${PROGRAM} ${ARGUMENTS} OUTPUT_VARIABLE found ERROR_VARIABLE found RESULT_VARIABLE result)
file(READ ${EXPECTED} expected)
if(NOT result STREQUAL "0")
    message(FATAL_ERROR "The program ended with ${result}:\n${found}")
endif()
if(NOT found STREQUAL expected)
    message(FATAL_ERROR "The program printed\n${found}but ${EXPECTED} holds\n${expected}")
endif()
