# The simulator's control classes, the demo, and the two jars:
#   orla-sdk.jar  the com.kovra.rfid.orla classes and the loader;
#   orla-sim.jar  the simulator's control classes, with the simulator
#                 libhalyard.so and liborlajni.so inside, which OrlaLibrary
#                 extracts and loads when no system property names a file.
# ${JAVA_OUT}/sdk holds the SDK and simulator classes together, the class
# directory of the tests, the demo and the benchmark.

set(SIM_CLASSES ${JAVA_OUT}/classes/sim)
file(GLOB_RECURSE SIM_JAVA CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/sim/java/*.java)
file(GLOB_RECURSE DEMO_JAVA CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/java/demo/*.java)

add_custom_command(
  OUTPUT ${SIM_CLASSES}.stamp
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${SIM_CLASSES}
  COMMAND ${ORLA_JAVAC} -cp ${SDK_CLASSES} -d ${SIM_CLASSES} ${SIM_JAVA}
  COMMAND ${CMAKE_COMMAND} -E touch ${SIM_CLASSES}.stamp
  DEPENDS ${SDK_CLASSES}.stamp ${SIM_JAVA}
  COMMENT "javac: simulator control classes")

add_custom_command(
  OUTPUT ${JAVA_OUT}/sdk.stamp
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${JAVA_OUT}/sdk
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${SDK_CLASSES} ${JAVA_OUT}/sdk
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${SIM_CLASSES} ${JAVA_OUT}/sdk
  COMMAND ${CMAKE_COMMAND} -E touch ${JAVA_OUT}/sdk.stamp
  DEPENDS ${SDK_CLASSES}.stamp ${SIM_CLASSES}.stamp
  COMMENT "SDK and simulator classes in one class directory")

add_custom_command(
  OUTPUT ${JAVA_OUT}/demo.stamp
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${JAVA_OUT}/demo
  COMMAND ${ORLA_JAVAC} -cp ${JAVA_OUT}/sdk -d ${JAVA_OUT}/demo ${DEMO_JAVA}
  COMMAND ${CMAKE_COMMAND} -E touch ${JAVA_OUT}/demo.stamp
  DEPENDS ${JAVA_OUT}/sdk.stamp ${DEMO_JAVA}
  COMMENT "javac: demo and benchmark")

add_custom_target(java_sdk ALL DEPENDS ${JAVA_OUT}/sdk.stamp ${JAVA_OUT}/demo.stamp)

# ---------------------------------------------------------------------------
# Jars. Both manifests carry the version as Implementation-Version.
# ---------------------------------------------------------------------------
set(ORLA_SDK_JAR ${JAVA_OUT}/orla-sdk.jar)
set(ORLA_SIM_JAR ${JAVA_OUT}/orla-sim.jar)
# Where orla-sim.jar carries its native libraries; OrlaLibrary looks there.
set(ORLA_NATIVE_BUNDLE META-INF/orla-jni/linux-x86-64)
set(SIM_NATIVES ${JAVA_OUT}/sim-natives)

function(orla_jar_manifest output title)
  set(ORLA_JAR_TITLE ${title})
  configure_file(${CMAKE_SOURCE_DIR}/packaging/manifest.txt.in ${output} @ONLY)
endfunction()
orla_jar_manifest(${JAVA_OUT}/sdk-manifest.txt "orla-jni SDK")
orla_jar_manifest(${JAVA_OUT}/sim-manifest.txt "orla-jni simulated reader")

add_custom_command(
  OUTPUT ${ORLA_SDK_JAR}
  COMMAND ${CMAKE_COMMAND} -E rm -f ${ORLA_SDK_JAR}
  COMMAND ${Java_JAR_EXECUTABLE} --create --file ${ORLA_SDK_JAR}
          --manifest ${JAVA_OUT}/sdk-manifest.txt -C ${SDK_CLASSES} .
  DEPENDS ${SDK_CLASSES}.stamp ${JAVA_OUT}/sdk-manifest.txt
  COMMENT "jar: orla-sdk.jar")

# The bundled libraries lose their debug sections (not their symbols): the
# jar stays small and stack traces keep their function names.
add_custom_command(
  OUTPUT ${ORLA_SIM_JAR}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${ORLA_SIM_JAR} ${SIM_NATIVES}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${SIM_NATIVES}/${ORLA_NATIVE_BUNDLE}
  COMMAND ${CMAKE_STRIP} --strip-debug -o ${SIM_NATIVES}/${ORLA_NATIVE_BUNDLE}/libhalyard.so
          $<TARGET_FILE:halyard>
  COMMAND ${CMAKE_STRIP} --strip-debug -o ${SIM_NATIVES}/${ORLA_NATIVE_BUNDLE}/liborlajni.so
          $<TARGET_FILE:orlajni>
  COMMAND ${Java_JAR_EXECUTABLE} --create --file ${ORLA_SIM_JAR}
          --manifest ${JAVA_OUT}/sim-manifest.txt -C ${SIM_CLASSES} . -C ${SIM_NATIVES} META-INF
  DEPENDS ${SIM_CLASSES}.stamp ${JAVA_OUT}/sim-manifest.txt halyard orlajni
  COMMENT "jar: orla-sim.jar")

add_custom_target(jars ALL DEPENDS ${ORLA_SDK_JAR} ${ORLA_SIM_JAR})
