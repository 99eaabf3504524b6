# The JDK, and the SDK's classes (package com.kovra.rfid.orla) compiled for
# the oldest Java release they allow. javac -h writes the JNI header that the
# library compiles against; the version resource lets OrlaLibrary.version()
# answer from a class directory as well as from the jar.

# Use the JDK of the javac on PATH unless JAVA_HOME says otherwise (a
# machine may carry several JDKs).
if(NOT DEFINED ENV{JAVA_HOME})
  find_program(JAVAC_ON_PATH javac)
  if(JAVAC_ON_PATH)
    get_filename_component(_javac_real ${JAVAC_ON_PATH} REALPATH)
    get_filename_component(_jdk_bin ${_javac_real} DIRECTORY)
    get_filename_component(_jdk_home ${_jdk_bin} DIRECTORY)
    set(ENV{JAVA_HOME} ${_jdk_home})
  endif()
endif()
find_package(Java 17 REQUIRED COMPONENTS Development Runtime)
find_package(JNI REQUIRED)

# Readers often run older JVMs: the SDK and the simulator's classes are
# compiled for Java 8.
set(ORLA_JAVA_RELEASE 8)
set(ORLA_JAVAC ${Java_JAVAC_EXECUTABLE} --release ${ORLA_JAVA_RELEASE}
    -Xlint:all -Xlint:-options -Werror -encoding UTF-8)

set(JAVA_OUT ${CMAKE_BINARY_DIR}/java)
set(JNI_HEADER_DIR ${CMAKE_BINARY_DIR}/generated/jni)
set(ORLA_NATIVES_HEADER ${JNI_HEADER_DIR}/com_kovra_rfid_orla_ORLANatives.h)
set(SDK_CLASSES ${JAVA_OUT}/classes/sdk)
file(GLOB_RECURSE SDK_JAVA CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/java/src/*.java)

set(ORLA_VERSION_RESOURCE ${CMAKE_BINARY_DIR}/generated/orla-version.properties)
file(CONFIGURE OUTPUT ${ORLA_VERSION_RESOURCE} CONTENT "version=${PROJECT_VERSION}\n")

add_custom_command(
  OUTPUT ${SDK_CLASSES}.stamp ${ORLA_NATIVES_HEADER}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${SDK_CLASSES}
  COMMAND ${ORLA_JAVAC} -d ${SDK_CLASSES} -h ${JNI_HEADER_DIR} ${SDK_JAVA}
  COMMAND ${CMAKE_COMMAND} -E copy ${ORLA_VERSION_RESOURCE} ${SDK_CLASSES}/com/kovra/rfid/orla/
  COMMAND ${CMAKE_COMMAND} -E touch ${SDK_CLASSES}.stamp
  DEPENDS ${SDK_JAVA} ${ORLA_VERSION_RESOURCE}
  COMMENT "javac: SDK classes and the JNI header")
