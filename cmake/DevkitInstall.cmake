# The developer kit (component devkit): what a Java team needs to build and
# test its application off the reader.
#   share/java/orla-sdk.jar, orla-sim.jar    the jars
#   lib/orla-sim/libhalyard.so, liborlajni.so the simulated reader and the
#                                             library built against it, for
#                                             -Dorla.sim / -Dorla.lib
#   share/doc/orla-jni/                       README, docs, examples
# The simulator keeps a directory of its own, off every library search
# path, so that it can never stand in for a reader's libhalyard.so.

set(ORLA_SIM_LIBDIR lib/orla-sim)
install(TARGETS halyard orlajni LIBRARY DESTINATION ${ORLA_SIM_LIBDIR} COMPONENT devkit)
install(FILES ${ORLA_SDK_JAR} ${ORLA_SIM_JAR} DESTINATION share/java COMPONENT devkit)
file(GLOB ORLA_DOCS CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/*.md)
install(FILES ${CMAKE_SOURCE_DIR}/README.md DESTINATION share/doc/orla-jni COMPONENT devkit)
install(FILES ${ORLA_DOCS} DESTINATION share/doc/orla-jni/docs COMPONENT devkit)
if(EXISTS ${CMAKE_SOURCE_DIR}/java/examples)
  install(DIRECTORY ${CMAKE_SOURCE_DIR}/java/examples/ DESTINATION share/doc/orla-jni/examples
          COMPONENT devkit)
endif()
