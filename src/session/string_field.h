// Reading a String field of a Java object as the jstring it holds.
#pragma once

#include <jni.h>

#include "jni_fields.h"

// The string held in the named field; null when the field is null.
inline jstring getStringFromJobject(JNIEnv* env, jobject object, const char* name) {
  return static_cast<jstring>(getJobjectFromJobject(env, object, name, "Ljava/lang/String;"));
}
