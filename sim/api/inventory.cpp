// Continuous operations: inventory, tag locationing, the NXP EAS scan, and
// purging the tag buffer.
#include <cstdint>
#include <utility>

#include "record/captures.h"
#include "api/c_api.h"
#include "api/call_outcome.h"
#include "reader/operation.h"
#include "reader/antenna_selection.h"
#include "reader/last_error.h"
#include "reader/status.h"
#include "reader/last_error.h"

namespace sim {
namespace {

OperationPlan planFor(OperationKind kind, const Recorder& rec) {
  OperationPlan plan;
  plan.kind = kind;
  plan.antennas = antennaList(capturedOf(rec), "antennaInfo");
  plan.triggers = readTriggers(rec.captured("triggerInfo"));
  plan.triggers.reports = readTagReportPlan(rec, "triggerInfo");
  return plan;
}

int32_t start(Recorder& rec, int64_t handle, bool readable, OperationPlan plan) {
  const CallOutcome call = finishCall(rec, handle, readable);
  if (!call.proceeds()) return call.status;
  return rememberFailure(handle, startOperation(call.reader, std::move(plan)), rec.fn().c_str(),
                         "the reader already runs an inventory, locate, EAS scan or access sequence");
}

int32_t stop(const char* fn, int64_t handle, OperationKind kind) {
  Recorder rec(fn, {raw(handle)});
  const CallOutcome call = finishCall(rec, handle);
  if (!call.proceeds()) return call.status;
  return rememberFailure(handle, stopOperation(*call.reader, kind), fn, "no such operation is running");
}

}  // namespace
}  // namespace sim

using namespace sim;

extern "C" {

int32_t RFID_PerformInventory(int64_t handle, void* postFilter, void* antennaInfo,
                              void* triggerInfo, void* reserved) {
  Recorder rec("RFID_PerformInventory",
               {raw(handle), raw(postFilter), raw(antennaInfo), raw(triggerInfo), raw(reserved)});
  bool readable = captureFilter(rec, "postFilter", postFilter);
  readable = captureAntennaInfo(rec, "antennaInfo", antennaInfo) && readable;
  readable = captureTriggerInfo(rec, "triggerInfo", triggerInfo) && readable;
  OperationPlan plan = planFor(OperationKind::kInventory, rec);
  plan.postFilter = readPostFilter(capturedOf(rec), "postFilter");
  return start(rec, handle, readable, std::move(plan));
}

int32_t RFID_StopInventory(int64_t handle) {
  return stop("RFID_StopInventory", handle, OperationKind::kInventory);
}

int32_t RFID_PurgeTags(int64_t handle, uint32_t flags) {
  Recorder rec("RFID_PurgeTags", {raw(handle), raw(flags)});
  const CallOutcome call = finishCall(rec, handle);
  if (!call.proceeds()) return call.status;
  std::lock_guard<std::mutex> lock(call.reader->mutex);
  call.reader->buffer.clear();
  return kSuccess;
}

int32_t RFID_PerformTagLocationing(int64_t handle, const uint8_t* tagID, uint32_t length,
                                   void* antennaInfo, void* reserved1, void* reserved2) {
  Recorder rec("RFID_PerformTagLocationing", {raw(handle), raw(tagID), raw(length),
                                              raw(antennaInfo), raw(reserved1), raw(reserved2)});
  rec.blob("tagID", tagID, length);
  const Blob& id = rec.captured("tagID");
  bool readable = !id.faulted && (tagID != nullptr || length == 0);
  readable = captureAntennaInfo(rec, "antennaInfo", antennaInfo) && readable;
  OperationPlan plan = planFor(OperationKind::kLocate, rec);
  plan.locateEpc = id.bytes;
  return start(rec, handle, readable, std::move(plan));
}

int32_t RFID_StopTagLocationing(int64_t handle) {
  return stop("RFID_StopTagLocationing", handle, OperationKind::kLocate);
}

int32_t RFID_PerformNXPEASScan(int64_t handle, void* antennaInfo, void* triggerInfo,
                               void* reserved) {
  Recorder rec("RFID_PerformNXPEASScan",
               {raw(handle), raw(antennaInfo), raw(triggerInfo), raw(reserved)});
  bool readable = captureAntennaInfo(rec, "antennaInfo", antennaInfo);
  readable = captureTriggerInfo(rec, "triggerInfo", triggerInfo) && readable;
  return start(rec, handle, readable, planFor(OperationKind::kEasScan, rec));
}

int32_t RFID_StopNXPEASScan(int64_t handle) {
  return stop("RFID_StopNXPEASScan", handle, OperationKind::kEasScan);
}

}  // extern "C"
