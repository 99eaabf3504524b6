// Java enums as the C API's values of the enumerations: an enum object's
// ordinal, read from the object itself or from the field that holds it.
#pragma once

#include <jni.h>

#include <cstdint>

#include "jni_fields.h"

// The ordinal of the enum object, which must not be null.
inline uint32_t ordinalOf(JNIEnv* env, jobject enumObject) {
  return static_cast<uint32_t>(getEnumValueFromJobject(env, enumObject, 0));
}

// The ordinal of the enum object held in the named field; the field must
// not be null. signature is the enum class's descriptor.
inline uint32_t getEnumFieldFromJobject(JNIEnv* env, jobject object, const char* name, const char* signature) {
  return ordinalOf(env, getJobjectFromJobject(env, object, name, signature));
}
