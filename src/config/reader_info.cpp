// What the reader says about itself (system information) and its
// administrative identity (name, description, location, contact).
#include <jni.h>

#include <cstdint>

#include "bridge/conversions.h"
#include "bridge/string_field.h"
#include "bridge/struct_info.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "config/info_text_fields.h"
#include "jni_fields.h"
#include "reader_api.h"

extern "C" {

// The processor loads are signed bytes and the power source goes to Java
// as the low half of its enumeration.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetSystemInfo(JNIEnv* env, jclass,
                                                                               jint readerHandle,
                                                                               jobject systemInfo) {
  SYSTEM_INFO record = {};
  const RFID_STATUS status = RFID_GetSystemInfoW(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;
  setShortInJobject(env, systemInfo, "powersourcetypeEnum", static_cast<short>(record.powersourcetypeEnum));
  setStringInJobject(env, systemInfo, "radioFirmwareVersion", record.radioFirmwareVersion);
  setStringInJobject(env, systemInfo, "upTime", record.upTime);
  setStringInJobject(env, systemInfo, "readerName", record.readerName);
  setStringInJobject(env, systemInfo, "readerLocation", record.readerLocation);
  setIntInJobject(env, systemInfo, "ramAvailable", record.ramAvailable);
  setIntInJobject(env, systemInfo, "flashAvailable", record.flashAvailable);
  setIntInJobject(env, systemInfo, "ramUsed", record.ramUsed);
  setIntInJobject(env, systemInfo, "ramTotal", record.ramTotal);
  setIntInJobject(env, systemInfo, "cpuUsageForUserProcesses", record.cpuUsageForUserProcesses);
  setIntInJobject(env, systemInfo, "cpuUsageForSystemProcesses", record.cpuUsageForSystemProcesses);
  setStringInJobject(env, systemInfo, "fPGAVersion", record.fPGAVersion);
  setStructInfoInJobject(env, systemInfo, record.structInfo.memoryAllocated, record.structInfo.memoryUsed);
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetReaderInfo(JNIEnv* env, jclass,
                                                                               jint readerHandle,
                                                                               jobject readerInfo) {
  READER_INFO record = {};
  const RFID_STATUS status = RFID_GetReaderInfoW(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;
  setStringInJobject(env, readerInfo, "name", record.name);
  setConvertedStringInJobject(env, readerInfo, "description", record.description);
  setStringInJobject(env, readerInfo, "location", record.location);
  setStringInJobject(env, readerInfo, "contact", record.contact);
  return 0;
}

// Only the head of each field is cleared (see clearFieldHead). A null
// String leaves its field empty.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetReaderInfo(JNIEnv* env, jclass,
                                                                               jint readerHandle,
                                                                               jobject readerInfo) {
  READER_INFO record;
  const TextField fields[] = {{"name", record.name},
                              {"description", record.description},
                              {"location", record.location},
                              {"contact", record.contact}};
  for (const TextField& field : fields) clearFieldHead(field);

  for (const TextField& field : fields) {
    jstring text = getStringFromJobject(env, readerInfo, field.name);
    if (text == nullptr) continue;
    env->GetStringUTFChars(text, nullptr);  // taken but never read nor given back, as this call always did
    JavaToWSZ(env, text, field.text);
  }
  return RFID_SetReaderInfoW(static_cast<READER_HANDLE>(readerHandle), &record);
}

}  // extern "C"
