# SPDX-License-Identifier: MIT
# Two interface targets: lumi_warnings for all our code, lumi_level for what goes into the libraries.

add_library(lumi_warnings INTERFACE)
target_compile_options(lumi_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wno-sign-conversion -Wcast-qual -Wundef
  -Wformat=2 -Wvla
  $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi>)

# The products are for AVX. A library for wider integer vectors, made of the same sources, gives the same bits: it may
# stand beside the 64-bit one, in the loader's folder for processors that have them. No products are fused there
# either.
set(LUMI_LEVEL avx CACHE STRING "Processor level: avx, the products', or v3 (x86-64-v3 without fused products)")
set_property(CACHE LUMI_LEVEL PROPERTY STRINGS avx v3)
if(LUMI_LEVEL STREQUAL v3)
  set(LUMI_LEVEL_OPTIONS -mavx2 -mno-fma)
else()
  set(LUMI_LEVEL_OPTIONS -mavx -mno-avx2 -mno-fma -mno-bmi -mno-bmi2)
endif()

# One processor level in both word sizes. Scalar floats stay off the x87 unit and are never contracted,
# so that results do not change with the word size; 32-bit callers may have a badly aligned stack.
add_library(lumi_level INTERFACE)
target_compile_options(lumi_level INTERFACE
  $<$<COMPILE_LANGUAGE:C,CXX>:${LUMI_LEVEL_OPTIONS} -mfpmath=sse -ffp-contract=off>
  $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-mno-avx256-split-unaligned-load -mno-avx256-split-unaligned-store>
  $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions -fno-rtti>)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_options(lumi_level INTERFACE $<$<COMPILE_LANGUAGE:C,CXX>:-mstackrealign>
    # GCC would still spill vectors by aligned stores where nothing else in a function wants alignment.
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-mincoming-stack-boundary=2>
    # Clang would still read several arguments at once with an aligned load.
    $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-mstack-alignment=4>)
endif()

option(LUMI_COVERAGE "Line coverage" OFF)
# The same bytes from any folder. Line counts need the real one.
if(NOT LUMI_COVERAGE)
  add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
endif()

# Lines and functions are what a failing test needs; all of the debug information takes as long to make as the code.
add_compile_options($<$<CONFIG:RelWithDebInfo>:-g1>)

option(LUMI_SANITIZE "AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
if(LUMI_SANITIZE)
  # A null address is found when it is used. What else is asked of every access doubles the time to compile
  # kernels, and is asked once, of the 64-bit build of the same sources.
  set(unasked null)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(unasked null,alignment,pointer-overflow,object-size)
  endif()
  add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-fsanitize=address,undefined>
                      $<$<COMPILE_LANGUAGE:C,CXX>:-fno-sanitize=${unasked}>
                      $<$<COMPILE_LANGUAGE:C,CXX>:-fno-sanitize-recover=all> -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
# Not in the products: each fast path of a kernel tells the tests that it was taken.
option(LUMI_COUNT_PATHS "Kernels report the paths that they take" ${LUMI_SANITIZE})
if(LUMI_COUNT_PATHS)
  add_compile_definitions(LUMI_COUNT_PATHS)
endif()
if(LUMI_COVERAGE)
  # The least optimisation at which the compiler leaves clean upper vector halves behind.
  add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:--coverage> -O1 -fexpensive-optimizations)
  add_link_options(--coverage)
endif()

# Constants that hold addresses become read-only after load. The sanitizers' runtime is in the program,
# not in the library, so that their symbols stay open there.
set(LUMI_HARDENED_LINK -Wl,-z,relro,-z,now,-z,text,-z,noexecstack)
if(NOT LUMI_SANITIZE)
  list(APPEND LUMI_HARDENED_LINK -Wl,-z,defs)
endif()
