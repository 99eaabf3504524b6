// Per-antenna settings: power and frequency indices, the RF configuration
// with its stop trigger, cable-loss compensation, physical properties, the
// reader-wide antenna mode and whether a read point is enabled. Scalars come
// back in element 0 of one-element Java arrays; antenna identifiers travel
// as 16-bit values.
#include <jni.h>

#include <cstdint>
#include <new>

#include "bridge/c_bool.h"
#include "bridge/enum_field.h"
#include "bridge/pinned_array.h"
#include "bridge/scalar_fields.h"
#include "bridge/unsigned_fields.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

constexpr const char* kAntennaStopTriggerSignature = "Lcom/kovra/rfid/orla/ANTENNA_STOP_TRIGGER;";
constexpr const char* kAntennaStopTriggerTypeSignature = "Lcom/kovra/rfid/orla/ANTENNA_STOP_TRIGGER_TYPE;";

uint16_t uint16Field(JNIEnv* env, jobject object, const char* name) {
  return static_cast<uint16_t>(getIntFromJobject(env, object, name));
}

// Setting reads the stop trigger's type from its enum object; getting
// writes the plain "enumstopTriggerType" int instead.
void fillAntennaRfConfig(JNIEnv* env, jobject config, ANTENNA_RF_CONFIG* record) {
  record->transmitPowerIndex = uint16Field(env, config, "transmitPowerIndex");
  record->receiveSensitivityIndex = uint16Field(env, config, "receiveSensitivityIndex");
  record->transmitFrequencyIndex = uint16Field(env, config, "transmitFrequencyIndex");
  record->rfModeTableIndex = getLowUint32FromJobject(env, config, "rfModeTableIndex");
  record->tari = getLowUint32FromJobject(env, config, "tari");
  record->transmitPort = uint16Field(env, config, "transmitPort");
  record->receivePort = uint16Field(env, config, "receivePort");
  jobject stopTrigger = getJobjectFromJobject(env, config, "antennaStopTrigger", kAntennaStopTriggerSignature);
  record->antennaStopTrigger.stopTriggerValue = uint16Field(env, stopTrigger, "stopTriggerValue");
  record->antennaStopTrigger.stopTriggerType = static_cast<int32_t>(
      getEnumFieldFromJobject(env, stopTrigger, "stopTriggerType", kAntennaStopTriggerTypeSignature));
}

void writeAntennaRfConfig(JNIEnv* env, jobject config, const ANTENNA_RF_CONFIG& record) {
  setIntInJobject(env, config, "transmitPowerIndex", record.transmitPowerIndex);
  setIntInJobject(env, config, "receiveSensitivityIndex", record.receiveSensitivityIndex);
  setIntInJobject(env, config, "transmitFrequencyIndex", record.transmitFrequencyIndex);
  setLongInJobject(env, config, "rfModeTableIndex", record.rfModeTableIndex);
  setLongInJobject(env, config, "tari", record.tari);
  setIntInJobject(env, config, "transmitPort", record.transmitPort);
  setIntInJobject(env, config, "receivePort", record.receivePort);
  jobject stopTrigger = getJobjectFromJobject(env, config, "antennaStopTrigger", kAntennaStopTriggerSignature);
  setIntInJobject(env, stopTrigger, "stopTriggerValue", record.antennaStopTrigger.stopTriggerValue);
  setIntInJobject(env, stopTrigger, "enumstopTriggerType", record.antennaStopTrigger.stopTriggerType);
}

CABLE_LOSS_COMPENSATION* newCableLossCompensation(JNIEnv* env, jobject compensation) {
  auto* record = new CABLE_LOSS_COMPENSATION();
  record->antennaID = getUint16FromJobject(env, compensation, "antennaID");
  record->cableLengthInFt = getFloatFromJobject(env, compensation, "cableLengthInFt");
  record->cableLossPer100Ft = getFloatFromJobject(env, compensation, "cableLossPer100Ft");
  return record;
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetAntennaConfig(JNIEnv*, jclass, jint readerHandle,
                                                                                  jshort antennaID, jshort firstIndex,
                                                                                  jshort secondIndex,
                                                                                  jshort thirdIndex) {
  return RFID_SetAntennaConfig(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID),
                               static_cast<uint16_t>(firstIndex), static_cast<uint16_t>(secondIndex),
                               static_cast<uint16_t>(thirdIndex));
}

// The three values reach Java whatever the status: callers ignore them when
// it is not 0.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetAntennaConfig(JNIEnv* env, jclass,
                                                                                  jint readerHandle, jshort antennaID,
                                                                                  jshortArray firstIndex,
                                                                                  jshortArray secondIndex,
                                                                                  jshortArray thirdIndex) {
  orla::PinnedArray<jshortArray> first(env, firstIndex);
  orla::PinnedArray<jshortArray> second(env, secondIndex);
  orla::PinnedArray<jshortArray> third(env, thirdIndex);
  uint16_t firstValue;
  uint16_t secondValue;
  uint16_t thirdValue;
  const RFID_STATUS status = RFID_GetAntennaConfig(static_cast<READER_HANDLE>(readerHandle),
                                                   static_cast<uint16_t>(antennaID), &firstValue, &secondValue,
                                                   &thirdValue);
  first[0] = static_cast<jshort>(firstValue);
  second[0] = static_cast<jshort>(secondValue);
  third[0] = static_cast<jshort>(thirdValue);
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetAntennaRfConfig(JNIEnv* env, jclass,
                                                                                    jint readerHandle,
                                                                                    jshort antennaID, jobject config) {
  ANTENNA_RF_CONFIG record = {};
  const RFID_STATUS status =
      RFID_GetAntennaRfConfig(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID), &record);
  if (status != 0) return status;
  writeAntennaRfConfig(env, config, record);
  return 0;
}

// A null config object sends a NULL record.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetAntennaRfConfig(JNIEnv* env, jclass,
                                                                                    jint readerHandle,
                                                                                    jshort antennaID, jobject config) {
  ANTENNA_RF_CONFIG* record = nullptr;
  if (config != nullptr) {
    record = new ANTENNA_RF_CONFIG();  // the whole 320-byte block, zeroed
    fillAntennaRfConfig(env, config, record);
  }
  // The block is not freed after the call: each set leaves it allocated.
  return RFID_SetAntennaRfConfig(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID), record);
}

// count travels beside the list as given; it is not compared with the
// length of the Java array.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetCableLossCompensation(
    JNIEnv* env, jclass, jint readerHandle, jshort count, jobjectArray compensations) {
  const jsize length = env->GetArrayLength(compensations);
  auto** records = new (std::nothrow) CABLE_LOSS_COMPENSATION*[length > 0 ? length : 0];
  if (records == nullptr) return 0;
  for (jsize i = 0; i < length; ++i) {
    records[i] = newCableLossCompensation(env, env->GetObjectArrayElement(compensations, i));
  }

  const RFID_STATUS status = RFID_SetCableLossCompensation(static_cast<READER_HANDLE>(readerHandle), count, records);
  for (jsize i = 0; i < length; ++i) {
    delete records[i];
    records[i] = nullptr;
  }
  delete[] records;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetCableLossCompensation(JNIEnv* env, jclass,
                                                                                          jint readerHandle,
                                                                                          jobject compensation) {
  CABLE_LOSS_COMPENSATION record = {};
  record.antennaID = getUint16FromJobject(env, compensation, "antennaID");
  const RFID_STATUS status = RFID_GetCableLossCompensation(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;
  setFloatInJobject(env, compensation, "cableLengthInFt", record.cableLengthInFt);
  setFloatInJobject(env, compensation, "cableLossPer100Ft", record.cableLossPer100Ft);
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPhysicalAntennaProperties(
    JNIEnv* env, jclass, jint readerHandle, jshort antennaID, jbooleanArray flagOut, jintArray valueOut) {
  orla::PinnedArray<jbooleanArray> flagElements(env, flagOut);
  orla::PinnedArray<jintArray> valueElements(env, valueOut);
  RFID_BOOL flag = 0;
  int32_t value = 0;
  const RFID_STATUS status = RFID_GetPhysicalAntennaProperties(static_cast<READER_HANDLE>(readerHandle),
                                                               static_cast<uint16_t>(antennaID), &flag, &value);
  if (status != 0) return status;
  flagElements[0] = flag;
  valueElements[0] = value;
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetAntennaMode(JNIEnv* env, jclass,
                                                                                jint readerHandle,
                                                                                jobject antennaMode) {
  return RFID_SetAntennaMode(static_cast<READER_HANDLE>(readerHandle), getEnumValueFromJobject(env, antennaMode, 0));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetAntennaMode(JNIEnv* env, jclass,
                                                                                jint readerHandle,
                                                                                jintArray antennaModeOut) {
  orla::PinnedArray<jintArray> modeElements(env, antennaModeOut);
  uint32_t mode = 0;
  const RFID_STATUS status = RFID_GetAntennaMode(static_cast<READER_HANDLE>(readerHandle), &mode);
  if (status != 0) return status;
  modeElements[0] = static_cast<jint>(mode);
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetReadPointStatus(JNIEnv* env, jclass,
                                                                                    jint readerHandle,
                                                                                    jshort antennaID,
                                                                                    jbooleanArray enabledOut) {
  orla::PinnedArray<jbooleanArray> enabledElements(env, enabledOut);
  RFID_BOOL enabled = 0;
  const RFID_STATUS status =
      RFID_GetReadPointStatus(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID), &enabled);
  if (status != 0) return status;
  enabledElements[0] = enabled;
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1EnableReadPoint(JNIEnv*, jclass, jint readerHandle,
                                                                                 jshort antennaID, jboolean enable) {
  return RFID_EnableReadPoint(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID),
                              toCBool(enable));
}

}  // extern "C"
