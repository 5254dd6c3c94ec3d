# Runs PROGRAM over each reply below FOLDER whose name matches PATTERN. Fails unless it prints, with its exit code in a last
# line, what the file of the same name and ".expected" below EXPECTED holds, and nothing else.
file(GLOB_RECURSE replies RELATIVE ${FOLDER} ${FOLDER}/${PATTERN})
if(NOT replies)
    message(FATAL_ERROR "There is no reply below ${FOLDER}.")
endif()
foreach(reply IN LISTS replies)
    execute_process(COMMAND ${PROGRAM} ${FOLDER}/${reply}
        OUTPUT_VARIABLE shown ERROR_VARIABLE errors RESULT_VARIABLE code)
    string(APPEND shown "exit code ${code}\n${errors}")
    file(READ ${EXPECTED}/${reply}.expected expected)
    if(NOT shown STREQUAL expected)
        message(SEND_ERROR "${FOLDER}/${reply} is shown as\n${shown}but ${EXPECTED}/${reply}.expected holds\n${expected}")
    endif()
endforeach()
