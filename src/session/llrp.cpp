// The LLRP connection that the reader opens itself: its configuration on
// the reader, starting and dropping it, and accepting such a connection.
#include <jni.h>

#include <cstdint>

#include "bridge/c_bool.h"
#include "bridge/conversions.h"
#include "bridge/enum_field.h"
#include "bridge/string_field.h"
#include "bridge/unsigned_fields.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"
#include "session/handle_out.h"

namespace {

constexpr const char* kRfidVersionSignature = "Lcom/kovra/rfid/orla/RFID_VERSION;";
constexpr const char* kSecLlrpConfigSignature = "Lcom/kovra/rfid/orla/SEC_LLRP_CONFIG;";

}  // namespace

extern "C" {

// On success only. The Java secure object is written only when the reader
// answered with a secure record; that record is the C API's, not ours.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetLLRPConnectionConfig(JNIEnv* env, jclass,
                                                                                         jint readerHandle,
                                                                                         jobject config) {
  LLRP_CONNECTION_CONFIG record = {};
  const RFID_STATUS status = RFID_GetLLRPConnectionConfigW(static_cast<READER_HANDLE>(readerHandle), &record);
  if (status != 0) return status;

  setBoolInJobject(env, config, "isClient", record.isClient);
  setStringInJobject(env, config, "hostServerIP", record.hostServerIP);
  setIntInJobject(env, config, "port", static_cast<int>(record.port));
  if (record.pSecureModeConfig != nullptr) {
    jobject secure = getJobjectFromJobject(env, config, "pSecureModeConfig", kSecLlrpConfigSignature);
    setBoolInJobject(env, secure, "secureMode", record.pSecureModeConfig->secureMode);
    setBoolInJobject(env, secure, "validatePeerCert", record.pSecureModeConfig->validatePeerCert);
  }
  return 0;
}

// The Java secure object must be set; a secure record goes to the reader
// only when its "secureMode" is true.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetLLRPConnectionConfig(JNIEnv* env, jclass,
                                                                                         jint readerHandle,
                                                                                         jobject config) {
  LLRP_CONNECTION_CONFIG record = {};
  record.isClient = toCBool(getBoolFromJobject(env, config, "isClient"));
  jstring host = getStringFromJobject(env, config, "hostServerIP");
  if (host != nullptr) {
    // Fetched once and deliberately never released, as login does.
    static_cast<void>(env->GetStringUTFChars(host, nullptr));
    JavaToWSZ(env, host, record.hostServerIP);
  }
  record.port = getUint32FromJobject(env, config, "port");

  jobject secure = getJobjectFromJobject(env, config, "pSecureModeConfig", kSecLlrpConfigSignature);
  if (getBoolFromJobject(env, secure, "secureMode")) {
    // Deliberately never freed: the secure record outlives this call.
    record.pSecureModeConfig = new SEC_LLRP_CONFIG();
    record.pSecureModeConfig->secureMode = toCBool(getBoolFromJobject(env, secure, "secureMode"));
    record.pSecureModeConfig->validatePeerCert = toCBool(getBoolFromJobject(env, secure, "validatePeerCert"));
  }
  return RFID_SetLLRPConnectionConfigW(static_cast<READER_HANDLE>(readerHandle), &record);
}

// What the reader writes back is of no use to Java.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1InitiateLLRPConnectionFromReader(
    JNIEnv*, jclass, jint readerHandle) {
  LLRP_INITIATE_SCRATCH scratch = {};
  return RFID_InitiateLLRPConnectionFromReader(static_cast<READER_HANDLE>(readerHandle), &scratch);
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1DisconnectLLRPConnectionFromReader(
    JNIEnv*, jclass, jint readerHandle) {
  return RFID_DisconnectLLRPConnectionFromReader(static_cast<READER_HANDLE>(readerHandle));
}

// The handle reaches Java only on success. The long is passed through
// untouched; the output area is the C API's and Java never sees it.
JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1AcceptConnection(JNIEnv* env, jclass,
                                                                                  jlongArray handleOut,
                                                                                  jlong passThrough,
                                                                                  jobject acceptInfo) {
  orla::HandleOut handle(env, handleOut);

  ACCEPT_CONNECTION_INFO record;
  // Read and dropped on purpose: the time-out slot of the record stays as the stack left it.
  static_cast<void>(getIntFromJobject(env, acceptInfo, "timeoutMilliseconds"));
  record.rfidVersion = getEnumFieldFromJobject(env, acceptInfo, "rfidVersion", kRfidVersionSignature);

  ACCEPT_CONNECTION_SCRATCH scratch = {};
  return handle.deliver(RFID_AcceptConnection(handle.slot(), passThrough, &record, &scratch));
}

}  // extern "C"
