// String fields of Java objects on their way into the C API's text
// buffers: the string a field holds, and a record's text buffer paired with
// the name of the Java field that fills it.
#pragma once

#include <jni.h>

#include "jni_fields.h"

// The string held in the named field; null when the field is null.
inline jstring getStringFromJobject(JNIEnv* env, jobject object, const char* name) {
  return static_cast<jstring>(getJobjectFromJobject(env, object, name, "Ljava/lang/String;"));
}

// One text buffer of a record and the Java String field that fills it.
struct TextField {
  const char* name;
  wchar_t* text;
};
