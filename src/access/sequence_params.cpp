// Parameter records of access-sequence operations, filled by the same
// fillers as the single operations' records.
#include "access/sequence_params.h"

#include <cstddef>
#include <cstdint>

#include "access/access_params.h"
#include "jni_fields.h"
#include "reader_api.h"

namespace {

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
                                kAsAllocated, fillMemoryRangeParams<READ_ACCESS_PARAMS>);
      break;
    case kOpWrite:
    case kOpBlockWrite:  // a block write takes its data from the write parameters
      build<WRITE_ACCESS_PARAMS>(env, operation, "writeAccessParamsStruct",
                                 "Lcom/kovra/rfid/orla/WRITE_ACCESS_PARAMS;", kZeroed,
                                 [this](JNIEnv* e, jobject p, WRITE_ACCESS_PARAMS* r) {
                                   fillWriteParams(e, p, r);
                                   writeData_ = r->writeData;
                                 });
      break;
    case kOpLock:
      build<LOCK_ACCESS_PARAMS>(env, operation, "lockAccessParamsStruct", "Lcom/kovra/rfid/orla/LOCK_ACCESS_PARAMS;",
                                kAsAllocated, [this](JNIEnv* e, jobject p, LOCK_ACCESS_PARAMS* r) {
                                  privileges_ = fillLockParams(e, p, r);
                                });
      break;
    case kOpKill:
      build<KILL_ACCESS_PARAMS>(env, operation, "killAccessParamsStruct", "Lcom/kovra/rfid/orla/KILL_ACCESS_PARAMS;",
                                kAsAllocated, fillKillParams);
      break;
    case kOpBlockErase:
      build<BLOCK_ERASE_ACCESS_PARAMS>(env, operation, "blockEraseAccessParamsStruct",
                                       "Lcom/kovra/rfid/orla/BLOCK_ERASE_ACCESS_PARAMS;", kAsAllocated,
                                       fillMemoryRangeParams<BLOCK_ERASE_ACCESS_PARAMS>);
      break;
    case kOpRecommission:
      build<RECOMMISSION_ACCESS_PARAMS>(env, operation, "recommissionAccessParamsStruct",
                                        "Lcom/kovra/rfid/orla/RECOMMISSION_ACCESS_PARAMS;", kZeroed,
                                        fillRecommissionParams);
      break;
    case kOpBlockPermalock:
      build<BLOCK_PERMALOCK_ACCESS_PARAMS>(env, operation, "blockPermalockAccessParamsStruct",
                                           "Lcom/kovra/rfid/orla/BLOCK_PERMALOCK_ACCESS_PARAMS;", kZeroed,
                                           fillBlockPermalockParams);
      break;
    case kOpNxpSetEas:
      build<NXP_SET_EAS_PARAMS>(env, operation, "setEASParamsStruct", "Lcom/kovra/rfid/orla/NXP_SET_EAS_PARAMS;",
                                kZeroed, fillNxpSetEasParams);
      break;
    case kOpNxpReadProtect:
      build<NXP_READ_PROTECT_PARAMS>(env, operation, "readProtectParamsStruct",
                                     "Lcom/kovra/rfid/orla/NXP_READ_PROTECT_PARAMS;", kZeroed,
                                     fillAccessPasswordParams<NXP_READ_PROTECT_PARAMS>);
      break;
    case kOpNxpResetReadProtect:
      build<NXP_RESET_READ_PROTECT_PARAMS>(env, operation, "resetReadProtectParamsStruct",
                                           "Lcom/kovra/rfid/orla/NXP_RESET_READ_PROTECT_PARAMS;", kZeroed,
                                           fillAccessPasswordParams<NXP_RESET_READ_PROTECT_PARAMS>);
      break;
    case kOpImpinjQtWrite:
      build<IMPINJ_QT_WRITE_PARAMS>(env, operation, "QTWriteParamsStruct",
                                    "Lcom/kovra/rfid/orla/IMPINJ_QT_WRITE_PARAMS;", kZeroed, fillImpinjQtWriteParams);
      break;
    case kOpImpinjQtRead:
      build<IMPINJ_QT_READ_PARAMS>(env, operation, "QTReadParamsStruct", "Lcom/kovra/rfid/orla/IMPINJ_QT_READ_PARAMS;",
                                   kZeroed, fillAccessPasswordParams<IMPINJ_QT_READ_PARAMS>);
      break;
    case kOpNxpChangeConfig:
      build<NXP_CHANGE_CONFIG_PARAMS>(env, operation, "nxpChangeConfigParamsStruct",
                                      "Lcom/kovra/rfid/orla/NXP_CHANGE_CONFIG_PARAMS;", kZeroed,
                                      fillNxpChangeConfigParams);
      break;
    default:  // 11 to 19, the Gen2v2 codes and anything newer: no parameters
      break;
  }
  return record_;
}

void SequenceParams::release() {
  delete[] writeData_;
  if (record_ != nullptr) deleteRecord_(record_);
  delete[] privileges_;
}

}  // namespace orla
