# Reference documentation of the SDK's Java API (package com.kovra.rfid.orla).
#
# Two doclint passes, both with -Werror so that any new warning fails:
#  - package: every SDK class with every doclint group but "missing" (HTML,
#    syntax, broken references, accessibility). The data classes comment
#    their fields only where units or meaning are not obvious.
#  - complete: ORLANatives and the enums with every group, "missing"
#    included: each native carries its comment, @param and @return, each enum
#    constant its reader value.
#
# `cmake --build build --target javadoc` runs both and leaves the pages in
# build/javadoc; the CTest tests javadoc and javadoc_complete run one pass
# each into build/javadoc-check.

get_filename_component(_orla_jdk_bin ${Java_JAVAC_EXECUTABLE} DIRECTORY)
find_program(ORLA_JAVADOC javadoc HINTS ${_orla_jdk_bin} REQUIRED)

set(_orla_sdk_dir ${CMAKE_SOURCE_DIR}/java/src)
set(_orla_javadoc_common -quiet -encoding UTF-8 -Werror -sourcepath ${_orla_sdk_dir})

set(ORLA_JAVADOC_PACKAGE ${_orla_javadoc_common} -Xdoclint:all,-missing
    -doctitle "orla-jni: Java reader SDK" -windowtitle "orla-jni" -subpackages com.kovra.rfid.orla)

set(_orla_complete_files ${_orla_sdk_dir}/com/kovra/rfid/orla/ORLANatives.java)
file(GLOB _orla_sdk_files CONFIGURE_DEPENDS ${_orla_sdk_dir}/com/kovra/rfid/orla/*.java)
foreach(_orla_file IN LISTS _orla_sdk_files)
  file(STRINGS ${_orla_file} _orla_enum REGEX "^public enum ")
  if(_orla_enum)
    list(APPEND _orla_complete_files ${_orla_file})
  endif()
endforeach()
set(ORLA_JAVADOC_COMPLETE ${_orla_javadoc_common} -Xdoclint:all ${_orla_complete_files})

add_custom_target(javadoc
  COMMAND ${ORLA_JAVADOC} ${ORLA_JAVADOC_COMPLETE} -d ${CMAKE_BINARY_DIR}/javadoc-check/complete
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/javadoc
  COMMAND ${ORLA_JAVADOC} ${ORLA_JAVADOC_PACKAGE} -d ${CMAKE_BINARY_DIR}/javadoc
  COMMENT "javadoc: reference documentation in ${CMAKE_BINARY_DIR}/javadoc"
  VERBATIM)

add_test(NAME javadoc
  COMMAND ${ORLA_JAVADOC} ${ORLA_JAVADOC_PACKAGE} -d ${CMAKE_BINARY_DIR}/javadoc-check/package)
add_test(NAME javadoc_complete
  COMMAND ${ORLA_JAVADOC} ${ORLA_JAVADOC_COMPLETE} -d ${CMAKE_BINARY_DIR}/javadoc-check/complete)
set_tests_properties(javadoc javadoc_complete PROPERTIES TIMEOUT 300)
