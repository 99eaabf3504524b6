// Fields of Java parameter objects as the tag access records store them:
// passwords as the low 32 bits of a Java long, Java shorts and bytes as the
// same 16 and 8 bits. Booleans go through getCBoolFromJobject
// (bridge/c_bool.h).
#pragma once

#include <jni.h>

#include <cstdint>

#include "jni_fields.h"

inline uint32_t getPasswordFromJobject(JNIEnv* env, jobject object, const char* name) {
  return static_cast<uint32_t>(getLongFromJobject(env, object, name));
}

inline uint16_t getWordFromJobject(JNIEnv* env, jobject object, const char* name) {
  return static_cast<uint16_t>(getShortFromJobject(env, object, name));
}

// A Java byte field ("B"), read with the same three JNI calls as the shared
// accessors.
inline uint8_t getByteFromJobject(JNIEnv* env, jobject object, const char* name) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "B");
  return static_cast<uint8_t>(env->GetByteField(object, field));
}
