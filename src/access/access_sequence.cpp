// Access sequences: the list of tag operations that the reader API keeps
// per reader and performs on every tag it singulates while the list runs.
#include <jni.h>

#include <cstdint>

#include "access/sequence_params.h"
#include "bridge/enum_field.h"
#include "bridge/pinned_array.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"
#include "tags/filters.h"
#include "tags/triggers.h"

namespace {

constexpr const char* kAccessOperationCodeSignature = "Lcom/kovra/rfid/orla/ACCESS_OPERATION_CODE;";

// The antenna lists that a sequence run keeps on its stack.
using SequenceAntennas = orla::AntennaSelection<8, 8>;

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1InitializeAccessSequence(JNIEnv*, jclass,
                                                                                          jint readerHandle) {
  return RFID_InitializeAccessSequence(static_cast<READER_HANDLE>(readerHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1AddOperationToAccessSequence(
    JNIEnv* env, jclass, jint readerHandle, jobject operation, jintArray operationIndex) {
  orla::PinnedArray<jintArray> index(env, operationIndex);  // first, whatever the operation

  ACCESS_OPERATION* record = nullptr;
  orla::SequenceParams params;
  if (operation != nullptr) {
    record = new ACCESS_OPERATION();  // zeroed; never released here, see below
    record->opCode = getEnumFieldFromJobject(env, operation, "opCode", kAccessOperationCodeSignature);
    record->params = params.fill(env, operation, record->opCode);
  }

  uint32_t slot = 0;
  const RFID_STATUS status =
      RFID_AddOperationToAccessSequence(static_cast<READER_HANDLE>(readerHandle), record, &slot);
  if (status == 0) index[0] = static_cast<jint>(slot);
  index.release();  // mode 0, whatever the status

  params.release();  // the write data, the parameter record, the privilege buffer
  // The operation record and a block-permalock mask are deliberately left
  // allocated. The parameter record is gone once this returns, so the
  // reader API has copied whatever it keeps of the operation.
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1DeleteOperationFromAccessSequence(
    JNIEnv*, jclass, jint readerHandle, jint operationIndex) {
  return RFID_DeleteOperationFromAccessSequence(static_cast<READER_HANDLE>(readerHandle),
                                                static_cast<uint32_t>(operationIndex));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1PerformAccessSequence(JNIEnv* env, jclass,
                                                                                       jint readerHandle,
                                                                                       jobject accessFilter,
                                                                                       jobject antennaInfo,
                                                                                       jobject triggerInfo) {
  ACCESS_FILTER filter;
  TAG_PATTERN patternA;
  TAG_PATTERN patternB;
  if (accessFilter != nullptr) GetAccessFilterInfoFromJobject(env, accessFilter, &filter, &patternA, &patternB);
  SequenceAntennas antennas;
  ANTENNA_INFO* antennaRecord = antennas.from(env, antennaInfo);

  // The trigger's time and report records live in this frame; the report
  // block starts zeroed.
  TRIGGER_INFO trigger;
  SYSTEMTIME startTime;
  TIMEOFDAY timeOfDay;
  TAG_EVENT_REPORT_INFO tagEvents;
  REPORT_TRIGGERS reportTriggers = {};
  presetTriggerInfo(&trigger, &startTime, &timeOfDay, &tagEvents, &reportTriggers);
  if (triggerInfo != nullptr) GetTriggerInfoFromJobject(env, triggerInfo, &trigger);

  const RFID_STATUS status = RFID_PerformAccessSequence(
      static_cast<READER_HANDLE>(readerHandle), accessFilter != nullptr ? &filter : nullptr, antennaRecord,
      triggerInfo != nullptr ? &trigger : nullptr, nullptr);
  if (accessFilter != nullptr) clearAccessFilter(&filter);  // the pattern bytes stay allocated
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1StopAccessSequence(JNIEnv*, jclass,
                                                                                    jint readerHandle) {
  return RFID_StopAccessSequence(static_cast<READER_HANDLE>(readerHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetLastAccessResult(JNIEnv* env, jclass,
                                                                                     jint readerHandle,
                                                                                     jintArray firstCount,
                                                                                     jintArray secondCount) {
  orla::PinnedArray<jintArray> first(env, firstCount);
  orla::PinnedArray<jintArray> second(env, secondCount);

  uint32_t firstSlot = 0;
  uint32_t secondSlot = 0;
  const RFID_STATUS status =
      RFID_GetLastAccessResult(static_cast<READER_HANDLE>(readerHandle), &firstSlot, &secondSlot);
  if (status == 0) {
    first[0] = static_cast<jint>(firstSlot);
    second[0] = static_cast<jint>(secondSlot);
  }
  first.release();  // mode 0, whatever the status
  second.release();
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1DeinitializeAccessSequence(JNIEnv*, jclass,
                                                                                            jint readerHandle) {
  return RFID_DeinitializeAccessSequence(static_cast<READER_HANDLE>(readerHandle));
}

}  // extern "C"
