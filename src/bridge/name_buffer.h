// A name (host, profile, file, package or application) on its way to the
// reader: a zeroed 260-character wide buffer holding the Java string's
// text, so a null string arrives as an empty name.
#pragma once

#include <jni.h>

#include <cwchar>

#include "bridge/conversions.h"

struct NameBuffer {
  NameBuffer(JNIEnv* env, jstring name) { JavaToWSZ(env, name, text); }

  wchar_t text[kWideTextChars] = {};
};
