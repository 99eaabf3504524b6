// Start, stop, report and extra triggers.
#include "tags/triggers.h"

#include <cstdint>

#include "bridge/c_bool.h"
#include "bridge/enum_field.h"
#include "bridge/system_time.h"
#include "bridge/unsigned_fields.h"
#include "jni_fields.h"

namespace {

constexpr const char* kStartTriggerSignature = "Lcom/kovra/rfid/orla/START_TRIGGER;";
constexpr const char* kStopTriggerSignature = "Lcom/kovra/rfid/orla/STOP_TRIGGER;";
constexpr const char* kGpiTriggerSignature = "Lcom/kovra/rfid/orla/GPI_TRIGGER;";
constexpr const char* kHandheldTriggerSignature = "Lcom/kovra/rfid/orla/HANDHELD_TRIGGER;";
constexpr const char* kTriggerWithTimeoutSignature = "Lcom/kovra/rfid/orla/TRIGGER_WITH_TIMEOUT;";
constexpr const char* kTagEventReportTriggerSignature = "Lcom/kovra/rfid/orla/TAG_EVENT_REPORT_TRIGGER;";
constexpr int kExtraTriggerCount = 7;

// START_TRIGGER_TYPE and STOP_TRIGGER_TYPE values.
enum : uint32_t { kStartPeriodic = 1, kStartGpi, kStartHandheld, kStartTimelapse, kStartDistance };
enum : uint32_t {
  kStopDuration = 1,
  kStopGpi,
  kStopTagObservation,
  kStopNumAttempts,
  kStopHandheld,
  kStopTimelapse
};

// Where the time record of a periodic or time-lapse start value goes: to
// what the caller preset in the record, or to a zeroed record of the
// entry's own (extra triggers).
enum class StartTime { Preset, OwnRecord };

void fillGpi(JNIEnv* env, jobject gpi, GPI_TRIGGER* record) {
  record->portNumber = getUint16FromJobject(env, gpi, "portNumber");
  record->eventInfo = toCBool(getBoolFromJobject(env, gpi, "eventInfo"));
  record->timeoutMilliseconds = getUint32FromJobject(env, gpi, "timeoutMilliseconds");
}

void fillHandheld(JNIEnv* env, jobject handheld, HANDHELD_TRIGGER* record) {
  record->handheldEvent = getEnumFieldFromJobject(env, handheld, "handheldEvent",
                                                  "Lcom/kovra/rfid/orla/HANDHELD_TRIGGER_EVENT_TYPE;");
  record->timeoutMilliseconds = getUint32FromJobject(env, handheld, "timeoutMilliseconds");
}

void fillWithTimeout(JNIEnv* env, jobject trigger, TRIGGER_WITH_TIMEOUT* record) {
  record->n = getUint16FromJobject(env, trigger, "n");
  record->timeoutMilliseconds = getUint32FromJobject(env, trigger, "timeoutMilliseconds");
}

void fillTimelapseStop(JNIEnv* env, jobject timelapse, TIMELAPSE_STOP_TRIGGER* record) {
  record->totalDuration = getUint32FromJobject(env, timelapse, "totalDuration");
  record->periodicDuration = getUint32FromJobject(env, timelapse, "periodicDuration");
}

// The variant objects of a start value are not tested for null.
void fillStartValue(JNIEnv* env, jobject value, START_TRIGGER* record, StartTime startTime) {
  START_TRIGGER_VALUE& v = record->value;
  switch (record->type) {
    case kStartPeriodic: {
      jobject periodic = getJobjectFromJobject(env, value, "periodic", "Lcom/kovra/rfid/orla/PERIODIC_TRIGGER;");
      v.periodic.periodMilliseconds = getUint32FromJobject(env, periodic, "periodMilliseconds");
      if (startTime == StartTime::OwnRecord) v.periodic.startTime = new SYSTEMTIME();
      jobject time = getJobjectFromJobject(env, periodic, "startTime", kSystemTimeSignature);
      getSystemTimeFromJobject(env, time, v.periodic.startTime);
      break;
    }
    case kStartGpi:
      fillGpi(env, getJobjectFromJobject(env, value, "gpi", kGpiTriggerSignature), &v.gpi);
      break;
    case kStartHandheld:
      fillHandheld(env, getJobjectFromJobject(env, value, "handheld", kHandheldTriggerSignature), &v.handheld);
      break;
    case kStartTimelapse: {
      jobject timelapse =
          getJobjectFromJobject(env, value, "timelapse", "Lcom/kovra/rfid/orla/TIMELAPSE_START_TRIGGER;");
      v.timelapse.period = getUint32FromJobject(env, timelapse, "period");
      if (startTime == StartTime::OwnRecord) v.timelapse.startTime = new TIMEOFDAY();
      jobject time = getJobjectFromJobject(env, timelapse, "startTime", kTimeOfDaySignature);
      getTimeOfDayFromJobject(env, time, v.timelapse.startTime);
      break;
    }
    case kStartDistance: {
      jobject distance = getJobjectFromJobject(env, value, "distance", "Lcom/kovra/rfid/orla/DISTANCE_TRIGGER;");
      v.distance.value = getUint32FromJobject(env, distance, "value");
      break;
    }
    default:
      break;
  }
}

// A null "type" keeps the type the record already holds, and the value is
// read by that type.
void fillStartTrigger(JNIEnv* env, jobject trigger, START_TRIGGER* record, StartTime startTime) {
  jobject type = getJobjectFromJobject(env, trigger, "type", "Lcom/kovra/rfid/orla/START_TRIGGER_TYPE;");
  if (type != nullptr) record->type = getEnumValueFromJobject(env, type, 0);
  jobject value = getJobjectFromJobject(env, trigger, "value", "Lcom/kovra/rfid/orla/START_TRIGGER_VALUE;");
  if (value != nullptr && record->type <= kStartDistance) fillStartValue(env, value, record, startTime);
}

// Every variant object of a stop value is tested: a null one leaves the
// value bytes as they were.
void fillStopValue(JNIEnv* env, jobject value, STOP_TRIGGER* record) {
  STOP_TRIGGER_VALUE& v = record->value;
  jobject variant = nullptr;
  switch (record->type) {
    case kStopDuration:
      v.duration = getUint32FromJobject(env, value, "duration");
      break;
    case kStopGpi:
      variant = getJobjectFromJobject(env, value, "gpi", kGpiTriggerSignature);
      if (variant != nullptr) fillGpi(env, variant, &v.gpi);
      break;
    case kStopTagObservation:
      variant = getJobjectFromJobject(env, value, "tagObservation", kTriggerWithTimeoutSignature);
      if (variant != nullptr) fillWithTimeout(env, variant, &v.tagObservation);
      break;
    case kStopNumAttempts:
      variant = getJobjectFromJobject(env, value, "numAttempts", kTriggerWithTimeoutSignature);
      if (variant != nullptr) fillWithTimeout(env, variant, &v.numAttempts);
      break;
    case kStopHandheld:
      variant = getJobjectFromJobject(env, value, "handheld", kHandheldTriggerSignature);
      if (variant != nullptr) fillHandheld(env, variant, &v.handheld);
      break;
    case kStopTimelapse:
      variant = getJobjectFromJobject(env, value, "timelapse", "Lcom/kovra/rfid/orla/TIMELAPSE_STOP_TRIGGER;");
      if (variant != nullptr) fillTimelapseStop(env, variant, &v.timelapse);
      break;
    default:
      break;
  }
}

void fillStopTrigger(JNIEnv* env, jobject trigger, STOP_TRIGGER* record) {
  jobject type = getJobjectFromJobject(env, trigger, "type", "Lcom/kovra/rfid/orla/STOP_TRIGGER_TYPE;");
  if (type != nullptr) record->type = getEnumValueFromJobject(env, type, 0);
  jobject value = getJobjectFromJobject(env, trigger, "value", "Lcom/kovra/rfid/orla/STOP_TRIGGER_VALUE;");
  if (value != nullptr && record->type <= kStopTimelapse) fillStopValue(env, value, record);
}

// One entry of the extra stop triggers. As the single stop trigger, except
// for tag observation: its entry is filled only when the most recent
// "numAttempts" object read in this loop is not null, whatever the
// "tagObservation" object itself is (a null one is skipped all the same).
void fillExtraStopTrigger(JNIEnv* env, jobject trigger, STOP_TRIGGER* record, jobject& lastNumAttempts) {
  jobject type = getJobjectFromJobject(env, trigger, "type", "Lcom/kovra/rfid/orla/STOP_TRIGGER_TYPE;");
  if (type != nullptr) record->type = getEnumValueFromJobject(env, type, 0);
  jobject value = getJobjectFromJobject(env, trigger, "value", "Lcom/kovra/rfid/orla/STOP_TRIGGER_VALUE;");
  if (value == nullptr || record->type > kStopTimelapse) return;
  if (record->type == kStopNumAttempts) {
    lastNumAttempts = getJobjectFromJobject(env, value, "numAttempts", kTriggerWithTimeoutSignature);
    if (lastNumAttempts != nullptr) fillWithTimeout(env, lastNumAttempts, &record->value.numAttempts);
  } else if (record->type == kStopTagObservation) {
    jobject observation = getJobjectFromJobject(env, value, "tagObservation", kTriggerWithTimeoutSignature);
    if (lastNumAttempts != nullptr && observation != nullptr) {
      fillWithTimeout(env, observation, &record->value.tagObservation);
    }
  } else {
    fillStopValue(env, value, record);
  }
}

// One reported tag event: a null event object leaves both its fields as
// they were; the time-out is read from the report object itself.
void fillTagEvent(JNIEnv* env, jobject events, const char* eventField, const char* eventSignature,
                  const char* timeoutField, uint32_t* event, uint16_t* timeout) {
  jobject eventObject = getJobjectFromJobject(env, events, eventField, eventSignature);
  if (eventObject == nullptr) return;
  *event = getEnumValueFromJobject(env, eventObject, 0);
  *timeout = getUint16FromJobject(env, events, timeoutField);
}

void fillTagEventReportInfo(JNIEnv* env, jobject triggerInfo, TRIGGER_INFO* record) {
  jobject events =
      getJobjectFromJobject(env, triggerInfo, "tagEventReportInfo", "Lcom/kovra/rfid/orla/TAG_EVENT_REPORT_INFO;");
  if (events == nullptr) {
    record->tagEventReportInfo = nullptr;
    return;
  }
  TAG_EVENT_REPORT_INFO* info = record->tagEventReportInfo;
  fillTagEvent(env, events, "reportNewTagEvent", kTagEventReportTriggerSignature,
               "newTagEventModeratedTimeoutMilliseconds", &info->reportNewTagEvent,
               &info->newTagEventModeratedTimeoutMilliseconds);
  fillTagEvent(env, events, "reportTagInvisibleEvent", kTagEventReportTriggerSignature,
               "tagInvisibleEventModeratedTimeoutMilliseconds", &info->reportTagInvisibleEvent,
               &info->tagInvisibleEventModeratedTimeoutMilliseconds);
  fillTagEvent(env, events, "reportTagBackToVisibilityEvent", kTagEventReportTriggerSignature,
               "tagBackToVisibilityModeratedTimeoutMilliseconds", &info->reportTagBackToVisibilityEvent,
               &info->tagBackToVisibilityModeratedTimeoutMilliseconds);
  fillTagEvent(env, events, "reportTagMovingEvent", "Lcom/kovra/rfid/orla/TAG_MOVING_EVENT_REPORT;",
               "tagStationaryModeratedTimeoutMilliseconds", &info->reportTagMovingEvent,
               &info->tagStationaryModeratedTimeoutMilliseconds);
}

// A null Java object leaves the pointer and its storage as they were.
void fillReportTriggers(JNIEnv* env, jobject triggerInfo, TRIGGER_INFO* record) {
  jobject reports = getJobjectFromJobject(env, triggerInfo, "reportTriggers", "Lcom/kovra/rfid/orla/REPORT_TRIGGERS;");
  if (reports == nullptr || record->reportTriggers == nullptr) return;
  record->reportTriggers->periodicReportDuration = getUint32FromJobject(env, reports, "periodicReportDuration");
}

}  // namespace

void GetTriggerInfoFromJobject(JNIEnv* env, jobject triggerInfo, TRIGGER_INFO* record) {
  record->tagReportTrigger = getUint32FromJobject(env, triggerInfo, "tagReportTrigger");
  jobject start = getJobjectFromJobject(env, triggerInfo, "startTrigger", kStartTriggerSignature);
  if (start != nullptr) fillStartTrigger(env, start, &record->startTrigger, StartTime::Preset);
  jobject stop = getJobjectFromJobject(env, triggerInfo, "stopTrigger", kStopTriggerSignature);
  if (stop != nullptr) fillStopTrigger(env, stop, &record->stopTrigger);
  fillTagEventReportInfo(env, triggerInfo, record);
  fillReportTriggers(env, triggerInfo, record);
  GetExtraTriggerInfoFromJobject(env, triggerInfo, record);
}

// Arrays of fewer than seven entries make the reads past their end raise an
// index exception, which reaches Java when the native method returns; the
// missing entries stay zero.
void GetExtraTriggerInfoFromJobject(JNIEnv* env, jobject triggerInfo, TRIGGER_INFO* record) {
  auto* extra = new EXTRA_TRIGGER_INFO();
  record->extraTriggers = extra;

  jobject extraTriggers =
      getJobjectFromJobject(env, triggerInfo, "extraTriggers", "Lcom/kovra/rfid/orla/EXTRA_TRIGGER_INFO;");
  auto starts = static_cast<jobjectArray>(
      getJobjectFromJobject(env, extraTriggers, "startTrigger", "[Lcom/kovra/rfid/orla/START_TRIGGER;"));
  auto stops = static_cast<jobjectArray>(
      getJobjectFromJobject(env, extraTriggers, "stopTrigger", "[Lcom/kovra/rfid/orla/STOP_TRIGGER;"));

  if (starts != nullptr) {
    for (int i = 0; i < kExtraTriggerCount; ++i) {
      jobject start = env->GetObjectArrayElement(starts, i);
      if (start != nullptr) fillStartTrigger(env, start, &extra->startTrigger[i], StartTime::OwnRecord);
    }
  }
  if (stops == nullptr) return;
  jobject lastNumAttempts = nullptr;
  for (int i = 0; i < kExtraTriggerCount; ++i) {
    jobject stop = env->GetObjectArrayElement(stops, i);
    if (stop != nullptr) fillExtraStopTrigger(env, stop, &extra->stopTrigger[i], lastNumAttempts);
  }
}
