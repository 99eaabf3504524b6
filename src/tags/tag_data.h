// The tag record of the reader and its Java mirror, the TAG_DATA class.
#pragma once

#include <jni.h>

#include "reader_api.h"

// Copies a filled tag record into a Java TAG_DATA object whose nested
// objects already exist. utcTime says which form the record's seen times
// hold: calendar times go to "seenTime"."utcTime", up-time counts to
// "seenTime"."upTime"; the other member is left alone. Identifier, memory
// bank data and bit-string replies are rendered as upper-case hexadecimal
// of up to 2,047 bytes each.
void SetTagDataToJobject(JNIEnv* env, jobject tagData, TAG_DATA* tag, bool utcTime);
