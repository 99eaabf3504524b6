// Opening, restoring and closing the connection to a reader.
#include <jni.h>

#include <cstdint>

#include "bridge/c_bool.h"
#include "bridge/enum_field.h"
#include "bridge/name_buffer.h"
#include "bridge/unsigned_fields.h"
#include "com_kovra_rfid_orla_ORLANatives.h"
#include "jni_fields.h"
#include "reader_api.h"
#include "session/handle_out.h"

namespace {

constexpr const char* kRfidVersionSignature = "Lcom/kovra/rfid/orla/RFID_VERSION;";
constexpr const char* kSecConnectionInfoSignature = "Lcom/kovra/rfid/orla/SEC_CONNECTION_INFO;";

// Reads the size field and, only when it is not 0, copies that many bytes of
// the byte[] field into a buffer of their own. The size is not checked
// against the Java array.
void copySizedBuffer(JNIEnv* env, jobject secure, const char* sizeField, const char* bufferField, uint32_t& size,
                     uint8_t*& buffer) {
  size = getUint32FromJobject(env, secure, sizeField);
  if (size == 0) return;
  buffer = new uint8_t[size];
  getByteArrayInJobject(env, secure, bufferField, buffer, static_cast<int>(size));
}

// The secure record for the Java connection info, or null when "secConnInfo"
// is null or its "secureMode" is false.
SEC_CONNECTION_INFO* newSecConnectionInfo(JNIEnv* env, jobject connInfo) {
  jobject secure = getJobjectFromJobject(env, connInfo, "secConnInfo", kSecConnectionInfoSignature);
  if (secure == nullptr || !getBoolFromJobject(env, secure, "secureMode")) return nullptr;

  auto* record = new SEC_CONNECTION_INFO();
  record->secureMode = toCBool(getBoolFromJobject(env, secure, "secureMode"));
  record->validatePeerCert = toCBool(getBoolFromJobject(env, secure, "validatePeerCert"));
  copySizedBuffer(env, secure, "sizeCertBuff", "clientCertBuff", record->sizeCertBuff, record->clientCertBuff);
  copySizedBuffer(env, secure, "sizeKeyBuff", "clientKeyBuff", record->sizeKeyBuff, record->clientKeyBuff);
  copySizedBuffer(env, secure, "sizePhraseBuff", "phraseBuff", record->sizePhraseBuff, record->phraseBuff);
  copySizedBuffer(env, secure, "sizeRootCertBuff", "rootCertBuff", record->sizeRootCertBuff, record->rootCertBuff);
  record->connStatus = getLongFromJobject(env, secure, "connStatus");
  return record;
}

void deleteSecConnectionInfo(SEC_CONNECTION_INFO* record) {
  if (record == nullptr) return;
  delete[] record->clientCertBuff;
  delete[] record->clientKeyBuff;
  delete[] record->phraseBuff;
  delete[] record->rootCertBuff;
  delete record;
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Connect(JNIEnv* env, jclass, jlongArray handleOut,
                                                                         jstring hostName, jint firstParameter,
                                                                         jint secondParameter, jobject connInfo) {
  const NameBuffer host(env, hostName);
  orla::HandleOut handle(env, handleOut);

  CONNECTION_INFO info = {};
  info.version = getEnumFieldFromJobject(env, connInfo, "version", kRfidVersionSignature);
  info.secConnInfo = newSecConnectionInfo(env, connInfo);

  const RFID_STATUS status = handle.deliver(RFID_ConnectW(
      handle.slot(), host.text, static_cast<uint32_t>(firstParameter), static_cast<uint32_t>(secondParameter), &info));
  deleteSecConnectionInfo(info.secConnInfo);
  return status;
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1Reconnect(JNIEnv*, jclass, jint readerHandle) {
  return RFID_Reconnect(static_cast<READER_HANDLE>(readerHandle));
}

JNIEXPORT jint JNICALL Java_com_kovra_rfid_orla_ORLANatives_RFID_1DisConnect(JNIEnv*, jclass, jint readerHandle) {
  return RFID_Disconnect(static_cast<READER_HANDLE>(readerHandle));
}

}  // extern "C"
