# Install-time step of the device component (see DeviceInstall.cmake): keeps
# the debug information of the built library in a file named by its build
# ID, then strips the installed copy. Paths relative to the install prefix
# may also be absolute; DESTDIR is honoured.

function(orla_install_path result path)
  if(IS_ABSOLUTE "${path}")
    set(${result} "$ENV{DESTDIR}${path}" PARENT_SCOPE)
  else()
    set(${result} "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${path}" PARENT_SCOPE)
  endif()
endfunction()

function(orla_run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${ARGN}: ${out}")
  endif()
endfunction()

execute_process(COMMAND "${ORLA_READELF}" -n "${ORLA_BUILT_LIBRARY}" OUTPUT_VARIABLE notes)
if(NOT notes MATCHES "Build ID: ([0-9a-f][0-9a-f])([0-9a-f]+)")
  message(FATAL_ERROR "${ORLA_BUILT_LIBRARY} has no build ID (link it with --build-id)")
endif()
orla_install_path(debug_root "${ORLA_DEBUG_DIR}")
set(debug_file "${debug_root}/.build-id/${CMAKE_MATCH_1}/${CMAKE_MATCH_2}.debug")
orla_install_path(library "${ORLA_INSTALLED_LIBRARY}")

message(STATUS "Installing: ${debug_file}")
get_filename_component(debug_dir "${debug_file}" DIRECTORY)
file(MAKE_DIRECTORY "${debug_dir}")
orla_run("${ORLA_OBJCOPY}" --only-keep-debug --compress-debug-sections=zlib
         "${ORLA_BUILT_LIBRARY}" "${debug_file}")
file(CHMOD "${debug_file}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${debug_file}")

message(STATUS "Stripping: ${library}")
orla_run("${ORLA_OBJCOPY}" --strip-unneeded "${library}")
