// Tag access: single operations, chip-specific and Gen2v2 commands, access
// sequences. Each records what it was sent (tag ID bytes, the operation's
// parameter record with the buffer it points to, filter and antennas), then
// acts on the simulated tags (reader/single_access.h, reader/access_sequence.h)
// unless the test scripted its status or result tag.
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "record/api_call.h"
#include "record/captures.h"
#include "reader/last_error.h"
#include "reader/access_sequence.h"
#include "reader/antenna_selection.h"
#include "reader/single_access.h"
#include "reader/tag_access.h"
#include "reader/operation.h"
#include "reader/triggers.h"
#include "record/captured_fields.h"
#include "reader/session_store.h"
#include "reader/last_error.h"

namespace sim {
namespace {

// A parameter record with the buffer it points to (record/record_layouts.h).
void captureParams(ApiCall& call, const std::string& name, const void* params, const layout::Record& record) {
  layout::captureRecord(call, name, params, record);
}

// The name under which the buffer a parameter record points to is captured,
// after the record's own name and a dot; NULL when it points to none.
const char* pointeeName(const layout::Record& record) {
  for (const layout::Field& field : record.fields) {
    if (field.kind == layout::Kind::Pointer) return field.name;
  }
  return nullptr;
}

// An operation that is NULL or cannot be read, or whose parameter record
// cannot be read, is refused with kInvalidParam.
void captureOperation(ApiCall& call, const void* operation) {
  call.blob("operation", operation, layout::AccessOperation().size);
  call.require(operation);
  const Blob& record = call.captured("operation");
  if (!record.present || record.faulted) {
    call.require(nullptr);
    return;
  }
  layout::capturePointees(call, "operation", "operation", 0, layout::AccessOperation());
  if (call.captured("operation.params").faulted) call.require(nullptr);
}

// What a tag operation with an access filter is sent: the tag ID bytes, the
// parameter record with the buffer it points to, the filter and the
// antennas.
void captureTagOperation(ApiCall& call, const uint8_t* tagID, uint32_t tagIDLength, const void* params,
                         const layout::Record& paramsRecord, const void* filter, const void* antenna) {
  call.blob("tagID", tagID, tagIDLength);
  captureParams(call, "params", params, paramsRecord);
  captureFilter(call, "accessFilter", filter);
  captureAntennaInfo(call, "antennaInfo", antenna);
}

// The operation record of an access sequence with copies of its parameter
// record and of the buffer that points to.
AccessOperation addedOperation(const ApiCall& call) {
  AccessOperation operation;
  operation.op = fieldAt<uint32_t>(call.captured("operation"), 0);
  operation.params = call.captured("operation.params");
  const layout::Record* params = layout::OperationParams(operation.op);
  const char* pointee = params == nullptr ? nullptr : pointeeName(*params);
  if (pointee != nullptr) operation.data = call.captured(std::string("operation.params.") + pointee);
  return operation;
}

std::vector<uint8_t> u32Bytes(uint32_t value) {
  std::vector<uint8_t> bytes;
  putField(&bytes, 0, value);
  return bytes;
}

// Initialising or discarding a sequence starts its indices over.
int32_t answerClearingSequence(ApiCall& call, int64_t handle) {
  int32_t status = call.finish();
  if (status == kSuccess) clearSequence(handle);
  return status;
}

int32_t performSequence(ApiCall& call, int64_t handle, bool readable) {
  const char* fn = "RFID_PerformAccessSequence";
  const int32_t status = call.finish();
  if (call.scripted() || status != kSuccess) return status;
  const ReaderPtr reader = findReader(handle);
  if (!reader) return kInvalidHandle;
  if (!readable) {
    return rememberFailure(handle, kInvalidParam, fn, "a filter, antenna or trigger record cannot be read");
  }
  OperationPlan plan;
  plan.kind = OperationKind::kAccessSequence;
  plan.accessOperations = sequenceOperations(handle);
  if (plan.accessOperations.empty()) {
    return rememberFailure(handle, kInvalidParam, fn, "the access sequence holds no operation");
  }
  plan.antennas = antennaList(capturedOf(call), "antennaInfo");
  plan.postFilter = readPostFilter(capturedOf(call), "accessFilter");
  plan.triggers = readTriggers(call.captured("triggerInfo"));
  return rememberFailure(handle, startOperation(reader, std::move(plan)), fn,
                         "the reader already runs an inventory, locate, EAS scan or access sequence");
}

}  // namespace
}  // namespace sim

using sim::ApiCall;

extern "C" {
// Single operations that return a tag: handle, tag ID, length, parameters,
// filter, antennas, result tag, reserved.

int32_t RFID_Read(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                  void* antenna, void* tag, void* reserved) {
  ApiCall call("RFID_Read", handle, tagID, tagIDLength, params, filter, antenna, tag, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::ReadAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_Read", sim::kOpRead, nullptr, tag);
}

int32_t RFID_BlockPermalock(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                            void* antenna, void* tag, void* reserved) {
  ApiCall call("RFID_BlockPermalock", handle, tagID, tagIDLength, params, filter, antenna, tag, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::BlockPermalockAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_BlockPermalock",
                           sim::kOpBlockPermalock, sim::pointeeName(sim::layout::BlockPermalockAccessParams()), tag);
}

int32_t RFID_NXPChangeConfig(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                             void* antenna, void* tag, void* reserved) {
  ApiCall call("RFID_NXPChangeConfig", handle, tagID, tagIDLength, params, filter, antenna, tag, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::NxpAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_NXPChangeConfig", sim::kOpNxpChangeConfig, nullptr, tag);
}

int32_t RFID_ImpinjQTRead(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                          void* antenna, void* tag, void* reserved) {
  ApiCall call("RFID_ImpinjQTRead", handle, tagID, tagIDLength, params, filter, antenna, tag, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::QtReadAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_ImpinjQTRead", sim::kOpQtRead, nullptr, tag);
}

int32_t RFID_Authenticate(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                          void* antenna, void* tag, void* reserved) {
  ApiCall call("RFID_Authenticate", handle, tagID, tagIDLength, params, filter, antenna, tag, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::AuthenticateAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_Authenticate", sim::kOpAuthenticate, nullptr, tag);
}

int32_t RFID_Untraceable(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                         void* antenna, void* tag, void* reserved) {
  ApiCall call("RFID_Untraceable", handle, tagID, tagIDLength, params, filter, antenna, tag, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::UntraceableAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_Untraceable", sim::kOpUntraceable, nullptr, tag);
}

int32_t RFID_ReadBuffer(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                        void* antenna, void* tag, void* reserved) {
  ApiCall call("RFID_ReadBuffer", handle, tagID, tagIDLength, params, filter, antenna, tag, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::ReadBufferAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_ReadBuffer", sim::kOpReadBuffer, nullptr, tag);
}

int32_t RFID_Crypto(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                    void* antenna, void* tag, void* reserved) {
  ApiCall call("RFID_Crypto", handle, tagID, tagIDLength, params, filter, antenna, tag, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::CryptoAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_Crypto", sim::kOpCrypto, nullptr, tag);
}

// Single operations without a result tag: handle, tag ID, length,
// parameters, filter, antennas, reserved.

int32_t RFID_Write(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                   void* antenna, void* reserved) {
  ApiCall call("RFID_Write", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::WriteAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_Write", sim::kOpWrite, sim::pointeeName(sim::layout::WriteAccessParams()), nullptr);
}

int32_t RFID_BlockWrite(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                        void* antenna, void* reserved) {
  ApiCall call("RFID_BlockWrite", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::WriteAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_BlockWrite",
                           sim::kOpBlockWrite, sim::pointeeName(sim::layout::WriteAccessParams()), nullptr);
}

int32_t RFID_BlockErase(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                        void* antenna, void* reserved) {
  ApiCall call("RFID_BlockErase", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::BlockEraseAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_BlockErase", sim::kOpBlockErase, nullptr, nullptr);
}

int32_t RFID_Lock(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                  void* antenna, void* reserved) {
  ApiCall call("RFID_Lock", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::LockAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_Lock", sim::kOpLock, nullptr, nullptr);
}

int32_t RFID_Kill(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                  void* antenna, void* reserved) {
  ApiCall call("RFID_Kill", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::KillAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_Kill", sim::kOpKill, nullptr, nullptr);
}

int32_t RFID_Recommission(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                          void* antenna, void* reserved) {
  ApiCall call("RFID_Recommission", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::RecommissionAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_Recommission", sim::kOpRecommission, nullptr, nullptr);
}

int32_t RFID_NXPReadProtect(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                            void* antenna, void* reserved) {
  ApiCall call("RFID_NXPReadProtect", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::NxpAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_NXPReadProtect", sim::kOpNxpReadProtect, nullptr, nullptr);
}

int32_t RFID_NXPSetEAS(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                       void* antenna, void* reserved) {
  ApiCall call("RFID_NXPSetEAS", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::NxpAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_NXPSetEAS", sim::kOpNxpSetEas, nullptr, nullptr);
}

int32_t RFID_ImpinjQTWrite(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* filter,
                           void* antenna, void* reserved) {
  ApiCall call("RFID_ImpinjQTWrite", handle, tagID, tagIDLength, params, filter, antenna, reserved);
  sim::captureTagOperation(call, tagID, tagIDLength, params, sim::layout::QtWriteAccessParams(), filter, antenna);
  return sim::answerAccess(call, handle, "RFID_ImpinjQTWrite", sim::kOpQtWrite, nullptr, nullptr);
}

// Writes of one tag field take no filter: handle, tag ID, length,
// parameters, antennas, reserved.

int32_t RFID_WriteAccessPassword(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* antenna,
                                 void* reserved) {
  ApiCall call("RFID_WriteAccessPassword", handle, tagID, tagIDLength, params, antenna, reserved);
  call.blob("tagID", tagID, tagIDLength);
  sim::captureParams(call, "params", params, sim::layout::WriteFieldAccessParams());
  sim::captureAntennaInfo(call, "antennaInfo", antenna);
  return sim::answerAccess(call, handle, "RFID_WriteAccessPassword",
                           sim::kOpWriteAccessPassword, sim::pointeeName(sim::layout::WriteFieldAccessParams()), nullptr);
}

int32_t RFID_WriteKillPassword(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* antenna,
                               void* reserved) {
  ApiCall call("RFID_WriteKillPassword", handle, tagID, tagIDLength, params, antenna, reserved);
  call.blob("tagID", tagID, tagIDLength);
  sim::captureParams(call, "params", params, sim::layout::WriteFieldAccessParams());
  sim::captureAntennaInfo(call, "antennaInfo", antenna);
  return sim::answerAccess(call, handle, "RFID_WriteKillPassword",
                           sim::kOpWriteKillPassword, sim::pointeeName(sim::layout::WriteFieldAccessParams()), nullptr);
}

int32_t RFID_WriteTagID(int64_t handle, const uint8_t* tagID, uint32_t tagIDLength, void* params, void* antenna,
                        void* reserved) {
  ApiCall call("RFID_WriteTagID", handle, tagID, tagIDLength, params, antenna, reserved);
  call.blob("tagID", tagID, tagIDLength);
  sim::captureParams(call, "params", params, sim::layout::WriteFieldAccessParams());
  sim::captureAntennaInfo(call, "antennaInfo", antenna);
  return sim::answerAccess(call, handle, "RFID_WriteTagID",
                           sim::kOpWriteTagId, sim::pointeeName(sim::layout::WriteFieldAccessParams()), nullptr);
}

// The one chip command without a tag ID.
int32_t RFID_NXPResetReadProtect(int64_t handle, void* params, void* antenna, void* reserved) {
  ApiCall call("RFID_NXPResetReadProtect", handle, params, antenna, reserved);
  sim::captureParams(call, "params", params, sim::layout::NxpAccessParams());
  sim::captureAntennaInfo(call, "antennaInfo", antenna);
  return sim::answerAccess(call, handle, "RFID_NXPResetReadProtect", sim::kOpNxpResetReadProtect, nullptr, nullptr);
}

int32_t RFID_InitializeAccessSequence(int64_t handle) {
  ApiCall call("RFID_InitializeAccessSequence", handle);
  return sim::answerClearingSequence(call, handle);
}

int32_t RFID_AddOperationToAccessSequence(int64_t handle, void* operation, uint32_t* index) {
  ApiCall call("RFID_AddOperationToAccessSequence", handle, operation, index);
  sim::captureOperation(call, operation);
  call.outputs({{index, sizeof *index, "index"}}, sim::u32Bytes(sim::nextOperationIndex(handle)));
  int32_t status = call.finish();
  if (status == sim::kSuccess) sim::addOperation(handle, sim::addedOperation(call));
  return status;
}

// An index the sequence does not hold answers kNotFound.
int32_t RFID_DeleteOperationFromAccessSequence(int64_t handle, uint32_t index) {
  ApiCall call("RFID_DeleteOperationFromAccessSequence", handle, index);
  int32_t status = call.finish();
  if (status == sim::kSuccess && !sim::removeOperation(handle, index)) {
    return sim::rememberFailure(handle, sim::kNotFound, "RFID_DeleteOperationFromAccessSequence",
                                "the access sequence holds no operation " + std::to_string(index));
  }
  return status;
}

int32_t RFID_PerformAccessSequence(int64_t handle, void* filter, void* antenna, void* trigger, void* reserved) {
  ApiCall call("RFID_PerformAccessSequence", handle, filter, antenna, trigger, reserved);
  bool readable = sim::captureFilter(call, "accessFilter", filter);
  readable = sim::captureAntennaInfo(call, "antennaInfo", antenna) && readable;
  readable = sim::captureTriggerInfo(call, "triggerInfo", trigger) && readable;
  return sim::performSequence(call, handle, readable);
}

int32_t RFID_StopAccessSequence(int64_t handle) {
  ApiCall call("RFID_StopAccessSequence", handle);
  const int32_t status = call.finish();
  if (call.scripted() || status != sim::kSuccess) return status;
  const sim::ReaderPtr reader = sim::findReader(handle);
  if (!reader) return sim::kInvalidHandle;
  return sim::rememberFailure(handle, sim::stopOperation(*reader, sim::OperationKind::kAccessSequence),
                              "RFID_StopAccessSequence", "no access sequence is running");
}

// The counts of the last run: the operations carried out, then those refused.
int32_t RFID_GetLastAccessResult(int64_t handle, uint32_t* first, uint32_t* second) {
  ApiCall call("RFID_GetLastAccessResult", handle, first, second);
  const sim::AccessCounts counts = sim::accessCounts(handle);
  std::vector<uint8_t> both = sim::u32Bytes(counts.succeeded);
  sim::putField(&both, 4, counts.failed);
  call.outputs({{first, sizeof *first, "first"}, {second, sizeof *second, "second"}}, both);
  return call.finish();
}

int32_t RFID_DeinitializeAccessSequence(int64_t handle) {
  ApiCall call("RFID_DeinitializeAccessSequence", handle);
  return sim::answerClearingSequence(call, handle);
}

}  // extern "C"
