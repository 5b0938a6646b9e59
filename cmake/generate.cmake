# SPDX-License-Identifier: MIT
# What follows from the registry is made in the build tree, whenever a row changes.

set(LUMI_GENERATED ${PROJECT_BINARY_DIR}/generated)
file(GLOB LUMI_REGISTRY CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/registry/*/*.reg)
file(GLOB LUMI_GENERATOR CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tools/lumigen/*.py)
set(LUMI_GENERATED_FILES
  ${LUMI_GENERATED}/entry_stubs.S ${LUMI_GENERATED}/exports.map ${LUMI_GENERATED}/export_table.inc
  ${LUMI_GENERATED}/structure.txt ${LUMI_GENERATED}/lumi.json)
foreach(file ${LUMI_REGISTRY})
  cmake_path(GET file STEM stem)
  list(APPEND LUMI_GENERATED_FILES ${LUMI_GENERATED}/bind/${stem}.inc ${LUMI_GENERATED}/dispatch/${stem}.hpp)
endforeach()
add_custom_command(
  OUTPUT ${LUMI_GENERATED}/stamp
  BYPRODUCTS ${LUMI_GENERATED_FILES}
  COMMAND ${CMAKE_COMMAND} -E env PYTHONPATH=${PROJECT_SOURCE_DIR}/tools PYTHONDONTWRITEBYTECODE=1
          ${Python3_EXECUTABLE} -m lumigen build ${LUMI_GENERATED}
  COMMAND ${CMAKE_COMMAND} -E touch ${LUMI_GENERATED}/stamp
  DEPENDS ${LUMI_REGISTRY} ${LUMI_GENERATOR}
  COMMENT "Reading the registry")
add_custom_target(lumi_generated DEPENDS ${LUMI_GENERATED}/stamp)
