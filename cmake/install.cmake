# SPDX-License-Identifier: MIT
# Installed files: both libraries, the public headers, a CMake package and pkg-config files. Nothing in them
# holds the prefix, so the folder may be moved afterwards.
# A library of the wider level is no package of its own: it goes into the loader's folder for processors of that
# level, below an installed product's, and programs that are linked with the product get it there.
if(LUMI_LEVEL STREQUAL v3)
  set_target_properties(lumi PROPERTIES INSTALL_RPATH "$ORIGIN/../..")  # lumcore stands with the product
  install(TARGETS lumi LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/x86-64-v3 NAMELINK_SKIP)
  return()
endif()

include(CMakePackageConfigHelpers)

set(LUMI_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/lumi)
set_target_properties(lumi PROPERTIES INSTALL_RPATH "$ORIGIN")  # lumcore stands beside it

install(TARGETS lumi lumcore EXPORT lumi LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/ lumcore/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN *.h)

install(EXPORT lumi FILE lumiTargets.cmake NAMESPACE lumi:: DESTINATION ${LUMI_PACKAGE_DIR})
configure_package_config_file(cmake/lumiConfig.cmake.in ${PROJECT_BINARY_DIR}/lumiConfig.cmake
  INSTALL_DESTINATION ${LUMI_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/lumiConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)  # refuses another word size as well
install(FILES ${PROJECT_BINARY_DIR}/lumiConfig.cmake ${PROJECT_BINARY_DIR}/lumiConfigVersion.cmake
  DESTINATION ${LUMI_PACKAGE_DIR})

# Paths in the .pc files are relative to the folder that they are found in.
file(RELATIVE_PATH LUMI_PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH LUMI_PC_INCLUDE ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_FULL_INCLUDEDIR})
string(REGEX REPLACE "/$" "" LUMI_PC_PREFIX "${LUMI_PC_PREFIX}")
foreach(name lumi lumcore)
  configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
