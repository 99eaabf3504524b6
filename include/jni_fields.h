// Reading and writing fields of Java objects by name.
//
// Every accessor looks the object's class and the field up afresh, makes
// exactly the JNI calls it needs in a fixed order, and checks nothing: a
// missing field, a wrong signature or a null object is a fault of the Java
// side. Local references (classes, arrays, strings) are left to the virtual
// machine, which frees them when the native method returns.
//
// Every file that includes this header emits each accessor out of line as
// well, inlined or not, as a weak symbol: the linker keeps one copy, which
// the library exports.
#pragma once

#include <jni.h>

#include <cstdlib>
#include <cstring>
#include <cwchar>

#define ORLA_SHARED_ACCESSOR inline __attribute__((used))

ORLA_SHARED_ACCESSOR jobject getJobjectFromJobject(JNIEnv* env, jobject object, const char* name,
                                                   const char* signature) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, signature);
  return env->GetObjectField(object, field);
}

ORLA_SHARED_ACCESSOR void setShortInJobject(JNIEnv* env, jobject object, const char* name, short value) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "S");
  env->SetShortField(object, field, value);
}

ORLA_SHARED_ACCESSOR jshort getShortFromJobject(JNIEnv* env, jobject object, const char* name) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "S");
  return env->GetShortField(object, field);
}

ORLA_SHARED_ACCESSOR void setIntInJobject(JNIEnv* env, jobject object, const char* name, int value) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "I");
  env->SetIntField(object, field, value);
}

ORLA_SHARED_ACCESSOR jint getIntFromJobject(JNIEnv* env, jobject object, const char* name) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "I");
  return env->GetIntField(object, field);
}

ORLA_SHARED_ACCESSOR jlong getLongFromJobject(JNIEnv* env, jobject object, const char* name) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "J");
  return env->GetLongField(object, field);
}

// The C boolean byte goes to Java as it stands.
ORLA_SHARED_ACCESSOR void setBoolInJobject(JNIEnv* env, jobject object, const char* name, unsigned char value) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "Z");
  env->SetBooleanField(object, field, value);
}

ORLA_SHARED_ACCESSOR bool getBoolFromJobject(JNIEnv* env, jobject object, const char* name) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "Z");
  return env->GetBooleanField(object, field) != JNI_FALSE;
}

// Takes the enum object itself (fetched beforehand with getJobjectFromJobject)
// and returns its ordinal, which is the C API's value of the enumeration.
// The int parameter is part of the signature and is not used.
ORLA_SHARED_ACCESSOR jint getEnumValueFromJobject(JNIEnv* env, jobject enumObject, int /*unused*/) {
  jclass cls = env->GetObjectClass(enumObject);
  jfieldID field = env->GetFieldID(cls, "ordinal", "I");
  return env->GetIntField(enumObject, field);
}

// Copies the first count elements of a short[] field; nothing when count is
// 0 or less, though the array is pinned and released all the same. The
// array's length is not consulted: count comes from the caller, usually
// from a length field of the same object.
ORLA_SHARED_ACCESSOR void getShortArrayInJobject(JNIEnv* env, jobject object, const char* name,
                                                 unsigned short* destination, int count) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "[S");
  auto array = static_cast<jshortArray>(env->GetObjectField(object, field));
  jshort* elements = env->GetShortArrayElements(array, nullptr);
  if (count > 0) std::memcpy(destination, elements, sizeof(jshort) * static_cast<size_t>(count));
  env->ReleaseShortArrayElements(array, elements, 0);
}

// As getShortArrayInJobject, for a byte[] field.
ORLA_SHARED_ACCESSOR void getByteArrayInJobject(JNIEnv* env, jobject object, const char* name,
                                                unsigned char* destination, int count) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "[B");
  auto array = static_cast<jbyteArray>(env->GetObjectField(object, field));
  jbyte* elements = env->GetByteArrayElements(array, nullptr);
  if (count > 0) std::memcpy(destination, elements, static_cast<size_t>(count));
  env->ReleaseByteArrayElements(array, elements, 0);
}

// Stores a wide string in a String field, converted under the process's
// locale into a 4096-byte buffer. The buffer is deliberately neither cleared
// nor terminated by hand: wcstombs terminates what fits, so callers keep
// their text well below 4096 bytes.
ORLA_SHARED_ACCESSOR void setStringInJobject(JNIEnv* env, jobject object, const char* name, const wchar_t* value) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "Ljava/lang/String;");
  char text[4096];
  std::wcstombs(text, value, sizeof text);
  env->SetObjectField(object, field, env->NewStringUTF(text));
}

#undef ORLA_SHARED_ACCESSOR
