# Packages (.deb and .tar.gz) of the device component and of the developer
# kit, one cpack run each (scripts/package.sh):
#   cpack --config CPackConfig.cmake -D ORLA_PACKAGE=device
#   cpack --config CPackConfig.cmake -D ORLA_PACKAGE=fieldtools
#   cpack --config CPackConfig.cmake -D ORLA_PACKAGE=devkit
# packaging/cpack_project.cmake picks the component, the install prefix and
# the file names for the package asked for.

set(CPACK_PACKAGE_NAME orla-jni)
set(CPACK_PACKAGE_VENDOR Kovra)
set(CPACK_PACKAGE_CONTACT "orla-jni maintainers <orla-jni@kovra.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Java RFID reader SDK, native half")
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
# Libraries installed by target are stripped (the device component keeps its
# debug file apart; see DeviceInstall.cmake).
set(CPACK_STRIP_FILES ON)
set(CPACK_OUTPUT_FILE_PREFIX ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/packaging/cpack_project.cmake)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE amd64)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION java)
set(CPACK_DEBIAN_DEVICE_PACKAGE_NAME orla-jni-device)
set(CPACK_DEBIAN_DEVICE_DESCRIPTION
  "liborlajni.so for the reader (platform/lib), with its debug file under lib/debug/.build-id")
set(CPACK_DEBIAN_DEVICE_PACKAGE_DEPENDS "libc6, libstdc++6")
set(CPACK_DEBIAN_FIELDTOOLS_PACKAGE_NAME orla-jni-fieldtools)
set(CPACK_DEBIAN_FIELDTOOLS_DESCRIPTION
  "Field tools for a reader (opt/orla-tools): orla-check, the call tracer libhalyard-trace.so, orla-trace")
set(CPACK_DEBIAN_FIELDTOOLS_PACKAGE_DEPENDS "libc6, libstdc++6")
set(CPACK_DEBIAN_DEVKIT_PACKAGE_NAME orla-jni-devkit)
set(CPACK_DEBIAN_DEVKIT_DESCRIPTION
  "orla-sdk.jar, orla-sim.jar (with the simulated reader inside), the simulator in lib/orla-sim, docs")
set(CPACK_DEBIAN_DEVKIT_PACKAGE_DEPENDS "libc6, libstdc++6")
set(CPACK_DEBIAN_DEVKIT_PACKAGE_RECOMMENDS "default-jre-headless | java8-runtime-headless")
include(CPack)
