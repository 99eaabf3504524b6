// Parameter records of access-sequence operations, filled through the
// shared field accessors.
#include "access/sequence_params.h"

#include <cstddef>
#include <cstdint>

#include "bridge/c_bool.h"
#include "bridge/enum_field.h"
#include "bridge/unsigned_fields.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

constexpr const char* kMemoryBankSignature = "Lcom/kovra/rfid/orla/MEMORY_BANK;";
constexpr const char* kRecommissionCodeSignature = "Lcom/kovra/rfid/orla/RECOMMISSION_OPERATION_CODE;";
constexpr const char* kQtDataSignature = "Lcom/kovra/rfid/orla/IMPINJ_QT_DATA;";

// Whether a record is cleared after allocation or keeps what the heap gave.
constexpr bool kZeroed = true;
constexpr bool kAsAllocated = false;

// ACCESS_OPERATION_CODE values that carry a parameter record.
enum : uint32_t {
  kOpRead = 0,
  kOpWrite = 1,
  kOpLock = 2,
  kOpKill = 3,
  kOpBlockWrite = 4,
  kOpBlockErase = 5,
  kOpRecommission = 6,
  kOpBlockPermalock = 7,
  kOpNxpSetEas = 8,
  kOpNxpReadProtect = 9,
  kOpNxpResetReadProtect = 10,
  kOpImpinjQtWrite = 20,
  kOpImpinjQtRead = 21,
  kOpNxpChangeConfig = 22,
};

template <class Record>
void deleteAs(void* record) {
  delete static_cast<Record*>(record);
}

// Read and block erase share their fields.
template <class Record>
void fillMemoryRange(JNIEnv* env, jobject params, Record* record) {
  record->memoryBank = getEnumFieldFromJobject(env, params, "memoryBank", kMemoryBankSignature);
  record->byteOffset = getUint16FromJobject(env, params, "byteOffset");
  record->byteCount = getUint16FromJobject(env, params, "byteCount");
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
}

// Returns the data buffer of writeDataLength bytes that the record points
// at. The Java array must hold at least that many bytes.
uint8_t* fillWrite(JNIEnv* env, jobject params, WRITE_ACCESS_PARAMS* record) {
  record->byteOffset = getUint16FromJobject(env, params, "byteOffset");
  record->writeDataLength = getUint16FromJobject(env, params, "writeDataLength");
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->writeData = new uint8_t[record->writeDataLength];
  getByteArrayInJobject(env, params, "writeData", record->writeData, record->writeDataLength);
  record->memoryBank = getEnumFieldFromJobject(env, params, "memoryBank", kMemoryBankSignature);
  return record->writeData;
}

// Returns the buffer the five privileges were read into before widening.
uint16_t* fillLock(JNIEnv* env, jobject params, LOCK_ACCESS_PARAMS* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  auto* privileges = new uint16_t[kLockPrivilegeCount];
  getShortArrayInJobject(env, params, "enumPrivilege", privileges, static_cast<int>(kLockPrivilegeCount));
  for (size_t i = 0; i < kLockPrivilegeCount; ++i) record->enumPrivilege[i] = privileges[i];
  return privileges;
}

void fillKill(JNIEnv* env, jobject params, KILL_ACCESS_PARAMS* record) {
  record->killPassword = getLowUint32FromJobject(env, params, "killPassword");
}

void fillRecommission(JNIEnv* env, jobject params, RECOMMISSION_ACCESS_PARAMS* record) {
  record->killPassword = getLowUint32FromJobject(env, params, "killPassword");
  record->opCode = getEnumFieldFromJobject(env, params, "opCode", kRecommissionCodeSignature);
}

// The mask buffer of maskLength bytes is allocated even when empty, and
// the Java "mask" is read only for a length other than 0. Nothing here
// frees the buffer: the caller leaves it to the operation record.
void fillBlockPermalock(JNIEnv* env, jobject params, BLOCK_PERMALOCK_ACCESS_PARAMS* record) {
  record->memoryBank = getEnumFieldFromJobject(env, params, "memoryBank", kMemoryBankSignature);
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->byteOffset = getUint16FromJobject(env, params, "byteOffset");
  record->byteCount = getUint16FromJobject(env, params, "byteCount");
  record->maskLength = getUint16FromJobject(env, params, "maskLength");
  record->readLock = getCBoolFromJobject(env, params, "readLock");
  record->mask = new uint8_t[record->maskLength];
  if (record->maskLength != 0) getByteArrayInJobject(env, params, "mask", record->mask, record->maskLength);
}

// NXP read protect, NXP reset read protect and Impinj QT read carry only
// the password.
template <class Record>
void fillAccessPassword(JNIEnv* env, jobject params, Record* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
}

void fillNxpSetEas(JNIEnv* env, jobject params, NXP_SET_EAS_PARAMS* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->EASState = getCBoolFromJobject(env, params, "EASState");
}

void fillImpinjQtWrite(JNIEnv* env, jobject params, IMPINJ_QT_WRITE_PARAMS* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->qtPersist = getCBoolFromJobject(env, params, "qtPersist");
  jobject qtData = getJobjectFromJobject(env, params, "qtData", kQtDataSignature);
  record->qtControlData = getUint16FromJobject(env, qtData, "qtControlData");
}

void fillNxpChangeConfig(JNIEnv* env, jobject params, NXP_CHANGE_CONFIG_PARAMS* record) {
  record->accessPassword = getLowUint32FromJobject(env, params, "accessPassword");
  record->ChangeConfigWord = getUint16FromJobject(env, params, "ChangeConfigWord");
}

}  // namespace

namespace orla {

template <class Record, class Filler>
void SequenceParams::build(JNIEnv* env, jobject operation, const char* field, const char* signature, bool zeroed,
                           Filler fill) {
  jobject params = getJobjectFromJobject(env, operation, field, signature);
  Record* record = zeroed ? new Record() : new Record;
  record_ = record;
  deleteRecord_ = &deleteAs<Record>;
  fill(env, params, record);
}

void* SequenceParams::fill(JNIEnv* env, jobject operation, uint32_t opCode) {
  switch (opCode) {
    case kOpRead:
      build<READ_ACCESS_PARAMS>(env, operation, "readAccessParamsStruct", "Lcom/kovra/rfid/orla/READ_ACCESS_PARAMS;",
                                kAsAllocated, fillMemoryRange<READ_ACCESS_PARAMS>);
      break;
    case kOpWrite:
    case kOpBlockWrite:  // a block write takes its data from the write parameters
      build<WRITE_ACCESS_PARAMS>(env, operation, "writeAccessParamsStruct",
                                 "Lcom/kovra/rfid/orla/WRITE_ACCESS_PARAMS;", kZeroed,
                                 [this](JNIEnv* e, jobject p, WRITE_ACCESS_PARAMS* r) {
                                   writeData_ = fillWrite(e, p, r);
                                 });
      break;
    case kOpLock:
      build<LOCK_ACCESS_PARAMS>(env, operation, "lockAccessParamsStruct", "Lcom/kovra/rfid/orla/LOCK_ACCESS_PARAMS;",
                                kAsAllocated, [this](JNIEnv* e, jobject p, LOCK_ACCESS_PARAMS* r) {
                                  privileges_ = fillLock(e, p, r);
                                });
      break;
    case kOpKill:
      build<KILL_ACCESS_PARAMS>(env, operation, "killAccessParamsStruct", "Lcom/kovra/rfid/orla/KILL_ACCESS_PARAMS;",
                                kAsAllocated, fillKill);
      break;
    case kOpBlockErase:
      build<BLOCK_ERASE_ACCESS_PARAMS>(env, operation, "blockEraseAccessParamsStruct",
                                       "Lcom/kovra/rfid/orla/BLOCK_ERASE_ACCESS_PARAMS;", kAsAllocated,
                                       fillMemoryRange<BLOCK_ERASE_ACCESS_PARAMS>);
      break;
    case kOpRecommission:
      build<RECOMMISSION_ACCESS_PARAMS>(env, operation, "recommissionAccessParamsStruct",
                                        "Lcom/kovra/rfid/orla/RECOMMISSION_ACCESS_PARAMS;", kZeroed, fillRecommission);
      break;
    case kOpBlockPermalock:
      build<BLOCK_PERMALOCK_ACCESS_PARAMS>(env, operation, "blockPermalockAccessParamsStruct",
                                           "Lcom/kovra/rfid/orla/BLOCK_PERMALOCK_ACCESS_PARAMS;", kZeroed,
                                           fillBlockPermalock);
      break;
    case kOpNxpSetEas:
      build<NXP_SET_EAS_PARAMS>(env, operation, "setEASParamsStruct", "Lcom/kovra/rfid/orla/NXP_SET_EAS_PARAMS;",
                                kZeroed, fillNxpSetEas);
      break;
    case kOpNxpReadProtect:
      build<NXP_READ_PROTECT_PARAMS>(env, operation, "readProtectParamsStruct",
                                     "Lcom/kovra/rfid/orla/NXP_READ_PROTECT_PARAMS;", kZeroed,
                                     fillAccessPassword<NXP_READ_PROTECT_PARAMS>);
      break;
    case kOpNxpResetReadProtect:
      build<NXP_RESET_READ_PROTECT_PARAMS>(env, operation, "resetReadProtectParamsStruct",
                                           "Lcom/kovra/rfid/orla/NXP_RESET_READ_PROTECT_PARAMS;", kZeroed,
                                           fillAccessPassword<NXP_RESET_READ_PROTECT_PARAMS>);
      break;
    case kOpImpinjQtWrite:
      build<IMPINJ_QT_WRITE_PARAMS>(env, operation, "QTWriteParamsStruct",
                                    "Lcom/kovra/rfid/orla/IMPINJ_QT_WRITE_PARAMS;", kZeroed, fillImpinjQtWrite);
      break;
    case kOpImpinjQtRead:
      build<IMPINJ_QT_READ_PARAMS>(env, operation, "QTReadParamsStruct", "Lcom/kovra/rfid/orla/IMPINJ_QT_READ_PARAMS;",
                                   kZeroed, fillAccessPassword<IMPINJ_QT_READ_PARAMS>);
      break;
    case kOpNxpChangeConfig:
      build<NXP_CHANGE_CONFIG_PARAMS>(env, operation, "nxpChangeConfigParamsStruct",
                                      "Lcom/kovra/rfid/orla/NXP_CHANGE_CONFIG_PARAMS;", kZeroed, fillNxpChangeConfig);
      break;
    default:  // 11 to 19, the Gen2v2 codes and anything newer: no parameters
      break;
  }
  return record_;
}

void SequenceParams::release() {
  delete[] writeData_;
  writeData_ = nullptr;
  if (record_ != nullptr) deleteRecord_(record_);
  record_ = nullptr;
  delete[] privileges_;
  privileges_ = nullptr;
}

}  // namespace orla
