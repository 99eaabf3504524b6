// Java enums as the C API's values of the enumerations: the ordinal of the
// enum object held in a field.
#pragma once

#include <jni.h>

#include <cstdint>

#include "jni_fields.h"

// The ordinal of the enum object held in the named field; the field must
// not be null. signature is the enum class's descriptor.
inline uint32_t getEnumFieldFromJobject(JNIEnv* env, jobject object, const char* name, const char* signature) {
  return static_cast<uint32_t>(getEnumValueFromJobject(env, getJobjectFromJobject(env, object, name, signature), 0));
}
