# Read by cpack for each generator. ORLA_PACKAGE (-D on the cpack command
# line) says which package to make:
#   device  liborlajni.so for a reader, installed at the reader's own paths
#           (/platform/lib); the archive unpacks onto a reader's root.
#   devkit  the developer kit, installed under /usr (an archive of a
#           relocatable tree).
if(ORLA_PACKAGE STREQUAL "device")
  set(CPACK_COMPONENTS_ALL device)
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY OFF)
elseif(ORLA_PACKAGE STREQUAL "devkit")
  set(CPACK_COMPONENTS_ALL devkit)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  message(FATAL_ERROR "say which package to make: cpack -D ORLA_PACKAGE=device or devkit")
endif()
string(TOUPPER "${ORLA_PACKAGE}" component)
set(CPACK_ARCHIVE_${component}_FILE_NAME orla-jni-${ORLA_PACKAGE}-${CPACK_PACKAGE_VERSION}-linux-x86_64)
