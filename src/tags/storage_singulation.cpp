// Tag storage settings and singulation control: field-by-field copies
// between Java objects and stack records.
#include <jni.h>

#include <cstdint>

#include "bridge/c_bool.h"
#include "bridge/enum_field.h"
#include "bridge/unsigned_fields.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

constexpr const char* kStateAwareSingulationActionSignature =
    "Lcom/kovra/rfid/orla/STATE_AWARE_SINGULATION_ACTION;";

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetTagStorageSettings(JNIEnv* env, jclass,
                                                                                       jint readerHandle,
                                                                                       jobject settings) {
  TAG_STORAGE_SETTINGS record;
  const RFID_STATUS status = RFID_GetTagStorageSettings(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;
  setIntInJobject(env, settings, "maxTagCount", static_cast<int>(record.maxTagCount));
  setIntInJobject(env, settings, "maxMemoryBankByteCount", static_cast<int>(record.maxMemoryBankByteCount));
  setIntInJobject(env, settings, "maxTagIDByteCount", static_cast<int>(record.maxTagIDByteCount));
  setShortInJobject(env, settings, "tagFields", static_cast<short>(record.tagFields));
  setBoolInJobject(env, settings, "enableAccessReports", record.enableAccessReports);
  setBoolInJobject(env, settings, "discardTagsOnInventoryStop", record.discardTagsOnInventoryStop);
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetTagStorageSettings(JNIEnv* env, jclass,
                                                                                       jint readerHandle,
                                                                                       jobject settings) {
  TAG_STORAGE_SETTINGS record;
  record.maxTagCount = getUint32FromJobject(env, settings, "maxTagCount");
  record.maxMemoryBankByteCount = getUint32FromJobject(env, settings, "maxMemoryBankByteCount");
  record.maxTagIDByteCount = getUint32FromJobject(env, settings, "maxTagIDByteCount");
  record.tagFields = getUint16FromJobject(env, settings, "tagFields");
  record.enableAccessReports = toCBool(getBoolFromJobject(env, settings, "enableAccessReports"));
  record.discardTagsOnInventoryStop = toCBool(getBoolFromJobject(env, settings, "discardTagsOnInventoryStop"));
  return RFID_SetTagStorageSettings(static_cast<READER_HANDLE>(readerHandle), &record);
}

// Getting fills the three raw "enum..." shorts and leaves the Java
// enumeration objects that setting reads as they are.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetSingulationControl(JNIEnv* env, jclass,
                                                                                       jint readerHandle,
                                                                                       jint antennaID,
                                                                                       jobject control) {
  SINGULATION_CONTROL record;
  const RFID_STATUS status = RFID_GetSingulationControl(static_cast<READER_HANDLE>(readerHandle),
                                                        static_cast<uint16_t>(antennaID), &record);
  if (status != 0) return status;
  setShortInJobject(env, control, "tagPopulation", static_cast<short>(record.tagPopulation));
  setShortInJobject(env, control, "tagTransitTimeMilliseconds", static_cast<short>(record.tagTransitTimeMilliseconds));
  setShortInJobject(env, control, "enumSession", static_cast<short>(record.session));
  jobject action = getJobjectFromJobject(env, control, "stateAwareSingulationAction",
                                         kStateAwareSingulationActionSignature);
  setBoolInJobject(env, action, "perform", record.perform);
  setShortInJobject(env, action, "enumInventoryState", static_cast<short>(record.inventoryState));
  setShortInJobject(env, action, "enumSLFlag", static_cast<short>(record.slFlag));
  return 0;
}

// The alignment bytes 9 to 11 of the record are not written.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetSingulationControl(JNIEnv* env, jclass,
                                                                                       jint readerHandle,
                                                                                       jint antennaID,
                                                                                       jobject control) {
  SINGULATION_CONTROL record;
  record.tagPopulation = getUint16FromJobject(env, control, "tagPopulation");
  record.tagTransitTimeMilliseconds = getUint16FromJobject(env, control, "tagTransitTimeMilliseconds");
  record.session = getEnumFieldFromJobject(env, control, "session", "Lcom/kovra/rfid/orla/SESSION;");
  jobject action = getJobjectFromJobject(env, control, "stateAwareSingulationAction",
                                         kStateAwareSingulationActionSignature);
  record.perform = toCBool(getBoolFromJobject(env, action, "perform"));
  record.inventoryState = getEnumFieldFromJobject(env, action, "inventoryState", "Lcom/kovra/rfid/orla/INVENTORY_STATE;");
  record.slFlag = getEnumFieldFromJobject(env, action, "slFlag", "Lcom/kovra/rfid/orla/SL_FLAG;");
  return RFID_SetSingulationControl(static_cast<READER_HANDLE>(readerHandle), static_cast<uint16_t>(antennaID),
                                    &record);
}

}  // extern "C"
