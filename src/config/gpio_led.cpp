// General-purpose inputs and outputs, the GPI debounce setting and the
// user LED.
#include <jni.h>

#include <cstdint>
#include <cstring>

#include "bridge/c_bool.h"
#include "bridge/enum_field.h"
#include "bridge/pinned_array.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

constexpr const char* kLedColorSignature = "Lcom/kovra/rfid/orla/LED_COLOR;";

// The first four ints of the Java array, as they are.
void copyDebounceRecord(const jint* elements, GPI_DEBOUNCE_RECORD& record) {
  std::memcpy(&record, elements, sizeof record);
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1EnableGPIPort(JNIEnv*, jclass, jint readerHandle,
                                                                                jint port, jboolean enable) {
  return RFID_EnableGPIPort(static_cast<READER_HANDLE>(readerHandle), port, toCBool(enable));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetGPIState(JNIEnv* env, jclass, jint readerHandle,
                                                                              jint port, jbooleanArray stateOut,
                                                                              jintArray valueOut) {
  orla::PinnedArray<jbooleanArray> stateElement(env, stateOut);
  orla::PinnedArray<jintArray> valueElement(env, valueOut);
  RFID_BOOL state;
  int32_t value;
  const RFID_STATUS status = RFID_GetGPIState(static_cast<READER_HANDLE>(readerHandle), port, &state, &value);
  if (status == 0) {
    stateElement[0] = state;
    valueElement[0] = value;
  }
  return status;
}

// The Java boolean's byte goes out as it is, unlike the other setters.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetGPOState(JNIEnv*, jclass, jint readerHandle,
                                                                              jint port, jboolean state) {
  return RFID_SetGPOState(static_cast<READER_HANDLE>(readerHandle), port, static_cast<RFID_BOOL>(state));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetGPOState(JNIEnv* env, jclass, jint readerHandle,
                                                                              jint port, jbooleanArray stateOut) {
  orla::PinnedArray<jbooleanArray> stateElement(env, stateOut);
  RFID_BOOL state = 0;
  const RFID_STATUS status = RFID_GetGPOState(static_cast<READER_HANDLE>(readerHandle), port, &state);
  if (status == 0) stateElement[0] = state;
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetGPIDebounceTime(JNIEnv* env, jclass,
                                                                                     jint readerHandle, jint value,
                                                                                     jintArray debounceRecord) {
  jint* elements = env->GetIntArrayElements(debounceRecord, nullptr);
  GPI_DEBOUNCE_RECORD record;
  copyDebounceRecord(elements, record);
  // Deliberately no release: the pinned elements stay as they are, so what
  // the C API does to the record never reaches Java.
  return RFID_SetGPIDebounceTime(static_cast<READER_HANDLE>(readerHandle), value, &record);
}

// The record goes to the C API but is not copied back into Java.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetGPIDebounceTime(JNIEnv* env, jclass,
                                                                                     jint readerHandle,
                                                                                     jintArray valueOut,
                                                                                     jintArray debounceRecord) {
  orla::PinnedArray<jintArray> valueElement(env, valueOut);
  orla::PinnedArray<jintArray> input(env, debounceRecord);
  int32_t value = 0;
  GPI_DEBOUNCE_RECORD record;
  copyDebounceRecord(input.data(), record);

  const RFID_STATUS status = RFID_GetGPIDebounceTime(static_cast<READER_HANDLE>(readerHandle), &value, &record);
  if (status == 0) valueElement[0] = value;
  valueElement.release();  // out first, then the input, whatever the status
  input.release();
  return status;
}

// Bytes 9 to 15 of the record are left as they are; the reserved tail is
// cleared.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetUserLED(JNIEnv* env, jclass, jint readerHandle,
                                                                             jobject ledInfo) {
  LED_INFO record;
  record.duration = getIntFromJobject(env, ledInfo, "duration");
  record.blink = toCBool(getBoolFromJobject(env, ledInfo, "blink"));
  record.ledColor = static_cast<int32_t>(getEnumFieldFromJobject(env, ledInfo, "ledColor", kLedColorSignature));
  std::memset(record.reserved16, 0, sizeof record.reserved16);
  return RFID_SetUserLED(static_cast<READER_HANDLE>(readerHandle), &record);
}

}  // extern "C"
