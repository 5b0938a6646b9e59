# SPDX-License-Identifier: MIT
add_library(lumi SHARED ${LUMI_GENERATED}/entry_stubs.S)
add_library(lumi::lumi ALIAS lumi)
add_dependencies(lumi lumi_generated)

# Family code lies in the folder of its home, row kernels in kernels/ and its folders: what is put there is built.
# Kernels are optimised in every build type: unoptimised vector code is many times slower.
# Loops start on 32 bytes: where one falls otherwise costs up to a third of a copy's speed. Tails of up to
# fifteen samples stay loops: unrolled, they would take registers from the loop before them.
set(LUMI_KERNEL_OPTIMISATION -O3 CACHE STRING "Optimisation of the kernels, in every build type")
set(LUMI_KERNEL_OPTIONS ${LUMI_KERNEL_OPTIMISATION} -falign-loops=32)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  list(APPEND LUMI_KERNEL_OPTIONS --param=max-completely-peel-times=8)
endif()
set(LUMI_HOMES arithmetic data statistics filters geometry transforms analysis)
list(TRANSFORM LUMI_HOMES APPEND /*.cpp OUTPUT_VARIABLE LUMI_FAMILY_CODE)
list(TRANSFORM LUMI_HOMES PREPEND kernels/ OUTPUT_VARIABLE LUMI_KERNEL_CODE)
list(TRANSFORM LUMI_KERNEL_CODE APPEND /*.cpp)
file(GLOB LUMI_FRAME CONFIGURE_DEPENDS frame/*.cpp)
file(GLOB LUMI_FAMILIES CONFIGURE_DEPENDS ${LUMI_FAMILY_CODE})
file(GLOB LUMI_KERNELS CONFIGURE_DEPENDS kernels/*.cpp ${LUMI_KERNEL_CODE})
target_sources(lumi PRIVATE ${LUMI_FRAME} ${LUMI_FAMILIES} ${LUMI_KERNELS})
if(NOT LUMI_COVERAGE)
  set_source_files_properties(${LUMI_KERNELS} PROPERTIES COMPILE_OPTIONS "${LUMI_KERNEL_OPTIONS}")
endif()
# The frame alone calls what may want an aligned stack, the core library; it aligns its own. All other functions do so
# only if they have vectors there.
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  set_property(SOURCE ${LUMI_FAMILIES} ${LUMI_KERNELS} APPEND PROPERTY COMPILE_OPTIONS -mpreferred-stack-boundary=2)
endif()

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
