// Java's signed numbers as the C API's unsigned fields: the bits are kept
// and nothing is checked, so a negative Java short reaches the record as
// the same 16 bits, and a Java long keeps only its low 32 bits (passwords,
// and the 32-bit values that Java holds in longs).
#pragma once

#include <jni.h>

#include <cstdint>

#include "bridge/scalar_fields.h"
#include "jni_fields.h"

// A byte field ("B"), the same 8 bits.
inline uint8_t getUint8FromJobject(JNIEnv* env, jobject object, const char* name) {
  return static_cast<uint8_t>(getByteFromJobject(env, object, name));
}

// A short field ("S"), the same 16 bits.
inline uint16_t getUint16FromJobject(JNIEnv* env, jobject object, const char* name) {
  return static_cast<uint16_t>(getShortFromJobject(env, object, name));
}

// An int field ("I"), the same 32 bits.
inline uint32_t getUint32FromJobject(JNIEnv* env, jobject object, const char* name) {
  return static_cast<uint32_t>(getIntFromJobject(env, object, name));
}

// A long field ("J"), its low 32 bits.
inline uint32_t getLowUint32FromJobject(JNIEnv* env, jobject object, const char* name) {
  return static_cast<uint32_t>(getLongFromJobject(env, object, name));
}
