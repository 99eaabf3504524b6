// Fields of the Java types that the shared accessors of jni_fields.h leave
// out: long writes, float reads and writes, and byte reads. Each makes the
// same three JNI calls as those accessors (the object's class, the field
// looked up afresh, the typed field call) and checks nothing.
#pragma once

#include <jni.h>

inline void setLongInJobject(JNIEnv* env, jobject object, const char* name, jlong value) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "J");
  env->SetLongField(object, field, value);
}

inline jfloat getFloatFromJobject(JNIEnv* env, jobject object, const char* name) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "F");
  return env->GetFloatField(object, field);
}

inline void setFloatInJobject(JNIEnv* env, jobject object, const char* name, jfloat value) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "F");
  env->SetFloatField(object, field, value);
}

inline jbyte getByteFromJobject(JNIEnv* env, jobject object, const char* name) {
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "B");
  return env->GetByteField(object, field);
}
