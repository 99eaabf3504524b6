# Read by cpack for each generator. ORLA_PACKAGE (-D on the cpack command
# line) says which package to make:
#   device  liborlajni.so for a reader, at the reader's own paths
#           (platform/lib): the .deb installs there, the archive unpacks
#           onto a reader's root.
#   fieldtools  orla-check, orla-trace and libhalyard-trace.so for a reader,
#           under opt/orla-tools: the .deb installs there, the archive
#           unpacks onto a reader's root.
#   devkit  the developer kit: the .deb installs under /usr, the archive is
#           a relocatable tree in a directory of its own.
if(ORLA_PACKAGE STREQUAL "device" OR ORLA_PACKAGE STREQUAL "fieldtools")
  set(CPACK_COMPONENTS_ALL ${ORLA_PACKAGE})
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY OFF)
elseif(ORLA_PACKAGE STREQUAL "devkit")
  set(CPACK_COMPONENTS_ALL devkit)
  if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  else()
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
  endif()
else()
  message(FATAL_ERROR "say which package to make: cpack -D ORLA_PACKAGE=device, fieldtools or devkit")
endif()
# The archive's file name, and the name of its top directory (devkit).
set(CPACK_PACKAGE_FILE_NAME orla-jni-${ORLA_PACKAGE}-${CPACK_PACKAGE_VERSION}-linux-x86_64)
string(TOUPPER "${ORLA_PACKAGE}" component)
set(CPACK_ARCHIVE_${component}_FILE_NAME ${CPACK_PACKAGE_FILE_NAME})
