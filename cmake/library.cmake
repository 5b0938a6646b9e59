# SPDX-License-Identifier: MIT
add_library(lumi SHARED ${LUMI_GENERATED}/entry_stubs.S)
add_library(lumi::lumi ALIAS lumi)
add_dependencies(lumi lumi_generated)

# lumi_sources(<home> <stem>...): family code, and the kernels of the same stem where it has some.
# Kernels are optimised in every build type: unoptimised vector code is many times slower.
# Loops start on 32 bytes: where one falls otherwise costs up to a third of a copy's speed. Tails of up to
# fifteen samples stay loops: unrolled, they would take registers from the loop before them.
set(LUMI_KERNEL_OPTIONS -O3 -falign-loops=32)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  list(APPEND LUMI_KERNEL_OPTIONS --param=max-completely-peel-times=8)
endif()
function(lumi_kernels)
  foreach(stem ${ARGN})
    target_sources(lumi PRIVATE ${PROJECT_SOURCE_DIR}/kernels/${stem}.cpp)
    if(NOT LUMI_COVERAGE)
      set_source_files_properties(${PROJECT_SOURCE_DIR}/kernels/${stem}.cpp PROPERTIES COMPILE_OPTIONS "${LUMI_KERNEL_OPTIONS}")
    endif()
  endforeach()
endfunction()
function(lumi_sources home)
  foreach(stem ${ARGN})
    target_sources(lumi PRIVATE ${PROJECT_SOURCE_DIR}/${home}/${stem}.cpp)
    if(EXISTS ${PROJECT_SOURCE_DIR}/kernels/${stem}.cpp)
      lumi_kernels(${stem})
    endif()
  endforeach()
endfunction()

lumi_sources(frame attach image_memory version streaming)
lumi_sources(data set copy copy_channels border convert scale bits)
lumi_sources(arithmetic add_sub)
lumi_sources(geometry resize resize_spec)
lumi_kernels(resize_nearest resize_linear resize_linear_floats resize_by_two)
lumi_kernels(masked chosen planes pattern)  # not of one family alone
lumi_sources(filters filter_border filter_border_object)
lumi_kernels(convert_floats convert_scaled filter_border_floats)

# The date of the version record: SOURCE_DATE_EPOCH where it is set, so that builds can be repeated.
string(TIMESTAMP LUMI_BUILD_DATE "%b %d %Y" UTC)
string(REGEX REPLACE " 0([0-9]) " "  \\1 " LUMI_BUILD_DATE "${LUMI_BUILD_DATE}")
set_source_files_properties(frame/version.cpp PROPERTIES COMPILE_DEFINITIONS
  "LUMI_MAJOR=${PROJECT_VERSION_MAJOR};LUMI_MINOR=${PROJECT_VERSION_MINOR};LUMI_BUILD_NUMBER=${LUMI_BUILD_NUMBER};LUMI_BUILD_DATE=\"${LUMI_BUILD_DATE}\"")

target_include_directories(lumi
  PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
  PRIVATE ${PROJECT_SOURCE_DIR} ${LUMI_GENERATED})
target_link_libraries(lumi PRIVATE lumcore lumi_level lumi_warnings)
# Vectors are written where they pay. Compilers put arguments together in them, which costs short rows more than
# the work itself.
target_compile_options(lumi PRIVATE -fno-tree-slp-vectorize -fvisibility=hidden $<$<COMPILE_LANGUAGE:CXX>:-fvisibility-inlines-hidden>)
target_link_options(lumi PRIVATE
  -Wl,--version-script=${LUMI_GENERATED}/exports.map ${LUMI_HARDENED_LINK})
set_target_properties(lumi PROPERTIES
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINK_DEPENDS ${LUMI_GENERATED}/exports.map
  BUILD_RPATH_USE_ORIGIN ON)
