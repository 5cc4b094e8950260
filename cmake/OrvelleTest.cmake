# Every test's name begins with the folder of tests/ that it stands in, and all tests of a folder begin so:
# ctest -R '^voice' runs all of voice.
#
#   orvelle_test(PROGRAM voice-tests)                       each test of a GoogleTest program, as voice/Suite.Test;
#                                                           FILTER names some, as --gtest_filter does
#   orvelle_test(NAME road COMMAND program argument...)     one test, as endtoend/road
#
# With FOLDER the name begins with another folder than that of the list that calls. PROPERTIES, last but for COMMAND,
# are those of set_tests_properties.
#
#   orvelle_beside(wayland-tests orvelle-key-guard...)      links beside the test's program what the panel in it looks
#                                                           for beside its own file
include(GoogleTest)

function(orvelle_test)
    cmake_parse_arguments(PARSE_ARGV 0 test "" "NAME;PROGRAM;FILTER;FOLDER" "COMMAND;PROPERTIES")
    if(NOT test_FOLDER)
        cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/tests
            OUTPUT_VARIABLE test_FOLDER)
    endif()
    if(test_PROGRAM)
        gtest_discover_tests(${test_PROGRAM} TEST_PREFIX ${test_FOLDER}/ TEST_FILTER "${test_FILTER}"
            DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT 300 ${test_PROPERTIES})
        return()
    endif()
    add_test(NAME ${test_FOLDER}/${test_NAME} COMMAND ${test_COMMAND})
    set_tests_properties(${test_FOLDER}/${test_NAME} PROPERTIES TIMEOUT 300 ${test_PROPERTIES})
endfunction()

function(orvelle_beside program)
    add_dependencies(${program} ${ARGN})
    foreach(other ${ARGN})
        add_custom_command(TARGET ${program} POST_BUILD COMMAND ${CMAKE_COMMAND} -E create_symlink
            $<TARGET_FILE:${other}> $<TARGET_FILE_DIR:${program}>/$<TARGET_FILE_NAME:${other}>)
    endforeach()
endfunction()
