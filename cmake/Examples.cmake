# The example programs of java/examples, and a smoke test of each on the
# simulated reader.
#
# Included from the top CMakeLists.txt, this file compiles the examples into
# build/java/orla-examples.jar (target java_examples) and adds one CTest test
# per run. Each test runs this same file in script mode (cmake -P): it starts
# the example, requires exit code EXIT, and requires every line that
# orla_example_expect() lists for the run to appear in the example's output.

# The regular expressions that the output of a run must match, one a line.
function(orla_example_expect run out)
  set(ok "RFID_API_SUCCESS")
  if(run STREQUAL "TagAccess")
    set(lines
      "connect to sim-reader: ${ok}"
      "read MEMORY_BANK_EPC: ${ok}"
      "EPC bank holds 303425B4C000000000000003: matches the tag ID"
      "write user memory: ${ok}"
      "read MEMORY_BANK_USER: ${ok}"
      "wrote CAFEF00D, read back CAFEF00D: match"
      "write access password: ${ok}"
      "lock user memory: ${ok}"
      "disconnect: ${ok}")
  elseif(run STREQUAL "TagAccessUnknownTag")
    set(lines
      "read MEMORY_BANK_EPC: RFID_NOT_FOUND"
      "  last error: "
      "disconnect: ${ok}")
  elseif(run STREQUAL "EventsAndTriggers")
    set(lines
      "register INVENTORY_START_EVENT: ${ok}"
      "register TAG_READ_EVENT: ${ok}"
      "register INVENTORY_STOP_EVENT: ${ok}"
      "start inventory: ${ok}"
      "event INVENTORY_START_EVENT"
      "event TAG_READ_EVENT: [1-9][0-9]* tags fetched"
      "event INVENTORY_STOP_EVENT"
      "[1-9][0-9]* distinct tags in [0-9]+ reads"
      "wait for another stop event: 258 \\(time-out\\)"
      "disconnect: ${ok}")
  elseif(run STREQUAL "AccessSequence")
    set(lines
      "initialize access sequence: ${ok}"
      "add read TID: ${ok}\n  operation index [0-9]+"
      "add write user memory: ${ok}\n  operation index [0-9]+"
      "two distinct operation indices: yes"
      "perform access sequence: ${ok}"
      "stop access sequence: ${ok}"
      "last access result: ${ok}\n  counts [0-9]+ and [0-9]+"
      "deinitialize access sequence: ${ok}"
      "disconnect: ${ok}")
  elseif(run STREQUAL "ReaderConfiguration")
    set(lines
      "reader capabilities: ${ok}"
      "model [^,]+, [1-9][0-9]* antennas, [1-9][0-9]* transmit power levels"
      "antenna 1 RF configuration: ${ok}\n  transmit power index [0-9]+"
      "set antenna 1 transmit power index to [0-9]+: ${ok}"
      "antenna 1 transmit power index reads back [0-9]+: match"
      "singulation control of antenna 1: ${ok}"
      "set singulation control of antenna 1: ${ok}"
      "session reads back [0-9]+: match"
      "reader information: ${ok}"
      "disconnect: ${ok}")
  else()
    message(FATAL_ERROR "no expectations for the example run ${run}")
  endif()
  set(${out} "${lines}" PARENT_SCOPE)
endfunction()

if(CMAKE_SCRIPT_MODE_FILE)
  # Script mode: JAVA, SIM, LIB, CLASSPATH, CLASS, RUN, EXIT and ARGS (a
  # comma-separated list) come from the test's command line.
  string(REPLACE "," ";" args "${ARGS}")
  execute_process(
    COMMAND ${JAVA} -Dorla.sim=${SIM} -Dorla.lib=${LIB} -cp ${CLASSPATH}
            com.kovra.rfid.orla.examples.${CLASS} ${args}
    RESULT_VARIABLE exit_code OUTPUT_VARIABLE output ERROR_VARIABLE errors
    TIMEOUT 120)
  message("${output}${errors}")
  if(NOT exit_code STREQUAL "${EXIT}")
    message(FATAL_ERROR "${CLASS} exited with ${exit_code}, expected ${EXIT}")
  endif()
  if(errors MATCHES "Exception|Error")
    message(FATAL_ERROR "${CLASS} wrote a Java exception or error to standard error")
  endif()
  orla_example_expect(${RUN} lines)
  foreach(line IN LISTS lines)
    if(NOT output MATCHES "(^|\n)${line}")
      message(FATAL_ERROR "${CLASS}: no output line matches: ${line}")
    endif()
  endforeach()
  return()
endif()

include(UseJava)
file(GLOB_RECURSE EXAMPLES_JAVA CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/java/examples/*.java)
set(CMAKE_JAVA_COMPILE_FLAGS -Xlint:all -Werror -encoding UTF-8)
set(CMAKE_JAVA_INCLUDE_PATH ${JAVA_OUT}/sdk)
add_jar(java_examples SOURCES ${EXAMPLES_JAVA} OUTPUT_NAME orla-examples OUTPUT_DIR ${JAVA_OUT})
add_dependencies(java_examples java_sdk)
unset(CMAKE_JAVA_COMPILE_FLAGS)
unset(CMAKE_JAVA_INCLUDE_PATH)
set(EXAMPLES_JAR ${JAVA_OUT}/orla-examples.jar)

# One smoke test: the example CLASS run with ARGS (comma-separated), whose
# output RUN's expectations check and whose exit code must be EXIT.
function(orla_example_test run class exit args)
  add_test(NAME example_${run}
    COMMAND ${CMAKE_COMMAND}
            -DJAVA=${Java_JAVA_EXECUTABLE} -DSIM=$<TARGET_FILE:halyard> -DLIB=$<TARGET_FILE:orlajni>
            -DCLASSPATH=${JAVA_OUT}/sdk:${EXAMPLES_JAR} -DCLASS=${class} -DRUN=${run}
            -DEXIT=${exit} -DARGS=${args}
            -P ${CMAKE_CURRENT_LIST_FILE})
  set_tests_properties(example_${run} PROPERTIES
    ENVIRONMENT "LD_LIBRARY_PATH=$<TARGET_FILE_DIR:halyard>"
    TIMEOUT 180)
endfunction()

orla_example_test(TagAccess TagAccess 0 "")
orla_example_test(TagAccessUnknownTag TagAccess 1 "sim-reader,300000000000000000000BAD")
orla_example_test(EventsAndTriggers EventsAndTriggers 0 "")
orla_example_test(AccessSequence AccessSequence 0 "")
orla_example_test(ReaderConfiguration ReaderConfiguration 0 "")
