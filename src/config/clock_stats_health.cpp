// The reader's clock and time zone, its per-antenna operation counters and
// its health status.
#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <memory>

#include "bridge/pinned_array.h"
#include "bridge/system_time.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

constexpr const wchar_t* kTimeZoneSeparator = L"#";
// An empty list still gets a buffer of 16 bytes.
constexpr size_t kEmptyTimeZoneListChars = 16 / sizeof(wchar_t);

// The time-zone names joined by "#" (none after the last) in a zeroed
// buffer sized for every name with a separator, plus 4 characters.
std::unique_ptr<wchar_t[]> joinTimeZoneNames(const TIME_ZONE_LIST& list) {
  const size_t count = list.numTimeZones;
  size_t chars = kEmptyTimeZoneListChars;
  if (count != 0) {
    chars = 4;
    for (size_t i = 0; i < count; ++i) chars += std::wcslen(list.timeZoneNames[i]) + std::wcslen(kTimeZoneSeparator);
  }
  std::unique_ptr<wchar_t[]> joined(new wchar_t[chars]());
  for (size_t i = 0; i < count; ++i) {
    std::wcscat(joined.get(), list.timeZoneNames[i]);
    if (i + 1 < count) std::wcscat(joined.get(), kTimeZoneSeparator);
  }
  return joined;
}

// The counters of READER_STATS that reach Java, in the order of their
// offsets, each under the name of its Java int field.
struct Counter {
  const char* name;
  uint32_t READER_STATS::*value;
};

constexpr Counter kCounters[] = {
    {"identifiedSuccessCount", &READER_STATS::identifiedSuccessCount},
    {"identifiedFailureCount", &READER_STATS::identifiedFailureCount},
    {"readSuccessCount", &READER_STATS::readSuccessCount},
    {"readFailureCount", &READER_STATS::readFailureCount},
    {"writeSuccessCount", &READER_STATS::writeSuccessCount},
    {"writeFailureCount", &READER_STATS::writeFailureCount},
    {"killSuccessCount", &READER_STATS::killSuccessCount},
    {"killFailureCount", &READER_STATS::killFailureCount},
    {"lockSuccessCount", &READER_STATS::lockSuccessCount},
    {"lockFailureCount", &READER_STATS::lockFailureCount},
    {"blockWriteSuccessCount", &READER_STATS::blockWriteSuccessCount},
    {"blockWriteFailureCount", &READER_STATS::blockWriteFailureCount},
    {"blockEraseSuccessCount", &READER_STATS::blockEraseSuccessCount},
    {"blockEraseFailureCount", &READER_STATS::blockEraseFailureCount},
    {"blockPermalockSuccessCount", &READER_STATS::blockPermalockSuccessCount},
    {"blockPermalockFailureCount", &READER_STATS::blockPermalockFailureCount},
    {"nxpChangeEASSuccessCount", &READER_STATS::nxpChangeEASSuccessCount},
    {"nxpChangeEASFailureCount", &READER_STATS::nxpChangeEASFailureCount},
    {"nxpEASAlarmSuccessCount", &READER_STATS::nxpEASAlarmSuccessCount},
    {"nxpEASAlarmFailureCount", &READER_STATS::nxpEASAlarmFailureCount},
    {"nxpReadProtectSuccessCount", &READER_STATS::nxpReadProtectSuccessCount},
    {"nxpReadProtectFailureCount", &READER_STATS::nxpReadProtectFailureCount},
    {"nxpResetReadProtectSuccessCount", &READER_STATS::nxpResetReadProtectSuccessCount},
    {"nxpResetReadProtectFailureCount", &READER_STATS::nxpResetReadProtectFailureCount},
    {"nxpCalibrateSuccessCount", &READER_STATS::nxpCalibrateSuccessCount},
    {"nxpCalibrateFailureCount", &READER_STATS::nxpCalibrateFailureCount},
    {"nxpChangeConfigSuccessCount", &READER_STATS::nxpChangeConfigSuccessCount},
    {"nxpChangeConfigFailureCount", &READER_STATS::nxpChangeConfigFailureCount},
    {"impinjQTSuccessCount", &READER_STATS::impinjQTSuccessCount},
    {"impinjQTFailureCount", &READER_STATS::impinjQTFailureCount},
};

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetLocalTime(JNIEnv* env, jclass,
                                                                              jint readerHandle,
                                                                              jobject localTime) {
  SYSTEMTIME record = {};
  const RFID_STATUS status = RFID_GetLocalTime(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;
  setSystemTimeInJobject(env, localTime, record);
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetLocalTime(JNIEnv* env, jclass,
                                                                              jint readerHandle,
                                                                              jobject localTime) {
  SYSTEMTIME record;
  getSystemTimeFromJobject(env, localTime, &record);
  return RFID_SetLocalTime(static_cast<READER_HANDLE>(readerHandle), &record);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetTimeZoneList(JNIEnv* env, jclass,
                                                                                 jint readerHandle,
                                                                                 jobject timeZoneList) {
  TIME_ZONE_LIST list = {};
  const RFID_STATUS status = RFID_GetTimeZoneListW(static_cast<READER_HANDLE>(readerHandle), &list);
  if (status != 0) return status;
  setShortInJobject(env, timeZoneList, "numTimeZones", static_cast<short>(list.numTimeZones));
  setShortInJobject(env, timeZoneList, "activeTimeZoneIndex", list.activeTimeZoneIndex);
  const std::unique_ptr<wchar_t[]> names = joinTimeZoneNames(list);
  setStringInJobject(env, timeZoneList, "TimeZoneList", names.get());
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetTimeZone(JNIEnv*, jclass, jint readerHandle,
                                                                             jshort timeZoneIndex) {
  return RFID_SetTimeZone(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(timeZoneIndex));
}

// Counters above 2^31 - 1 read as negative Java ints.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetReaderStats(JNIEnv* env, jclass,
                                                                                jint readerHandle,
                                                                                jshort antennaID,
                                                                                jobject readerStats) {
  READER_STATS record = {};
  const RFID_STATUS status = RFID_GetReaderStats(static_cast<READER_HANDLE>(readerHandle),
                                                 static_cast<uint16_t>(antennaID), &record);
  if (status != 0) return status;
  for (const Counter& counter : kCounters) {
    setIntInJobject(env, readerStats, counter.name, static_cast<int>(record.*counter.value));
  }
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1ClearReaderStats(JNIEnv*, jclass,
                                                                                  jint readerHandle) {
  return RFID_ClearReaderStats(static_cast<READER_HANDLE>(readerHandle));
}

// The optional int[] is pinned and given back at once, before the call;
// the reader gets the element pointer all the same, so what it writes there
// never reaches Java.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetHealthStatus(JNIEnv* env, jclass,
                                                                                 jint readerHandle,
                                                                                 jobject healthParam,
                                                                                 jshortArray healthStatus,
                                                                                 jintArray extra) {
  const jint component = getEnumValueFromJobject(env, healthParam, 0);
  orla::PinnedArray<jshortArray> statusOut(env, healthStatus);
  jint* detail = nullptr;
  if (extra != nullptr) {
    detail = env->GetIntArrayElements(extra, nullptr);
    env->ReleaseIntArrayElements(extra, detail, 0);  // released before use, yet still passed on below
  }

  uint32_t health = 0;
  const RFID_STATUS status = RFID_GetHealthStatus(static_cast<READER_HANDLE>(readerHandle),
                                                  static_cast<uint32_t>(component), &health, detail);
  if (status == 0) statusOut[0] = static_cast<jshort>(health);
  statusOut.release();  // mode 0, whatever the status
  return status;
}

}  // extern "C"
