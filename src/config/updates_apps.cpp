// Software and radio updates, user applications installed on the reader,
// and the persistence of the reader's LLRP configuration.
#include <jni.h>

#include <cstdint>

#include "bridge/conversions.h"
#include "bridge/name_buffer.h"
#include "bridge/pinned_array.h"
#include "bridge/string_field.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "config/info_text_fields.h"
#include "jni_fields.h"
#include "reader_api.h"

extern "C" {

// Only the head of each field is cleared (see clearFieldHead). A null
// String leaves its field empty.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1UpdateSoftware(JNIEnv* env, jclass,
                                                                                jint readerHandle,
                                                                                jobject updateInfo) {
  UPDATE_INFO record;
  const TextField fields[] = {
      {"hostName", record.hostName}, {"userName", record.userName}, {"password", record.password}};
  for (const TextField& field : fields) clearFieldHead(field);

  for (const TextField& field : fields) {
    jstring text = getStringFromJobject(env, updateInfo, field.name);
    if (text == nullptr) continue;
    env->GetStringUTFChars(text, nullptr);  // taken but never read nor given back, as this call always did
    JavaToWSZ(env, text, field.text);
  }
  return RFID_UpdateSoftwareW(static_cast<READER_HANDLE>(readerHandle), &record);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetUpdateStatus(JNIEnv* env, jclass,
                                                                                 jint readerHandle,
                                                                                 jobject updateStatus) {
  UPDATE_STATUS record = {};
  const RFID_STATUS status = RFID_GetUpdateStatusW(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;
  setIntInJobject(env, updateStatus, "percentage", record.percentage);
  setConvertedStringInJobject(env, updateStatus, "updateInfo", record.updateInfo);
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1UpdateRadioConfig(JNIEnv* env, jclass,
                                                                                   jint readerHandle,
                                                                                   jstring fileName) {
  const NameBuffer name(env, fileName);
  return RFID_UpdateRadioConfigW(static_cast<READER_HANDLE>(readerHandle), name.text);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1UpdateRadioFirmware(JNIEnv* env, jclass,
                                                                                     jint readerHandle,
                                                                                     jstring fileName) {
  const NameBuffer name(env, fileName);
  return RFID_UpdateRadioFirmwareW(static_cast<READER_HANDLE>(readerHandle), name.text);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1InstallUserApp(JNIEnv* env, jclass,
                                                                                jint readerHandle,
                                                                                jstring packageName) {
  const NameBuffer name(env, packageName);
  return RFID_InstallUserAppW(static_cast<READER_HANDLE>(readerHandle), name.text);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1UninstallUserApp(JNIEnv* env, jclass,
                                                                                  jint readerHandle,
                                                                                  jstring appName) {
  const NameBuffer name(env, appName);
  return RFID_UninstallUserAppW(static_cast<READER_HANDLE>(readerHandle), name.text);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1StartUserApp(JNIEnv* env, jclass,
                                                                              jint readerHandle,
                                                                              jstring appName) {
  const NameBuffer name(env, appName);
  return RFID_StartUserAppW(static_cast<READER_HANDLE>(readerHandle), name.text);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1StopUserApp(JNIEnv* env, jclass,
                                                                             jint readerHandle,
                                                                             jstring appName) {
  const NameBuffer name(env, appName);
  return RFID_StopUserAppW(static_cast<READER_HANDLE>(readerHandle), name.text);
}

// The Java boolean's byte goes to the reader as it is.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetAutoStartUserApp(JNIEnv* env, jclass,
                                                                                     jint readerHandle,
                                                                                     jstring appName,
                                                                                     jboolean autoStart) {
  const NameBuffer name(env, appName);
  return RFID_SetUserAppAutoStartW(static_cast<READER_HANDLE>(readerHandle), name.text, autoStart);
}

// Fills as many Java objects as the array holds, from the reader's entries
// in order; the reader's own count is not looked at, so the array must not
// be longer than the reader's list.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1ListUserApps(JNIEnv* env, jclass,
                                                                              jint readerHandle,
                                                                              jobjectArray userApps) {
  USER_APP_LIST list = {};
  const RFID_STATUS status = RFID_ListUserAppsW(static_cast<READER_HANDLE>(readerHandle), &list);
  if (status != 0 || list.appList == nullptr) return status;

  const jsize count = env->GetArrayLength(userApps);
  for (jsize i = 0; i < count; ++i) {
    jobject app = env->GetObjectArrayElement(userApps, i);
    const USER_APP_INFO& entry = list.appList[i];
    setStringInJobject(env, app, "appName", entry.appName);
    setStringInJobject(env, app, "Metadata", entry.Metadata);
    setBoolInJobject(env, app, "runStatus", entry.runStatus);
    setBoolInJobject(env, app, "autoStart", entry.autoStart);
  }
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetCurrentUserAppRunStatus(JNIEnv* env, jclass,
                                                                                            jint readerHandle,
                                                                                            jstring appName,
                                                                                            jobject runStatus) {
  const NameBuffer name(env, appName);
  RFID_BOOL running = 0;
  const RFID_STATUS status = RFID_GetUserAppRunStatusW(static_cast<READER_HANDLE>(readerHandle), name.text, &running);
  if (status != 0) return status;
  setBoolInJobject(env, runStatus, "runStatus", running);
  return 0;
}

// Returns the count, not a status: the query's status is not looked at, and
// the count stays 0 when the reader does not set it.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1NumInstalledApps(JNIEnv*, jclass,
                                                                                  jint readerHandle) {
  unsigned int count = 0;
  rfid_GetNumInstalledApps(reinterpret_cast<void*>(static_cast<intptr_t>(readerHandle)), &count);
  return static_cast<jint>(count);
}

// The Java long goes through unchanged as the pointer-sized argument.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SaveLlrpConfig(JNIEnv*, jclass, jint readerHandle,
                                                                                jlong saveArgument) {
  return RFID_SaveLlrpConfig(static_cast<READER_HANDLE>(readerHandle),
                             reinterpret_cast<void*>(static_cast<intptr_t>(saveArgument)));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetSaveLlrpConfigStatus(JNIEnv* env, jclass,
                                                                                         jint readerHandle,
                                                                                         jbooleanArray saved) {
  orla::PinnedArray<jbooleanArray> savedOut(env, saved);
  RFID_BOOL value = 0;
  const RFID_STATUS status = RFID_GetSaveLlrpConfigStatus(static_cast<READER_HANDLE>(readerHandle), &value);
  if (status == 0) savedOut[0] = value;
  savedOut.release();  // mode 0, whatever the status
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1ResetConfigToFactoryDefaults(JNIEnv*, jclass,
                                                                                              jint readerHandle) {
  return RFID_ResetConfigToFactoryDefaults(static_cast<READER_HANDLE>(readerHandle));
}

}  // extern "C"
