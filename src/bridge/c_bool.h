// Java booleans on their way into the C API's one-byte booleans: any
// non-zero Java value becomes exactly 1, false becomes 0. A boolean field
// is read with getBoolFromJobject and passed through here. (The way back
// needs no help: setBoolInJobject passes the C byte on as it stands.)
#pragma once

#include <jni.h>

#include "reader_api.h"

inline RFID_BOOL toCBool(jboolean value) { return value != JNI_FALSE ? 1 : 0; }
