// The reader's calendar records (SYSTEMTIME, TIMEOFDAY) and their Java
// mirrors, whose members are Java shorts of the same names. Values are
// copied bit for bit: a member read into Java is sign-extended, a Java
// short keeps its 16 bits in the record.
#pragma once

#include <jni.h>

#include <cstdint>

#include "bridge/unsigned_fields.h"
#include "jni_fields.h"
#include "reader_api.h"

// Descriptors of the two Java mirrors, for fetching them from the objects
// that hold them.
inline constexpr const char* kSystemTimeSignature = "Lcom/kovra/rfid/orla/SYSTEMTIME;";
inline constexpr const char* kTimeOfDaySignature = "Lcom/kovra/rfid/orla/TIMEOFDAY;";

inline void setSystemTimeInJobject(JNIEnv* env, jobject time, const SYSTEMTIME& record) {
  setShortInJobject(env, time, "Year", static_cast<short>(record.Year));
  setShortInJobject(env, time, "Month", static_cast<short>(record.Month));
  setShortInJobject(env, time, "DayOfWeek", static_cast<short>(record.DayOfWeek));
  setShortInJobject(env, time, "Day", static_cast<short>(record.Day));
  setShortInJobject(env, time, "Hour", static_cast<short>(record.Hour));
  setShortInJobject(env, time, "Minute", static_cast<short>(record.Minute));
  setShortInJobject(env, time, "Second", static_cast<short>(record.Second));
  setShortInJobject(env, time, "Milliseconds", static_cast<short>(record.Milliseconds));
}

inline void getSystemTimeFromJobject(JNIEnv* env, jobject time, SYSTEMTIME* record) {
  record->Year = getUint16FromJobject(env, time, "Year");
  record->Month = getUint16FromJobject(env, time, "Month");
  record->DayOfWeek = getUint16FromJobject(env, time, "DayOfWeek");
  record->Day = getUint16FromJobject(env, time, "Day");
  record->Hour = getUint16FromJobject(env, time, "Hour");
  record->Minute = getUint16FromJobject(env, time, "Minute");
  record->Second = getUint16FromJobject(env, time, "Second");
  record->Milliseconds = getUint16FromJobject(env, time, "Milliseconds");
}

inline void getTimeOfDayFromJobject(JNIEnv* env, jobject time, TIMEOFDAY* record) {
  record->Hour = getUint16FromJobject(env, time, "Hour");
  record->Minute = getUint16FromJobject(env, time, "Minute");
  record->Second = getUint16FromJobject(env, time, "Second");
}
