# Runs SCENARIO with REPLAY, keeps what it prints as PRINTED, and fails with the differences if that is not TRANSCRIPT.
cmake_path(GET PRINTED PARENT_PATH folder)
file(MAKE_DIRECTORY ${folder})
execute_process(COMMAND ${REPLAY} ${SCENARIO} OUTPUT_FILE ${PRINTED} ERROR_VARIABLE errors RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCENARIO} ended with the status ${status}\n${errors}")
endif()
execute_process(COMMAND diff -u --text --label expected --label printed ${TRANSCRIPT} ${PRINTED}
    OUTPUT_VARIABLE differences ERROR_VARIABLE errors RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCENARIO} does not give its transcript\n${errors}${differences}")
endif()
