# What liborlajni.so links against to need libhalyard.so by soname
# (ORLA_READER_API_LINK):
#   - a developer build: the simulator (target halyard);
#   - a device-only build with ORLA_READER_API: the reader's own library;
#   - a device-only build without it: a link-only stub generated from
#     include/reader_api.h, so that its functions never drift from the ones
#     the library calls. The stub has the soname libhalyard.so, traps if
#     ever called, and is never installed.

if(NOT ORLA_DEVICE_ONLY)
  if(ORLA_READER_API)
    message(FATAL_ERROR "ORLA_READER_API is for device-only builds: add -DORLA_DEVICE_ONLY=ON")
  endif()
  set(ORLA_READER_API_LINK halyard)
  return()
endif()

if(ORLA_READER_API)
  if(NOT EXISTS "${ORLA_READER_API}")
    message(FATAL_ERROR "ORLA_READER_API: no such file: ${ORLA_READER_API}")
  endif()
  # liborlajni.so records the soname of what it links against: it must be
  # the reader's, or the library would not find it on the reader.
  execute_process(COMMAND ${CMAKE_READELF} -d "${ORLA_READER_API}"
                  OUTPUT_VARIABLE _dynamic ERROR_VARIABLE _dynamic RESULT_VARIABLE _rc)
  if(NOT _rc EQUAL 0 OR NOT _dynamic MATCHES "Library soname: \\[libhalyard\\.so\\]")
    message(FATAL_ERROR "ORLA_READER_API: ${ORLA_READER_API} is not a shared library "
                        "with the soname libhalyard.so")
  endif()
  add_library(reader_api SHARED IMPORTED)
  set_target_properties(reader_api PROPERTIES
    IMPORTED_LOCATION "${ORLA_READER_API}"
    IMPORTED_SONAME libhalyard.so)
  set(ORLA_READER_API_LINK reader_api)
  return()
endif()

set(READER_API_STUB_SOURCE ${CMAKE_BINARY_DIR}/generated/reader_api_stub.cpp)
add_custom_command(
  OUTPUT ${READER_API_STUB_SOURCE}
  COMMAND ${CMAKE_COMMAND} -DHEADER=${CMAKE_SOURCE_DIR}/include/reader_api.h
          -DOUTPUT=${READER_API_STUB_SOURCE}
          -P ${CMAKE_CURRENT_LIST_DIR}/reader_api_stub.cmake
  DEPENDS ${CMAKE_SOURCE_DIR}/include/reader_api.h ${CMAKE_CURRENT_LIST_DIR}/reader_api_stub.cmake
  COMMENT "Link-only stub of the reader API from reader_api.h")
add_library(reader_api_stub SHARED ${READER_API_STUB_SOURCE})
target_include_directories(reader_api_stub PRIVATE ${CMAKE_SOURCE_DIR}/include)
# The stub's functions take their parameters from the header and use none.
target_compile_options(reader_api_stub PRIVATE -Wno-unused-parameter)
set_target_properties(reader_api_stub PROPERTIES
  OUTPUT_NAME halyard
  LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/reader-api-stub)
set(ORLA_READER_API_LINK reader_api_stub)
