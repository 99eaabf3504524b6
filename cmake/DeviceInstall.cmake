# The device component: what goes onto a reader.
#   cmake --install <build> --component device --prefix <dir>
# installs liborlajni.so, stripped, into ORLA_DEVICE_LIBDIR (the reader's
# platform/lib by default), and its debug information apart, as
#   ORLA_DEBUG_DIR/.build-id/xx/yyyy.debug
# where xxyyyy is the library's build ID: gdb finds it there when its debug
# file directory is ORLA_DEBUG_DIR. NEEDED and RUNPATH stay as linked.

install(TARGETS orlajni LIBRARY DESTINATION ${ORLA_DEVICE_LIBDIR} COMPONENT device)
install(CODE "
  set(ORLA_BUILT_LIBRARY \"$<TARGET_FILE:orlajni>\")
  set(ORLA_INSTALLED_LIBRARY \"${ORLA_DEVICE_LIBDIR}/$<TARGET_FILE_NAME:orlajni>\")
  set(ORLA_DEBUG_DIR \"${ORLA_DEBUG_DIR}\")
  set(ORLA_READELF \"${CMAKE_READELF}\")
  set(ORLA_OBJCOPY \"${CMAKE_OBJCOPY}\")
  include(\"${CMAKE_CURRENT_LIST_DIR}/split_debug.cmake\")
  " COMPONENT device)
