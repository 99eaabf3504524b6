// Inventory, tag locationing and the NXP EAS scan: starting them with their
// filters, antennas and triggers, stopping them, and purging read tags.
#include <jni.h>

#include <cstdint>

#include "bridge/conversions.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "reader_api.h"
#include "tags/filters.h"
#include "tags/triggers.h"

namespace {

// Antenna lists that the operations keep on their stacks.
using InventoryAntennas = orla::AntennaSelection<12, 8>;
using EasScanAntennas = orla::AntennaSelection<8, 8>;

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1PerformInventory(JNIEnv* env, jclass,
                                                                                  jint readerHandle,
                                                                                  jobject postFilter,
                                                                                  jobject antennaInfo,
                                                                                  jobject triggerInfo) {
  // The trigger record is prepared on every call, trigger object or not. Its
  // two start time blocks, like the extra trigger block of the conversion,
  // are never freed here: the reader may still use them after the call.
  auto* startTime = new SYSTEMTIME();
  auto* timeOfDay = new TIMEOFDAY();
  TRIGGER_INFO trigger;
  TAG_EVENT_REPORT_INFO tagEvents;
  REPORT_TRIGGERS reportTriggers = {};
  presetTriggerInfo(&trigger, startTime, timeOfDay, &tagEvents, &reportTriggers);

  POST_FILTER filter;
  TAG_PATTERN patternA;
  TAG_PATTERN patternB;
  if (postFilter != nullptr) GetPostFilterInfoFromJobject(env, postFilter, &filter, &patternA, &patternB);
  InventoryAntennas antennas;
  ANTENNA_INFO* antennaRecord = antennas.from(env, antennaInfo);
  if (triggerInfo != nullptr) GetTriggerInfoFromJobject(env, triggerInfo, &trigger);

  const RFID_STATUS status =
      RFID_PerformInventory(static_cast<READER_HANDLE>(readerHandle), postFilter != nullptr ? &filter : nullptr,
                            antennaRecord, triggerInfo != nullptr ? &trigger : nullptr, nullptr);
  if (postFilter != nullptr) clearPostFilter(&filter);  // the pattern bytes stay allocated
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1StopInventory(JNIEnv*, jclass, jint readerHandle) {
  return RFID_StopInventory(static_cast<READER_HANDLE>(readerHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1PurgeTags(JNIEnv*, jclass, jint readerHandle) {
  return RFID_PurgeTags(static_cast<READER_HANDLE>(readerHandle), 0);
}

// The byte length is not checked against the text: it must be at least half
// the number of hexadecimal digits.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1PerformTagLocationing(JNIEnv* env, jclass,
                                                                                       jint readerHandle,
                                                                                       jstring tagID,
                                                                                       jint tagIDLength,
                                                                                       jobject antennaInfo) {
  wchar_t text[kWideTextChars] = {};
  auto* tagBytes = new uint8_t[tagIDLength];
  JavaToWSZ(env, tagID, text);
  ConverStringToByteArray(text, tagBytes);
  InventoryAntennas antennas;
  ANTENNA_INFO* antennaRecord = antennas.from(env, antennaInfo);

  const RFID_STATUS status = RFID_PerformTagLocationing(static_cast<READER_HANDLE>(readerHandle), tagBytes,
                                                        static_cast<uint32_t>(tagIDLength), antennaRecord,
                                                        nullptr, nullptr);
  delete[] tagBytes;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1StopTagLocationing(JNIEnv*, jclass,
                                                                                    jint readerHandle) {
  return RFID_StopTagLocationing(static_cast<READER_HANDLE>(readerHandle));
}

// Unlike the inventory, the scan keeps its start time records on the stack,
// uncleared, and allocates nothing of its own; only the extra trigger block
// of the conversion stays allocated, as after every trigger conversion.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1PerformNXPEASScan(JNIEnv* env, jclass,
                                                                                   jint readerHandle,
                                                                                   jobject antennaInfo,
                                                                                   jobject triggerInfo) {
  TRIGGER_INFO trigger;
  SYSTEMTIME startTime;
  TIMEOFDAY timeOfDay;
  TAG_EVENT_REPORT_INFO tagEvents;
  REPORT_TRIGGERS reportTriggers = {};
  presetTriggerInfo(&trigger, &startTime, &timeOfDay, &tagEvents, &reportTriggers);

  EasScanAntennas antennas;
  ANTENNA_INFO* antennaRecord = antennas.from(env, antennaInfo);
  if (triggerInfo != nullptr) GetTriggerInfoFromJobject(env, triggerInfo, &trigger);

  return RFID_PerformNXPEASScan(static_cast<READER_HANDLE>(readerHandle), antennaRecord,
                                triggerInfo != nullptr ? &trigger : nullptr, nullptr);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1StopNXPEASScan(JNIEnv*, jclass, jint readerHandle) {
  return RFID_StopNXPEASScan(static_cast<READER_HANDLE>(readerHandle));
}

}  // extern "C"
