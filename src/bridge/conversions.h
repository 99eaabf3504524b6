// Text and byte conversions shared by the entry points: Java strings into
// the C API's wide strings, hexadecimal text into bytes, and a diagnostic
// rendering of tag identifiers.
#pragma once

#include <jni.h>

#include <cstddef>
#include <cwchar>

#include "reader_api.h"

// Characters of the wide buffers that Java text is copied into. Callers
// clear such a buffer before JavaToWSZ, so that a null string reads as "".
constexpr size_t kWideTextChars = 260;

// Copies a Java string into destination, at most kWideTextChars wide
// characters, converted under the process's locale. A null source leaves the
// destination as it was. Nothing is appended: text of kWideTextChars
// characters or more fills the buffer without a terminator.
void JavaToWSZ(JNIEnv* env, jstring source, wchar_t* destination);

// Turns hexadecimal text into bytes, one byte for every two characters of
// the text. There is no bound on the destination: the caller sizes it from
// the byte count that accompanies the text. See the definition for what
// happens with text that is not clean hexadecimal.
void ConverStringToByteArray(wchar_t* text, unsigned char* destination);

// Renders a tag identifier as "3000-1234-..." into a local buffer, for
// looking at in a debugger; it has no effect. Returns 0 for an empty
// identifier, otherwise the result of the last formatting step.
int printTagData(TAG_DATA* tag);
