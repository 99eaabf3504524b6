// The STRUCT_INFO header that several records carry (allocated and used
// memory counts), and its Java mirror held in a "structInfo" field.
#pragma once

#include <jni.h>

#include <cstdint>

#include "jni_fields.h"

inline constexpr const char* kStructInfoSignature = "Lcom/kovra/rfid/orla/STRUCT_INFO;";

// Writes the two counts into the STRUCT_INFO object held in "structInfo";
// counts above 2^31 - 1 read as negative Java ints.
inline void setStructInfoInJobject(JNIEnv* env, jobject holder, uint32_t memoryAllocated, uint32_t memoryUsed) {
  jobject structInfo = getJobjectFromJobject(env, holder, "structInfo", kStructInfoSignature);
  setIntInJobject(env, structInfo, "memoryAllocated", static_cast<int>(memoryAllocated));
  setIntInJobject(env, structInfo, "memoryUsed", static_cast<int>(memoryUsed));
}
