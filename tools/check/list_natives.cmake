# cmake -DHEADER=<javac -h header> -DOUTPUT=<file> -P list_natives.cmake
# Writes the JNI name of every native the header declares, one C string a
# line, for jni_natives.cpp.
file(READ ${HEADER} text)
string(REGEX MATCHALL "JNICALL[ \t]+Java_[A-Za-z0-9_]+" declarations "${text}")
list(LENGTH declarations count)
if(count EQUAL 0)
  message(FATAL_ERROR "no native declared in ${HEADER}")
endif()
set(lines "")
foreach(declaration IN LISTS declarations)
  string(REGEX REPLACE "JNICALL[ \t]+" "" name "${declaration}")
  string(APPEND lines "\"${name}\",\n")
endforeach()
file(WRITE ${OUTPUT} "${lines}")
