// Parameter records of the single tag access operations, and the fillers
// that the access sequences share. Fields are read in the order each record
// lists them below; a record that is not zeroed keeps whatever its padding
// and reserved bytes held.
#include "access/access_params.h"

#include <cstddef>
#include <cstdint>

#include "bridge/c_bool.h"
#include "bridge/enum_field.h"
#include "bridge/pinned_array.h"
#include "bridge/unsigned_fields.h"
#include "jni_fields.h"

namespace {

constexpr const char* kMemoryBankSignature = "Lcom/kovra/rfid/orla/MEMORY_BANK;";
constexpr const char* kRecommissionOpCodeSignature = "Lcom/kovra/rfid/orla/RECOMMISSION_OPERATION_CODE;";
constexpr const char* kQtDataSignature = "Lcom/kovra/rfid/orla/IMPINJ_QT_DATA;";
constexpr const char* kTidHideStateSignature = "Lcom/kovra/rfid/orla/TID_HIDE_STATE;";
constexpr const char* kOperatingRangeSignature = "Lcom/kovra/rfid/orla/TAG_OPERATING_RANGE;";

// A buffer of count bytes holding the first count bytes of a byte[] field.
// The array is pinned and released even when count is 0.
uint8_t* newByteCopy(JNIEnv* env, jobject object, const char* name, uint16_t count) {
  auto* bytes = new uint8_t[count];
  getByteArrayInJobject(env, object, name, bytes, count);
  return bytes;
}

// Frees the buffer a record points at, clears the pointer, then frees the
// record; nothing for NULL.
template <class Record, class Buffer>
void deleteWithBuffer(Record* record, Buffer* Record::*buffer) {
  if (record == nullptr) return;
  delete[] (record->*buffer);
  record->*buffer = nullptr;
  delete record;
}

}  // namespace

// The fillers shared with the access sequences.

template <class Record>
void fillMemoryRangeParams(JNIEnv* env, jobject params, Record* record) {
  record->memoryBank = getEnumFieldFromJobject(env, params, "memoryBank", kMemoryBankSignature);
  record->byteOffset = getUint16FromJobject(env, params, "byteOffset");
  record->byteCount = getUint16FromJobject(env, params, "byteCount");
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
}
template void fillMemoryRangeParams(JNIEnv*, jobject, READ_ACCESS_PARAMS*);
template void fillMemoryRangeParams(JNIEnv*, jobject, BLOCK_ERASE_ACCESS_PARAMS*);

void fillWriteParams(JNIEnv* env, jobject params, WRITE_ACCESS_PARAMS* record) {
  record->byteOffset = getUint16FromJobject(env, params, "byteOffset");
  record->writeDataLength = getUint16FromJobject(env, params, "writeDataLength");
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->writeData = newByteCopy(env, params, "writeData", record->writeDataLength);
  record->memoryBank = getEnumFieldFromJobject(env, params, "memoryBank", kMemoryBankSignature);
}

// A shorter Java array is read past its end.
uint16_t* fillLockParams(JNIEnv* env, jobject params, LOCK_ACCESS_PARAMS* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  auto* privileges = new uint16_t[kLockPrivilegeCount];
  getShortArrayInJobject(env, params, "enumPrivilege", privileges, static_cast<int>(kLockPrivilegeCount));
  for (size_t i = 0; i < kLockPrivilegeCount; ++i) record->enumPrivilege[i] = privileges[i];
  return privileges;
}

void fillKillParams(JNIEnv* env, jobject params, KILL_ACCESS_PARAMS* record) {
  record->killPassword = getLowUint32FromJobject(env, params, "killPassword");
}

void fillBlockPermalockParams(JNIEnv* env, jobject params, BLOCK_PERMALOCK_ACCESS_PARAMS* record) {
  record->memoryBank = getEnumFieldFromJobject(env, params, "memoryBank", kMemoryBankSignature);
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->byteOffset = getUint16FromJobject(env, params, "byteOffset");
  record->byteCount = getUint16FromJobject(env, params, "byteCount");
  record->maskLength = getUint16FromJobject(env, params, "maskLength");
  record->readLock = toCBool(getBoolFromJobject(env, params, "readLock"));
  record->mask = new uint8_t[record->maskLength];
  if (record->maskLength != 0) getByteArrayInJobject(env, params, "mask", record->mask, record->maskLength);
}

void fillRecommissionParams(JNIEnv* env, jobject params, RECOMMISSION_ACCESS_PARAMS* record) {
  record->killPassword = getLowUint32FromJobject(env, params, "killPassword");
  record->opCode = getEnumFieldFromJobject(env, params, "opCode", kRecommissionOpCodeSignature);
}

template <class Record>
void fillAccessPasswordParams(JNIEnv* env, jobject params, Record* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
}
template void fillAccessPasswordParams(JNIEnv*, jobject, NXP_READ_PROTECT_PARAMS*);
template void fillAccessPasswordParams(JNIEnv*, jobject, NXP_RESET_READ_PROTECT_PARAMS*);
template void fillAccessPasswordParams(JNIEnv*, jobject, IMPINJ_QT_READ_PARAMS*);

void fillNxpSetEasParams(JNIEnv* env, jobject params, NXP_SET_EAS_PARAMS* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->EASState = toCBool(getBoolFromJobject(env, params, "EASState"));
}

void fillNxpChangeConfigParams(JNIEnv* env, jobject params, NXP_CHANGE_CONFIG_PARAMS* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->ChangeConfigWord = getUint16FromJobject(env, params, "ChangeConfigWord");
}

void fillImpinjQtWriteParams(JNIEnv* env, jobject params, IMPINJ_QT_WRITE_PARAMS* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->qtPersist = toCBool(getBoolFromJobject(env, params, "qtPersist"));
  jobject qtData = getJobjectFromJobject(env, params, "qtData", kQtDataSignature);
  record->qtControlData = getUint16FromJobject(env, qtData, "qtControlData");
}

// Gen2 operations.

READ_ACCESS_PARAMS* fillReadParams(JNIEnv* env, jobject params, READ_ACCESS_PARAMS* record) {
  if (params == nullptr) return nullptr;
  fillMemoryRangeParams(env, params, record);
  return record;
}

WRITE_ACCESS_PARAMS* newWriteParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new WRITE_ACCESS_PARAMS();
  fillWriteParams(env, params, record);
  return record;
}

void deleteWriteParams(WRITE_ACCESS_PARAMS* record) { deleteWithBuffer(record, &WRITE_ACCESS_PARAMS::writeData); }

BLOCK_ERASE_ACCESS_PARAMS* newBlockEraseParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new BLOCK_ERASE_ACCESS_PARAMS;
  fillMemoryRangeParams(env, params, record);
  return record;
}

LOCK_ACCESS_PARAMS* newLockParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new LOCK_ACCESS_PARAMS;
  uint16_t* privileges = fillLockParams(env, params, record);
  delete[] privileges;  // the single operation needs them no longer
  return record;
}

KILL_ACCESS_PARAMS* newKillParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new KILL_ACCESS_PARAMS;
  fillKillParams(env, params, record);
  return record;
}

BLOCK_PERMALOCK_ACCESS_PARAMS* newBlockPermalockParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new BLOCK_PERMALOCK_ACCESS_PARAMS;
  fillBlockPermalockParams(env, params, record);
  return record;
}

void deleteBlockPermalockParams(BLOCK_PERMALOCK_ACCESS_PARAMS* record) {
  deleteWithBuffer(record, &BLOCK_PERMALOCK_ACCESS_PARAMS::mask);
}

RECOMMISSION_ACCESS_PARAMS* newRecommissionParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new RECOMMISSION_ACCESS_PARAMS;
  fillRecommissionParams(env, params, record);
  return record;
}

WRITE_FIELD_ACCESS_PARAMS* newWriteFieldParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new WRITE_FIELD_ACCESS_PARAMS;
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->writeDataLength = getUint16FromJobject(env, params, "writeDataLength");
  record->writeData = newByteCopy(env, params, "writeData", record->writeDataLength);
  return record;
}

void deleteWriteFieldParams(WRITE_FIELD_ACCESS_PARAMS* record) {
  deleteWithBuffer(record, &WRITE_FIELD_ACCESS_PARAMS::writeData);
}

// NXP and Impinj commands.

NXP_READ_PROTECT_PARAMS* newNxpReadProtectParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new NXP_READ_PROTECT_PARAMS();
  fillAccessPasswordParams(env, params, record);
  return record;
}

NXP_RESET_READ_PROTECT_PARAMS* newNxpResetReadProtectParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new NXP_RESET_READ_PROTECT_PARAMS();
  fillAccessPasswordParams(env, params, record);
  return record;
}

NXP_SET_EAS_PARAMS* newNxpSetEasParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new NXP_SET_EAS_PARAMS();
  fillNxpSetEasParams(env, params, record);
  return record;
}

NXP_CHANGE_CONFIG_PARAMS* newNxpChangeConfigParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new NXP_CHANGE_CONFIG_PARAMS();
  fillNxpChangeConfigParams(env, params, record);
  return record;
}

IMPINJ_QT_WRITE_PARAMS* newImpinjQtWriteParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new IMPINJ_QT_WRITE_PARAMS();
  fillImpinjQtWriteParams(env, params, record);
  return record;
}

IMPINJ_QT_READ_PARAMS* newImpinjQtReadParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new IMPINJ_QT_READ_PARAMS();
  fillAccessPasswordParams(env, params, record);
  return record;
}

// Gen2v2 commands.

// Bits of the message beyond the last whole byte are not sent.
AUTHENTICATE_PARAMS* newAuthenticateParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new AUTHENTICATE_PARAMS();
  record->sendRsp = toCBool(getBoolFromJobject(env, params, "sendRsp"));
  record->incRespLen = toCBool(getBoolFromJobject(env, params, "incRespLen"));
  record->CSI = getUint8FromJobject(env, params, "CSI");
  record->length = getUint16FromJobject(env, params, "length");
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->pMessage = newByteCopy(env, params, "pMessage", record->length / 8);
  return record;
}

void fillUntraceableParams(JNIEnv* env, jobject params, UNTRACEABLE_PARAMS* record) {
  *record = UNTRACEABLE_PARAMS();
  record->assertU = toCBool(getBoolFromJobject(env, params, "assertU"));
  record->hideEPC = toCBool(getBoolFromJobject(env, params, "hideEPC"));
  record->EPCLength = getUint8FromJobject(env, params, "EPCLength");
  record->hideUser = toCBool(getBoolFromJobject(env, params, "hideUser"));
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->hideTID = getEnumFieldFromJobject(env, params, "hideTID", kTidHideStateSignature);
  record->operatingRange = getEnumFieldFromJobject(env, params, "operatingRange", kOperatingRangeSignature);
}

void fillReadBufferParams(JNIEnv* env, jobject params, READ_BUFFER_PARAMS* record) {
  record->wordPtr = getUint16FromJobject(env, params, "wordPtr");
  record->bitCount = getUint16FromJobject(env, params, "bitCount");
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
}

// Exactly three challenge words are read, whatever the Java array's length.
CRYPTO_PARAMS* newCryptoParams(JNIEnv* env, jobject params) {
  if (params == nullptr) return nullptr;
  auto* record = new CRYPTO_PARAMS();
  record->keyID = getUint8FromJobject(env, params, "keyID");
  record->customData = toCBool(getBoolFromJobject(env, params, "customData"));
  record->profile = getUint8FromJobject(env, params, "profile");
  record->offset = getUint8FromJobject(env, params, "offset");
  record->blockCount = getUint8FromJobject(env, params, "blockCount");
  record->protMode = getUint8FromJobject(env, params, "protMode");
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  auto challenge = static_cast<jintArray>(getJobjectFromJobject(env, params, "IChallenge", "[I"));
  const orla::PinnedArray<jintArray> words(env, challenge);
  for (size_t i = 0; i < kIChallengeWords; ++i) record->IChallenge[i] = static_cast<uint32_t>(words[static_cast<jsize>(i)]);
  return record;
}
