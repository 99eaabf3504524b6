// Start, stop and report triggers: a Java TRIGGER_INFO into the C record
// that inventory, EAS scans and access sequences take.
#pragma once

#include <jni.h>

#include "reader_api.h"

// Fills a TRIGGER_INFO that the caller prepared with presetTriggerInfo:
// the start and stop triggers by their types, the report trigger, the tag
// event reporting (NULL pointer when the Java field is null), the periodic
// report duration (the storage stays as it was when the Java field is
// null), then the extra triggers with GetExtraTriggerInfoFromJobject.
// Fields that the Java object does not set keep what the caller put there.
void GetTriggerInfoFromJobject(JNIEnv* env, jobject triggerInfo, TRIGGER_INFO* record);

// Allocates the zeroed 256-byte block of up to seven further start and stop
// triggers, points extraTriggers at it and fills it from the Java
// "extraTriggers"; periodic and time-lapse entries get time records of
// their own. The block and its time records are not freed by this library:
// every conversion leaves them allocated.
void GetExtraTriggerInfoFromJobject(JNIEnv* env, jobject triggerInfo, TRIGGER_INFO* record);

// Points a TRIGGER_INFO at the caller's storage before the conversion: the
// start trigger's two time pointers (the time-lapse TIMEOFDAY at +8 and the
// periodic SYSTEMTIME at +16, which the two value forms overlap) and the two
// report records.
inline void presetTriggerInfo(TRIGGER_INFO* record, SYSTEMTIME* startTime, TIMEOFDAY* timeOfDay,
                              TAG_EVENT_REPORT_INFO* tagEventReportInfo, REPORT_TRIGGERS* reportTriggers) {
  record->startTrigger.value.periodic.startTime = startTime;
  record->startTrigger.value.timelapse.startTime = timeOfDay;
  record->tagEventReportInfo = tagEventReportInfo;
  record->reportTriggers = reportTriggers;
}
