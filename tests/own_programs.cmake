# SPDX-License-Identifier: MIT
# The programs of tests, compiled for this build and linked with its library.

# A core library under the tests' control, found by the same name as the stock one.
add_library(testcore SHARED testcore/testcore.cpp)
target_include_directories(testcore PRIVATE ${PROJECT_SOURCE_DIR}/lumcore/include)
target_link_libraries(testcore PRIVATE lumi_warnings)
set_target_properties(testcore PROPERTIES
  OUTPUT_NAME lumcore SOVERSION 1 LIBRARY_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/testcore)

# What programs of tests share, compiled once: means, and the tests that each family has. The rules of streaming and
# scratch are hidden in the library and tested as sources.
file(GLOB LUMI_TEST_SUPPORT CONFIGURE_DEPENDS support/*.cpp support/*.S common/*.cpp)
add_library(lumi_test_support OBJECT ${LUMI_TEST_SUPPORT} ${PROJECT_SOURCE_DIR}/frame/streaming.cpp
  ${PROJECT_SOURCE_DIR}/frame/scratch.cpp)
target_include_directories(lumi_test_support PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}
  ${PROJECT_SOURCE_DIR}/lumcore/include PRIVATE ${LUMI_GENERATED})
target_link_libraries(lumi_test_support PUBLIC lumi gtest_main lumi_warnings ${CMAKE_DL_LIBS})
# Floats through vector registers: the x87 unit would change the bits of signalling NaNs on their way.
# -fPIC lets programs take the objects' precompiled header. Models are compiled faster at -O1, and run nearly as fast.
target_compile_options(lumi_test_support PUBLIC $<$<COMPILE_LANGUAGE:CXX>:-msse2 -mfpmath=sse -fPIC -O1>)
target_compile_definitions(lumi_test_support PUBLIC LUMI_BUILD_NUMBER=${LUMI_BUILD_NUMBER}
  $<$<OR:$<BOOL:${LUMI_SANITIZE}>,$<BOOL:${LUMI_COVERAGE}>>:LUMI_INSTRUMENTED>)
target_precompile_headers(lumi_test_support PRIVATE support/precompiled.hpp)
add_dependencies(lumi_test_support lumi_generated)

foreach(group ${groups})
  set(program ${group}_test)
  add_executable(${program} ${sources_of_${group}})
  target_link_libraries(${program} PRIVATE lumi_test_support)
  target_precompile_headers(${program} REUSE_FROM lumi_test_support)
  # The stand-in goes in as a plain file ahead of the rest: were it known to CMake as a library, its directory
  # and the stock one's would each have to come first.
  target_link_options(${program} PRIVATE
    -Wl,--push-state,--no-as-needed,$<TARGET_LINKER_FILE:testcore>,--pop-state)
  add_dependencies(${program} testcore)
  set_target_properties(${program} PROPERTIES BUILD_RPATH ${CMAKE_CURRENT_BINARY_DIR}/testcore)
  list(APPEND programs ${program})
endforeach()
add_custom_target(lumi_tests DEPENDS ${programs})
set(program_folder ${CMAKE_CURRENT_BINARY_DIR})
set(program_environment)
