// Reader settings that shape reading: pre-filters, tag storage settings and
// singulation control.
#include <algorithm>
#include <cstdint>

#include "record/captures.h"
#include "api/c_api.h"
#include "api/call_outcome.h"
#include "reader/capabilities.h"
#include "reader/last_error.h"
#include "reader/status.h"

namespace sim {
namespace {

bool validAntenna(uint16_t antenna) { return antenna >= 1 && antenna <= kAntennaCount; }

// Antenna 0 stands for every antenna where a pre-filter is added or deleted.
std::string preFilterAntennaProblem(uint16_t antenna) {
  return antenna == 0 ? std::string() : antennaProblem(antenna);
}

// `usable` false: a record or the index could not be read, so the index is
// not written either.
int32_t addPreFilter(const CallOutcome& call, uint16_t antenna, const PreFilterRule& rule,
                     bool usable, uint32_t* index) {
  if (!usable || (antenna != 0 && !validAntenna(antenna))) return call.refused();
  if (!call.reader) return call.status;
  Reader& reader = *call.reader;
  std::lock_guard<std::mutex> lock(reader.mutex);
  const uint32_t next = reader.nextPreFilterIndex;
  writeOutput("RFID_AddPreFilter", index, &next, sizeof next);
  if (!call.proceeds()) return call.status;
  reader.preFilters.push_back({next, rule});
  ++reader.nextPreFilterIndex;
  return kSuccess;
}

int32_t deletePreFilter(Reader& reader, uint16_t antenna, uint32_t index) {
  std::lock_guard<std::mutex> lock(reader.mutex);
  auto& filters = reader.preFilters;
  auto it = std::find_if(filters.begin(), filters.end(), [&](const PreFilterEntry& e) {
    return e.index == index && e.rule.antenna == antenna;
  });
  if (it == filters.end()) return kNotFound;
  filters.erase(it);
  return kSuccess;
}

}  // namespace
}  // namespace sim

using namespace sim;

extern "C" {

int32_t RFID_AddPreFilter(int64_t handle, uint16_t antenna, void* preFilter, uint32_t* index) {
  Recorder rec("RFID_AddPreFilter", {raw(handle), raw(antenna), raw(preFilter), raw(index)});
  bool usable = capturePreFilter(rec, "preFilter", preFilter) && preFilter != nullptr;
  rec.blob("index", index, sizeof *index);  // what the caller preset
  usable = usable && index != nullptr && !rec.captured("index").faulted;
  const PreFilterRule rule = readPreFilter(antenna, capturedOf(rec), "preFilter");
  return addPreFilter(finishCall(rec, handle, usable, preFilterAntennaProblem(antenna)), antenna, rule, usable, index);
}

int32_t RFID_DeletePreFilter(int64_t handle, uint16_t antenna, uint32_t index) {
  Recorder rec("RFID_DeletePreFilter", {raw(handle), raw(antenna), raw(index)});
  const CallOutcome call = finishCall(rec, handle, true, preFilterAntennaProblem(antenna));
  if (!call.proceeds()) return call.status;
  return rememberFailure(handle, deletePreFilter(*call.reader, antenna, index), "RFID_DeletePreFilter",
                         "antenna " + std::to_string(antenna) + " has no pre-filter " + std::to_string(index));
}

int32_t RFID_GetTagStorageSettings(int64_t handle, void* settings) {
  Recorder rec("RFID_GetTagStorageSettings", {raw(handle), raw(settings)});
  rec.blob("tagStorageSettings", settings, layout::TagStorageSettings().size);  // as preset
  const bool usable = settings != nullptr && !rec.captured("tagStorageSettings").faulted;
  const CallOutcome call = finishCall(rec, handle, usable);
  if (!usable) return call.refused();
  if (!call.reader) return call.status;
  TagStorageSettings kept;
  {
    std::lock_guard<std::mutex> lock(call.reader->mutex);
    kept = call.reader->storage;
  }
  writeOutput("RFID_GetTagStorageSettings", settings, kept.raw.data(), kept.raw.size());
  return call.status;
}

int32_t RFID_SetTagStorageSettings(int64_t handle, void* settings) {
  Recorder rec("RFID_SetTagStorageSettings", {raw(handle), raw(settings)});
  rec.blob("tagStorageSettings", settings, layout::TagStorageSettings().size);
  const Blob& captured = rec.captured("tagStorageSettings");
  const CallOutcome call = finishCall(rec, handle, !captured.faulted);
  if (!call.proceeds()) return call.status;
  if (!captured.present) return kInvalidParam;
  std::lock_guard<std::mutex> lock(call.reader->mutex);
  std::copy(captured.bytes.begin(), captured.bytes.end(), call.reader->storage.raw.begin());
  return kSuccess;
}

int32_t RFID_GetSingulationControl(int64_t handle, uint16_t antenna, void* control) {
  Recorder rec("RFID_GetSingulationControl", {raw(handle), raw(antenna), raw(control)});
  rec.blob("singulationControl", control, layout::SingulationControl().size);  // as preset
  const bool usable = control != nullptr && !rec.captured("singulationControl").faulted;
  const CallOutcome call = finishCall(rec, handle, usable, antennaProblem(antenna));
  if (!usable || !validAntenna(antenna)) return call.refused();
  if (!call.reader) return call.status;
  SingulationControl kept;
  {
    std::lock_guard<std::mutex> lock(call.reader->mutex);
    kept = call.reader->singulationOf(antenna);
  }
  writeOutput("RFID_GetSingulationControl", control, kept.raw.data(), kept.raw.size());
  return call.status;
}

int32_t RFID_SetSingulationControl(int64_t handle, uint16_t antenna, void* control) {
  Recorder rec("RFID_SetSingulationControl", {raw(handle), raw(antenna), raw(control)});
  rec.blob("singulationControl", control, layout::SingulationControl().size);
  const Blob& captured = rec.captured("singulationControl");
  const CallOutcome call = finishCall(rec, handle, !captured.faulted, antennaProblem(antenna));
  if (!call.proceeds()) return call.status;
  if (!captured.present || !validAntenna(antenna)) return kInvalidParam;
  SingulationControl kept;
  std::copy(captured.bytes.begin(), captured.bytes.end(), kept.raw.begin());
  std::lock_guard<std::mutex> lock(call.reader->mutex);
  call.reader->singulation[antenna] = kept;
  return kSuccess;
}

}  // extern "C"
