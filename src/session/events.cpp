// Event objects of the C API's event utilities, their registration for
// reader events, and the data of the latest event of a type.
//
// Handles are 64-bit. Java creates them, and waits on them in groups, as
// longs, but sets, resets, closes, waits on and registers a single handle as
// an int, which reaches the C API sign-extended: handles whose value needs
// more than 32 bits do not survive that road.
#include <jni.h>

#include <cstdint>
#include <cwchar>

#include "bridge/c_bool.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

// RFID_EVENT_TYPE values whose data we copy into Java.
enum : uint32_t {
  kGpiEvent = 0,
  kAntennaEvent = 3,
  kDisconnectionEvent = 8,
  kNxpEasAlarmEvent = 10,
  kReaderExceptionEvent = 11,
  kHandheldTriggerEvent = 12,
  kTemperatureAlarmEvent = 14,
};

// Characters of the alarm code text.
constexpr size_t kAlarmCodeChars = 260;

// Each reader of one event type: calls the C API with the record of that
// type and, on success only, writes the record's Java fields.
RFID_STATUS getGpiEvent(JNIEnv* env, READER_HANDLE reader, jobject data) {
  GPI_EVENT_DATA record;
  const RFID_STATUS status = RFID_GetEventData(reader, kGpiEvent, &record);
  if (status != 0) return status;
  setShortInJobject(env, data, "port", record.port);
  setBoolInJobject(env, data, "eventInfo", record.eventInfo);
  return 0;
}

RFID_STATUS getAntennaEvent(JNIEnv* env, READER_HANDLE reader, jobject data) {
  ANTENNA_EVENT_DATA record;
  const RFID_STATUS status = RFID_GetEventData(reader, kAntennaEvent, &record);
  if (status != 0) return status;
  setShortInJobject(env, data, "antennaID", record.antennaID);
  setShortInJobject(env, data, "enumAntennaEvent", static_cast<short>(record.antennaEvent));
  return 0;
}

// Disconnection and handheld trigger events carry one information code.
RFID_STATUS getEventInfo(JNIEnv* env, READER_HANDLE reader, uint32_t eventType, jobject data) {
  EVENT_INFO_DATA record;
  const RFID_STATUS status = RFID_GetEventData(reader, eventType, &record);
  if (status != 0) return status;
  setShortInJobject(env, data, "enumEventInfo", static_cast<short>(record.eventInfo));
  return 0;
}

RFID_STATUS getEasAlarm(JNIEnv* env, READER_HANDLE reader, jobject data, wchar_t* alarmCode) {
  ALARM_EVENT_DATA record;
  const RFID_STATUS status = RFID_GetEventData(reader, kNxpEasAlarmEvent, &record);
  if (status != 0) return status;
  setShortInJobject(env, data, "antennaID", record.antennaID);
  std::swprintf(alarmCode, kAlarmCodeChars, L"%lld", static_cast<long long>(record.alarmCode));
  setStringInJobject(env, data, "alarmCode", alarmCode);
  return 0;
}

RFID_STATUS getReaderException(JNIEnv* env, READER_HANDLE reader, jobject data) {
  EXCEPTION_EVENT_DATA record;
  const RFID_STATUS status = RFID_GetEventData(reader, kReaderExceptionEvent, &record);
  if (status != 0) return status;
  setShortInJobject(env, data, "enumExceptionType", static_cast<short>(record.exceptionType));
  setStringInJobject(env, data, "exceptionInfo", record.exceptionInfo);
  return 0;
}

RFID_STATUS getTemperatureAlarm(JNIEnv* env, READER_HANDLE reader, jobject data) {
  TEMPERATURE_ALARM_EVENT_DATA record;
  const RFID_STATUS status = RFID_GetEventData(reader, kTemperatureAlarmEvent, &record);
  if (status != 0) return status;
  setShortInJobject(env, data, "enumSourceName", static_cast<short>(record.sourceName));
  setShortInJobject(env, data, "enumAlarmLevel", static_cast<short>(record.alarmLevel));
  setShortInJobject(env, data, "currentTemperature", static_cast<short>(record.currentTemperature));
  return 0;
}

}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kovra_rfid_orla_ORLANatives_rfidUtils_1CreateEvent(JNIEnv*, jclass, jint,
                                                                                   jint manualReset,
                                                                                   jint initialState) {
  return rfidUtils_CreateEvent(nullptr, manualReset, initialState, nullptr);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_rfidUtils_1SetEvent(JNIEnv*, jclass, jint eventHandle) {
  return rfidUtils_SetEvent(static_cast<EVENT_HANDLE>(eventHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_rfidUtils_1ResetEvent(JNIEnv*, jclass, jint eventHandle) {
  return rfidUtils_ResetEvent(static_cast<EVENT_HANDLE>(eventHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_rfidUtils_1CloseHandle(JNIEnv*, jclass, jint eventHandle) {
  return rfidUtils_CloseHandle(static_cast<EVENT_HANDLE>(eventHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_rfidUtils_1WaitForSingleObject(JNIEnv*, jclass,
                                                                                          jint eventHandle,
                                                                                          jint timeoutMilliseconds) {
  return rfidUtils_WaitForSingleObject(static_cast<EVENT_HANDLE>(eventHandle), timeoutMilliseconds);
}

// The wait gets a copy of the first count handles; a null array with a
// positive count is a fault of the Java side. A count of 0 or less gets an
// empty copy (a guard: a negative array size would abort the process) and
// reaches the C API as it stands.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_rfidUtils_1WaitForMultipleObjects(
    JNIEnv* env, jclass, jint count, jlongArray eventHandles, jboolean waitAll, jint timeoutMilliseconds) {
  jlong* pinned = nullptr;
  if (eventHandles != nullptr) {
    pinned = env->GetLongArrayElements(eventHandles, nullptr);
    if (pinned == nullptr) return 0;
  }
  auto* handles = new EVENT_HANDLE[count > 0 ? count : 0];
  for (jint i = 0; i < count; ++i) handles[i] = pinned[i];

  const int32_t result =
      rfidUtils_WaitForMultipleObjects(count, handles, toCBool(waitAll), timeoutMilliseconds);
  if (pinned != nullptr) env->ReleaseLongArrayElements(eventHandles, pinned, 0);
  delete[] handles;
  return result;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1RegisterEventNotification(JNIEnv* env, jclass,
                                                                                           jint readerHandle,
                                                                                           jobject eventType,
                                                                                           jint eventHandle) {
  return RFID_RegisterEventNotification(static_cast<READER_HANDLE>(readerHandle),
                                        getEnumValueFromJobject(env, eventType, 0),
                                        static_cast<EVENT_HANDLE>(eventHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1DeregisterEventNotification(JNIEnv* env, jclass,
                                                                                             jint readerHandle,
                                                                                             jobject eventType) {
  return RFID_DeregisterEventNotification(static_cast<READER_HANDLE>(readerHandle),
                                          getEnumValueFromJobject(env, eventType, 0));
}

// Event types above 14, and those that carry no data for Java, return 0
// without asking the C API; the data object is then left as it was.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetEventData(JNIEnv* env, jclass, jint readerHandle,
                                                                              jobject eventType, jobject eventData) {
  wchar_t alarmCode[kAlarmCodeChars] = {};
  const uint32_t type = getEnumValueFromJobject(env, eventType, 0);
  if (type > kTemperatureAlarmEvent) return 0;

  const auto reader = static_cast<READER_HANDLE>(readerHandle);
  switch (type) {
    case kGpiEvent:
      return getGpiEvent(env, reader, eventData);
    case kAntennaEvent:
      return getAntennaEvent(env, reader, eventData);
    case kDisconnectionEvent:
    case kHandheldTriggerEvent:
      return getEventInfo(env, reader, type, eventData);
    case kNxpEasAlarmEvent:
      return getEasAlarm(env, reader, eventData, alarmCode);
    case kReaderExceptionEvent:
      return getReaderException(env, reader, eventData);
    case kTemperatureAlarmEvent:
      return getTemperatureAlarm(env, reader, eventData);
    default:
      return 0;
  }
}

}  // extern "C"
