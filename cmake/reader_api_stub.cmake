# cmake -DHEADER=reader_api.h -DOUTPUT=stub.cpp -P reader_api_stub.cmake
#
# Writes a definition of every function that reader_api.h declares after its
# extern "C" opening, each one trapping when called: a library to link
# against, never to run. The definitions take the header's declarations as
# they stand, so each keeps the linkage the header gives it (C, or C++ for
# the mangled rfid_GetNumInstalledApps), and a definition that does not match
# its declaration does not compile.

cmake_policy(VERSION 3.22)

file(READ "${HEADER}" text)
# Semicolons separate CMake list items: mark the ends of declarations with '@'.
string(REPLACE ";" "@" text "${text}")
string(REGEX REPLACE "//[^\n]*" "" text "${text}")
string(FIND "${text}" "extern \"C\" {" start)
if(start LESS 0)
  message(FATAL_ERROR "${HEADER}: no extern \"C\" block")
endif()
string(SUBSTRING "${text}" ${start} -1 text)
string(REPLACE "extern \"C\" {" "" text "${text}")

# A declaration: a return type and a name, a parameter list, a semicolon.
string(REGEX MATCHALL "[A-Za-z_][A-Za-z0-9_ \t\n*]*\\([^@{}()]*\\)[ \t\n]*@" declarations "${text}")
list(LENGTH declarations count)
if(count EQUAL 0)
  message(FATAL_ERROR "${HEADER}: no function declarations found")
endif()

get_filename_component(header_name "${HEADER}" NAME)
string(CONCAT stub
  "// Generated from ${header_name}, do not edit. A link-only stand-in for the\n"
  "// reader's libhalyard.so: ${count} functions, each trapping when called.\n"
  "#include \"${header_name}\"\n\n")
foreach(declaration IN LISTS declarations)
  string(REGEX REPLACE "[ \t\n]*@$" "" declaration "${declaration}")
  string(REGEX REPLACE "[ \t\n]+" " " declaration "${declaration}")
  string(STRIP "${declaration}" declaration)
  string(APPEND stub "${declaration} { __builtin_trap(); }\n")
endforeach()

file(WRITE "${OUTPUT}.tmp" "${stub}")
file(COPY_FILE "${OUTPUT}.tmp" "${OUTPUT}" ONLY_IF_DIFFERENT)
file(REMOVE "${OUTPUT}.tmp")
