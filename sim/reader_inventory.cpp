// Continuous operations: inventory, tag locationing, the NXP EAS scan, and
// purging the tag buffer.
#include <cstdint>
#include <utility>

#include "capture_read.h"
#include "reader_bytes.h"
#include "reader_call.h"
#include "reader_operation.h"
#include "status.h"

namespace sim {
namespace {

constexpr uint32_t kMaxTagIdBytes = 0xFFFF;
constexpr uint32_t kMaxAntennas = 0xFFFF;

// The antennas an ANTENNA_INFO selects; empty (every antenna) for a NULL
// record or a length of 0.
std::vector<uint16_t> readAntennas(const void* antennaInfo) {
  if (antennaInfo == nullptr) return {};
  const uint8_t* list = loadPtr(antennaInfo, 0);
  const uint32_t length = load<uint32_t>(antennaInfo, 8);
  if (list == nullptr) return {};
  std::vector<uint16_t> antennas;
  for (uint32_t i = 0; i < length && i < kMaxAntennas; ++i) {
    antennas.push_back(load<uint16_t>(list, 2 * i));
  }
  return antennas;
}

OperationPlan planFor(OperationKind kind, const void* antennaInfo, const void* triggerInfo) {
  OperationPlan plan;
  plan.kind = kind;
  plan.antennas = readAntennas(antennaInfo);
  plan.triggers = readTriggers(triggerInfo);
  return plan;
}

int32_t start(Recorder& rec, int64_t handle, OperationPlan plan) {
  const CallOutcome call = finishCall(rec, handle);
  if (!call.proceeds()) return call.status;
  return startOperation(call.reader, std::move(plan));
}

int32_t stop(const char* fn, int64_t handle, OperationKind kind) {
  Recorder rec(fn, {raw(handle)});
  const CallOutcome call = finishCall(rec, handle);
  if (!call.proceeds()) return call.status;
  return stopOperation(*call.reader, kind);
}

}  // namespace
}  // namespace sim

using namespace sim;

extern "C" {

int32_t RFID_PerformInventory(int64_t handle, void* postFilter, void* antennaInfo,
                              void* triggerInfo, void* reserved) {
  Recorder rec("RFID_PerformInventory",
               {raw(handle), raw(postFilter), raw(antennaInfo), raw(triggerInfo), raw(reserved)});
  captureFilter(rec, "postFilter", postFilter);
  captureAntennaInfo(rec, "antennaInfo", antennaInfo);
  captureTriggerInfo(rec, "triggerInfo", triggerInfo);
  OperationPlan plan = planFor(OperationKind::kInventory, antennaInfo, triggerInfo);
  if (postFilter != nullptr) plan.postFilter = readPostFilter(postFilter);
  return start(rec, handle, std::move(plan));
}

int32_t RFID_StopInventory(int64_t handle) {
  return stop("RFID_StopInventory", handle, OperationKind::kInventory);
}

int32_t RFID_PurgeTags(int64_t handle, uint32_t flags) {
  Recorder rec("RFID_PurgeTags", {raw(handle), flags});
  const CallOutcome call = finishCall(rec, handle);
  if (!call.proceeds()) return call.status;
  std::lock_guard<std::mutex> lock(call.reader->mutex);
  call.reader->buffer.clear();
  return kSuccess;
}

int32_t RFID_PerformTagLocationing(int64_t handle, const uint8_t* tagID, uint32_t length,
                                   void* antennaInfo, void* reserved1, void* reserved2) {
  Recorder rec("RFID_PerformTagLocationing", {raw(handle), raw(tagID), length, raw(antennaInfo),
                                              raw(reserved1), raw(reserved2)});
  const uint32_t n = length > kMaxTagIdBytes ? kMaxTagIdBytes : length;
  rec.blob("tagID", tagID, n);
  captureAntennaInfo(rec, "antennaInfo", antennaInfo);
  OperationPlan plan = planFor(OperationKind::kLocate, antennaInfo, nullptr);
  if (tagID != nullptr) plan.locateEpc.assign(tagID, tagID + n);
  if (tagID == nullptr && n > 0) {
    const int32_t status = rec.finish();
    return status != kSuccess ? status : kInvalidParam;
  }
  return start(rec, handle, std::move(plan));
}

int32_t RFID_StopTagLocationing(int64_t handle) {
  return stop("RFID_StopTagLocationing", handle, OperationKind::kLocate);
}

int32_t RFID_PerformNXPEASScan(int64_t handle, void* antennaInfo, void* triggerInfo,
                               void* reserved) {
  Recorder rec("RFID_PerformNXPEASScan",
               {raw(handle), raw(antennaInfo), raw(triggerInfo), raw(reserved)});
  captureAntennaInfo(rec, "antennaInfo", antennaInfo);
  captureTriggerInfo(rec, "triggerInfo", triggerInfo);
  return start(rec, handle, planFor(OperationKind::kEasScan, antennaInfo, triggerInfo));
}

int32_t RFID_StopNXPEASScan(int64_t handle) {
  return stop("RFID_StopNXPEASScan", handle, OperationKind::kEasScan);
}

}  // extern "C"
