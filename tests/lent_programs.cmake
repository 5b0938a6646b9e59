# SPDX-License-Identifier: MIT
# Programs of tests that another build of this word size has compiled: they load this build's library. The interface is
# plain C, and compiling the tests takes longer than compiling the library.

set(lender ${PROJECT_SOURCE_DIR}/build/${LUMI_TEST_PROGRAMS_OF})
add_custom_target(lumi_tests ALL
  COMMAND ${CMAKE_COMMAND} --preset ${LUMI_TEST_PROGRAMS_OF}
  COMMAND ${CMAKE_COMMAND} --build ${lender} --target lumi_tests
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
  COMMENT "Test programs of ${LUMI_TEST_PROGRAMS_OF}")
set(program_folder ${lender}/tests)
# Each program checks that it got the library that it is to try.
set(program_environment LD_LIBRARY_PATH=${lender}/tests/testcore:$<TARGET_FILE_DIR:lumi>)
