// Radio-wide settings: RF mode, duty cycle, radio power, idle time-out and
// the USB operation mode. Power negotiation lives in power_negotiation.cpp.
#include <jni.h>

#include <cstdint>

#include "bridge/c_bool.h"
#include "bridge/enum_field.h"
#include "bridge/pinned_array.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

constexpr const char* kUsbOperationModeSignature = "Lcom/kovra/rfid/orla/USB_OPERATION_MODE;";

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetRFMode(JNIEnv*, jclass, jint readerHandle,
                                                                            jshort antennaID, jint firstValue,
                                                                            jint secondValue) {
  return RFID_SetRFMode(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID),
                        static_cast<uint32_t>(firstValue), static_cast<uint32_t>(secondValue));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetRFMode(JNIEnv* env, jclass, jint readerHandle,
                                                                            jshort antennaID, jintArray firstOut,
                                                                            jintArray secondOut) {
  orla::PinnedArray<jintArray> first(env, firstOut);
  orla::PinnedArray<jintArray> second(env, secondOut);
  uint32_t firstValue = 0;
  uint32_t secondValue = 0;
  const RFID_STATUS status = RFID_GetRFMode(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID),
                                            &firstValue, &secondValue);
  if (status == 0) {
    first[0] = static_cast<jint>(firstValue);
    second[0] = static_cast<jint>(secondValue);
  }
  return status;
}

// The C API wants a work area beside the index; we never look at it.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetDutyCycle(JNIEnv*, jclass, jint readerHandle,
                                                                               jshort dutyCycleIndex) {
  DUTY_CYCLE_SCRATCH scratch;
  return RFID_SetDutyCycle(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(dutyCycleIndex), &scratch);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetDutyCycle(JNIEnv* env, jclass, jint readerHandle,
                                                                               jshortArray dutyCycleIndexOut) {
  orla::PinnedArray<jshortArray> index(env, dutyCycleIndexOut);
  DUTY_CYCLE_SCRATCH scratch;
  uint16_t dutyCycleIndex = 0;
  const RFID_STATUS status = RFID_GetDutyCycle(static_cast<READER_HANDLE>(readerHandle), &dutyCycleIndex, &scratch);
  if (status == 0) index[0] = static_cast<jshort>(dutyCycleIndex);
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetRadioPowerState(JNIEnv*, jclass, jint readerHandle,
                                                                                     jboolean radioOn) {
  return RFID_SetRadioPowerState(static_cast<READER_HANDLE>(readerHandle), toCBool(radioOn));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetRadioPowerState(JNIEnv* env, jclass,
                                                                                     jint readerHandle,
                                                                                     jbooleanArray radioOnOut) {
  orla::PinnedArray<jbooleanArray> radioOn(env, radioOnOut);
  RFID_BOOL on;
  const RFID_STATUS status = RFID_GetRadioPowerState(static_cast<READER_HANDLE>(readerHandle), &on);
  if (status == 0) radioOn[0] = on;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1TurnOffRadioWhenIdle(JNIEnv*, jclass,
                                                                                       jint readerHandle,
                                                                                       jint idleTimeoutMilliseconds) {
  return RFID_TurnOffRadioWhenIdle(static_cast<READER_HANDLE>(readerHandle),
                                   static_cast<uint32_t>(idleTimeoutMilliseconds));
}

// The only getter here that clears its Java element first: a failed call
// leaves 0 in it rather than the caller's old value.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetRadioIdleTimeout(JNIEnv* env, jclass,
                                                                                      jint readerHandle,
                                                                                      jintArray timeoutOut) {
  orla::PinnedArray<jintArray> timeout(env, timeoutOut);
  timeout[0] = 0;
  uint32_t milliseconds = 0;
  const RFID_STATUS status = RFID_GetRadioIdleTimeout(static_cast<READER_HANDLE>(readerHandle), &milliseconds);
  if (status == 0) timeout[0] = static_cast<jint>(milliseconds);
  return status;
}

// Getting writes the raw short "enumMode"; the enum object "mode" that
// setting reads is left alone.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetUSBOperationMode(JNIEnv* env, jclass,
                                                                                      jint readerHandle,
                                                                                      jobject settings) {
  USB_OPERATION_MODE_SETTINGS record;
  const RFID_STATUS status = RFID_GetUSBOperationMode(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;
  setBoolInJobject(env, settings, "allowLLRPConnectionOverride", record.allowLLRPConnectionOverride);
  setShortInJobject(env, settings, "enumMode", static_cast<short>(record.mode));
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetUSBOperationMode(JNIEnv* env, jclass,
                                                                                      jint readerHandle,
                                                                                      jobject settings) {
  USB_OPERATION_MODE_SETTINGS record = {};
  record.allowLLRPConnectionOverride = toCBool(getBoolFromJobject(env, settings, "allowLLRPConnectionOverride"));
  record.mode = static_cast<int32_t>(getEnumFieldFromJobject(env, settings, "mode", kUsbOperationModeSignature));
  return RFID_SetUSBOperationMode(static_cast<READER_HANDLE>(readerHandle), &record);
}

}  // extern "C"
