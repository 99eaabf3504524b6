// The 260-character text fields of the records that the reader is told
// about itself (reader identity, update source), and the reader texts that
// reach Java through a conversion of their own.
#pragma once

#include <jni.h>

#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "bridge/string_field.h"
#include "jni_fields.h"
#include "reader_api.h"

// Bytes zeroed at the head of each text field before it is filled: about
// half of the field's 1040. The copy from Java terminates what it writes,
// and the reader reads a field only up to its terminator.
constexpr size_t kClearedFieldHeadBytes = 519;

inline void clearFieldHead(const TextField& field) { std::memset(field.text, 0, kClearedFieldHeadBytes); }

// Stores a reader text in a String field: converted under the process's
// locale into a 4096-byte buffer, made a Java string from its modified
// UTF-8 and only then stored. The buffer starts zeroed and the conversion
// leaves its last byte alone, so the text handed on is always terminated.
inline void setConvertedStringInJobject(JNIEnv* env, jobject object, const char* name, const wchar_t* value) {
  char text[4096] = {};
  std::wcstombs(text, value, sizeof text - 1);
  jstring string = env->NewStringUTF(text);
  jclass cls = env->GetObjectClass(object);
  jfieldID field = env->GetFieldID(cls, name, "Ljava/lang/String;");
  env->SetObjectField(object, field, string);
}
