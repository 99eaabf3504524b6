// The event utilities (event objects and waits) and the reader's event
// registration and event data.
#include <cstdint>
#include <algorithm>
#include <vector>

#include "reader/event_objects.h"
#include "api/c_api.h"
#include "api/call_outcome.h"
#include "reader/last_error.h"
#include "reader/event_signals.h"
#include "reader/status.h"

namespace sim {
namespace {

// More handles than one wait takes is a caller's mistake, not a read past
// its array.
constexpr int64_t kMaxWaitObjects = 64;

// A negative time-out waits forever; a larger one than a 32-bit count of
// milliseconds is cut to the longest finite wait.
int32_t waitTimeout(int64_t timeoutMs) {
  if (timeoutMs < 0) return -1;
  return static_cast<int32_t>(std::min<int64_t>(timeoutMs, INT32_MAX));
}

// Set, reset and close answer 1 on success and 0 for an unknown handle.
int32_t handleResult(bool known) { return known ? 1 : 0; }

int32_t getEventData(const CallOutcome& call, uint32_t type, void* record) {
  if (!call.reader) return call.status;
  if (record == nullptr) return call.refused();
  if (writeScriptedOutput("RFID_GetEventData", record, eventDataCapacity(type))) return call.status;
  std::vector<uint8_t> data;
  if (!isEventType(type) || !latestEventData(call.reader->handle, type, &data)) {
    return call.proceeds() ? kNotFound : call.status;
  }
  std::copy(data.begin(), data.end(), static_cast<uint8_t*>(record));
  return call.status;
}

}  // namespace
}  // namespace sim

using namespace sim;

extern "C" {

int64_t rfidUtils_CreateEvent(void* attributes, int32_t manualReset, int32_t initialState,
                              void* name) {
  Recorder rec("rfidUtils_CreateEvent",
               {raw(attributes), raw(manualReset), raw(initialState), raw(name)});
  const int32_t status = rec.finish();
  uint64_t scripted = 0;
  if (scriptedPointer("rfidUtils_CreateEvent", &scripted)) return static_cast<int64_t>(scripted);
  if (status != kSuccess) return 0;
  return createEvent(manualReset != 0, initialState != 0);
}

int32_t rfidUtils_SetEvent(int64_t event) {
  Recorder rec("rfidUtils_SetEvent", {raw(event)});
  const int32_t status = rec.finish();
  return status != kSuccess ? status : handleResult(setEvent(event));
}

int32_t rfidUtils_ResetEvent(int64_t event) {
  Recorder rec("rfidUtils_ResetEvent", {raw(event)});
  const int32_t status = rec.finish();
  return status != kSuccess ? status : handleResult(resetEvent(event));
}

int32_t rfidUtils_CloseHandle(int64_t event) {
  Recorder rec("rfidUtils_CloseHandle", {raw(event)});
  const int32_t status = rec.finish();
  return status != kSuccess ? status : handleResult(closeEvent(event));
}

// Count and time-out arrive as 64-bit values (callers sign-extend their
// ints); a negative time-out waits forever, a count of 0 or less waits on
// nothing.
int32_t rfidUtils_WaitForSingleObject(int64_t event, int64_t timeoutMs) {
  Recorder rec("rfidUtils_WaitForSingleObject", {raw(event), raw(timeoutMs)});
  const int32_t status = rec.finish();
  return status != kSuccess ? status : waitForEvents({event}, false, waitTimeout(timeoutMs));
}

int32_t rfidUtils_WaitForMultipleObjects(int64_t count, const int64_t* handles, uint8_t waitAll,
                                         int64_t timeoutMs) {
  Recorder rec("rfidUtils_WaitForMultipleObjects",
               {raw(count), raw(handles), raw(waitAll), raw(timeoutMs)});
  if (count > kMaxWaitObjects) {
    rec.finish();
    return kWaitFailed;
  }
  rec.blob("handles", handles, static_cast<size_t>(std::max<int64_t>(count, 0)) * sizeof(int64_t));
  const Blob& captured = rec.captured("handles");
  const int32_t status = rec.finish();
  if (status != kSuccess) return status;
  if (!captured.present || captured.faulted) return kWaitFailed;
  std::vector<int64_t> events;
  for (size_t at = 0; at < captured.bytes.size(); at += sizeof(int64_t)) {
    events.push_back(fieldAt<int64_t>(captured, at));
  }
  return waitForEvents(events, waitAll != 0, waitTimeout(timeoutMs));
}

int32_t RFID_RegisterEventNotification(int64_t handle, uint32_t type, int64_t event) {
  Recorder rec("RFID_RegisterEventNotification", {raw(handle), raw(type), raw(event)});
  const CallOutcome call = finishCall(rec, handle);
  if (!call.proceeds()) return call.status;
  const char* fn = "RFID_RegisterEventNotification";
  if (!isEventType(type)) return rememberFailure(handle, kNotFound, fn, "no event type " + std::to_string(type));
  if (!eventExists(event)) return rememberFailure(handle, kInvalidParam, fn, "the event handle is not an event");
  registerEvent(handle, type, event);
  return kSuccess;
}

int32_t RFID_DeregisterEventNotification(int64_t handle, uint32_t type) {
  Recorder rec("RFID_DeregisterEventNotification", {raw(handle), raw(type)});
  const CallOutcome call = finishCall(rec, handle);
  if (!call.proceeds()) return call.status;
  if (deregisterEvent(handle, type)) return kSuccess;
  return rememberFailure(handle, kNotFound, "RFID_DeregisterEventNotification",
                         "nothing is registered for event type " + std::to_string(type));
}

int32_t RFID_GetEventData(int64_t handle, uint32_t type, void* record) {
  Recorder rec("RFID_GetEventData", {raw(handle), raw(type), raw(record)});
  return getEventData(finishCall(rec, handle), type, record);
}

}  // extern "C"
