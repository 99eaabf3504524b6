# Reference documentation of the SDK's Java API (package com.kovra.rfid.orla).
#
# Two doclint passes, both with -Werror so that any new warning fails:
#  - the whole package with every doclint group except "missing" (HTML,
#    syntax, broken references, accessibility);
#  - ORLANatives.java with every group, "missing" included: each native
#    carries its comment, @param and @return.
# The data classes comment their fields only where units or meaning are not
# obvious, which is why the first pass leaves out "missing".
#
# `cmake --build build --target javadoc` writes the pages to build/javadoc;
# the CTest tests of the same name run both passes into build/javadoc-check.

get_filename_component(_orla_jdk_bin ${Java_JAVAC_EXECUTABLE} DIRECTORY)
find_program(ORLA_JAVADOC javadoc HINTS ${_orla_jdk_bin} REQUIRED)

set(ORLA_JAVADOC_SOURCES ${CMAKE_SOURCE_DIR}/java/src)
set(ORLA_JAVADOC_FLAGS -quiet -encoding UTF-8 -Werror -sourcepath ${ORLA_JAVADOC_SOURCES})
set(ORLA_JAVADOC_PACKAGE ${ORLA_JAVADOC_FLAGS} -Xdoclint:all,-missing
    -doctitle "orla-jni: Java reader SDK" -windowtitle "orla-jni" -subpackages com.kovra.rfid.orla)
set(ORLA_JAVADOC_NATIVES ${ORLA_JAVADOC_FLAGS} -Xdoclint:all
    ${ORLA_JAVADOC_SOURCES}/com/kovra/rfid/orla/ORLANatives.java)

add_custom_target(javadoc
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/javadoc
  COMMAND ${ORLA_JAVADOC} ${ORLA_JAVADOC_NATIVES} -d ${CMAKE_BINARY_DIR}/javadoc
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/javadoc
  COMMAND ${ORLA_JAVADOC} ${ORLA_JAVADOC_PACKAGE} -d ${CMAKE_BINARY_DIR}/javadoc
  COMMENT "javadoc: reference documentation in ${CMAKE_BINARY_DIR}/javadoc"
  VERBATIM)

add_test(NAME javadoc
  COMMAND ${ORLA_JAVADOC} ${ORLA_JAVADOC_PACKAGE} -d ${CMAKE_BINARY_DIR}/javadoc-check/package)
add_test(NAME javadoc_natives
  COMMAND ${ORLA_JAVADOC} ${ORLA_JAVADOC_NATIVES} -d ${CMAKE_BINARY_DIR}/javadoc-check/natives)
set_tests_properties(javadoc javadoc_natives PROPERTIES TIMEOUT 300)
