// The last error on a reader, the text of a status code, the version of the
// reader API library, and its trace level.
#include <jni.h>

#include <cstdint>
#include <cstdlib>

#include "bridge/system_time.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

// Bytes of the multibyte text of a status description. A description that
// converts to this many bytes or more has no terminator in the buffer.
constexpr size_t kDescriptionBytes = 260;

}  // namespace

extern "C" {

// On success only: the two texts, the status code, then the time stamp.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetLastErrorInfo(JNIEnv* env, jclass,
                                                                                  jint readerHandle,
                                                                                  jobject errorInfo) {
  ERROR_INFO record = {};
  const RFID_STATUS status = RFID_GetLastErrorInfoW(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;

  setStringInJobject(env, errorInfo, "statusDesc", record.statusDesc);
  setStringInJobject(env, errorInfo, "vendorMessage", record.vendorMessage);
  setIntInJobject(env, errorInfo, "enumRfidStatusCode", static_cast<int>(record.rfidStatusCode));
  jobject timeStamp = getJobjectFromJobject(env, errorInfo, "errorTimeStamp", kSystemTimeSignature);
  setSystemTimeInJobject(env, timeStamp, record.errorTimeStamp);
  return 0;
}

// Always a description, never a status. The C API's text stays its own.
JNIEXPORT jstring JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetErrorDescription(JNIEnv* env, jclass,
                                                                                        jobject statusCode) {
  const RFID_STATUS code = getEnumValueFromJobject(env, statusCode, 0);
  const wchar_t* description = RFID_GetErrorDescriptionW(code);
  char text[kDescriptionBytes] = {};
  std::wcstombs(text, description, sizeof text);
  return env->NewStringUTF(text);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetDllVersionInfo(JNIEnv* env, jclass,
                                                                                   jobject versionInfo) {
  VERSION_INFO record = {};
  const RFID_STATUS status = RFID_GetDllVersionInfoW(&record);
  if (status != 0) return status;
  setStringInJobject(env, versionInfo, "dllVersion", record.dllVersion);
  return 0;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetTraceLevel(JNIEnv*, jclass, jint readerHandle,
                                                                               jint traceLevel) {
  return RFID_SetTraceLevel(static_cast<READER_HANDLE>(readerHandle), static_cast<uint32_t>(traceLevel));
}

}  // extern "C"
