# Run by the build when a test program was linked: writes LIST, which tells ctest of the program's
# suites, each as one test. A process a TEST would take longer to start than most of them run.
#   NAME, PROGRAM, LIST: the program's name and path, and the file to write
#   EMULATOR: the command that runs the program where the machine cannot; may be empty
#   LABELS, FIXTURES: of all of its tests
set(command ${EMULATOR} ${PROGRAM})
execute_process(COMMAND ${command} --gtest_list_tests
                OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "_test$" "" room ${NAME})

# A suite is a line that ends with a point, and may say after it what it is made with.
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\.(\n|  #)" lines "${listing}")
if(NOT lines)
  message(FATAL_ERROR "${PROGRAM} has no tests")
endif()
set(text "")
list(JOIN command "]] [[" words)
foreach(line ${lines})
  string(REGEX REPLACE "[\n.# ]" "" suite "${line}")
  # Skipped is what ran no test to its end, and says nothing of failures after those skipped.
  string(APPEND text
    "add_test([[${room}.${suite}]] [[${words}]] --gtest_brief=1 [[--gtest_filter=${suite}.*]])\n"
    "set_tests_properties([[${room}.${suite}]] PROPERTIES TIMEOUT 300\n"
    "  LABELS [[${LABELS}]] FIXTURES_REQUIRED [[${FIXTURES}]]\n"
    "  SKIP_REGULAR_EXPRESSION [[PASSED  . 0 tests.\n(.  SKIPPED . [^\n]*\n)+$]])\n")
endforeach()
file(WRITE ${LIST} "${text}")
