// The reader's calendar records (SYSTEMTIME, TIMEOFDAY) and their Java
// mirrors, whose members are Java shorts of the same names. Values are
// copied bit for bit: a member read into Java is sign-extended, a Java
// short keeps its 16 bits in the record.
#pragma once

#include <jni.h>

#include <cstdint>

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
  record->Year = static_cast<uint16_t>(getShortFromJobject(env, time, "Year"));
  record->Month = static_cast<uint16_t>(getShortFromJobject(env, time, "Month"));
  record->DayOfWeek = static_cast<uint16_t>(getShortFromJobject(env, time, "DayOfWeek"));
  record->Day = static_cast<uint16_t>(getShortFromJobject(env, time, "Day"));
  record->Hour = static_cast<uint16_t>(getShortFromJobject(env, time, "Hour"));
  record->Minute = static_cast<uint16_t>(getShortFromJobject(env, time, "Minute"));
  record->Second = static_cast<uint16_t>(getShortFromJobject(env, time, "Second"));
  record->Milliseconds = static_cast<uint16_t>(getShortFromJobject(env, time, "Milliseconds"));
}

inline void getTimeOfDayFromJobject(JNIEnv* env, jobject time, TIMEOFDAY* record) {
  record->Hour = static_cast<uint16_t>(getShortFromJobject(env, time, "Hour"));
  record->Minute = static_cast<uint16_t>(getShortFromJobject(env, time, "Minute"));
  record->Second = static_cast<uint16_t>(getShortFromJobject(env, time, "Second"));
}
