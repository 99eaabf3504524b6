// Tag records and the tag buffer: RFID_AllocateTag, RFID_DeallocateTag,
// RFID_GetReadTag, rfid_GetReadTags, rfid_DeallocateTags.
#include <algorithm>
#include <cstdint>
#include <vector>

#include "api/c_api.h"
#include "api/call_outcome.h"
#include "reader/sessions.h"
#include "reader/status.h"
#include "reader/tag_records.h"
#include "replay/replay.h"

namespace sim {
namespace {

constexpr size_t kScriptedRecordSize = 192;

struct Fetched {
  std::vector<TagRead> reads;
  RecordFill fill;
};

// Takes up to max buffered reads, or only looks at them when the call must
// leave the reader as it is.
Fetched fetchReads(Reader& reader, size_t max, bool take) {
  std::lock_guard<std::mutex> lock(reader.mutex);
  Fetched f;
  f.reads = take ? reader.buffer.popMany(max) : reader.buffer.peek(max);
  f.fill.maxTagIdBytes = reader.storage.maxTagIDByteCount();
  f.fill.maxMemoryBankBytes = reader.storage.maxMemoryBankByteCount();
  f.fill.upTime = reader.upTimeForm;
  return f;
}

// rfid_GetReadTags with a scripted output: each 192-byte piece of it becomes
// a new record.
uint32_t scriptedRecords(int64_t handle, uint32_t max, const std::vector<uint8_t>& bytes,
                         void** records) {
  const uint32_t n = static_cast<uint32_t>(std::min<size_t>(bytes.size() / kScriptedRecordSize, max));
  for (uint32_t i = 0; i < n; ++i) {
    records[i] = allocateTagRecord(handle);
    std::copy_n(bytes.begin() + i * kScriptedRecordSize, kScriptedRecordSize,
                static_cast<uint8_t*>(records[i]));
  }
  return n;
}

uint32_t bufferedRecords(Reader& reader, uint32_t max, bool take, void** records) {
  const Fetched fetched = fetchReads(reader, max, take);
  for (size_t i = 0; i < fetched.reads.size(); ++i) {
    records[i] = allocateTagRecord(reader.handle);
    fillTagRecord(records[i], fetched.reads[i], fetched.fill);
  }
  return static_cast<uint32_t>(fetched.reads.size());
}

int32_t getReadTag(const CallOutcome& call, void* tag) {
  if (replay::active()) return call.status;  // the record was written from the trace
  if (!call.reader) return call.status;
  if (!isTagRecord(tag)) return call.refused();  // NULL included
  if (writeScriptedOutput("RFID_GetReadTag", tag, kTagRecordSize)) return call.status;
  const Fetched fetched = fetchReads(*call.reader, 1, call.proceeds());
  if (fetched.reads.empty()) return call.proceeds() ? kNoReadTags : call.status;
  fillTagRecord(tag, fetched.reads.front(), fetched.fill);
  return call.status;
}

}  // namespace
}  // namespace sim

using namespace sim;

extern "C" {

void* RFID_AllocateTag(int64_t handle) {
  Recorder rec("RFID_AllocateTag", {raw(handle)});
  const int32_t status = rec.finish();
  uint64_t scripted = 0;
  if (scriptedPointer("RFID_AllocateTag", &scripted)) return reinterpret_cast<void*>(scripted);
  if (status != kSuccess || !sessionExists(handle)) return nullptr;
  return allocateTagRecord(handle);
}

int32_t RFID_DeallocateTag(int64_t handle, void* tag) {
  Recorder rec("RFID_DeallocateTag", {raw(handle), raw(tag)});
  const CallOutcome call = finishCall(rec, handle);
  if (!call.proceeds()) return call.status;
  return releaseTagRecord(tag) ? kSuccess : kInvalidParam;
}

int32_t RFID_GetReadTag(int64_t handle, void* tag) {
  Recorder rec("RFID_GetReadTag", {raw(handle), raw(tag)});
  return getReadTag(finishCall(rec, handle), tag);
}

int32_t rfid_GetReadTags(int64_t handle, uint32_t max, void** records, uint32_t* count) {
  Recorder rec("rfid_GetReadTags", {raw(handle), raw(max), raw(records), raw(count)});
  const CallOutcome call = finishCall(rec, handle);
  if (replay::active()) return call.status;  // the records were written from the trace
  if (!call.reader) return call.status;
  if (records == nullptr || count == nullptr) return call.refused();
  std::vector<uint8_t> scripted;
  if (scriptedOutput("rfid_GetReadTags", &scripted)) {
    *count = scriptedRecords(handle, max, scripted, records);
  } else {
    *count = bufferedRecords(*call.reader, max, call.proceeds(), records);
  }
  return call.status;
}

int32_t rfid_DeallocateTags(int64_t handle, void** records, uint32_t count) {
  Recorder rec("rfid_DeallocateTags", {raw(handle), raw(records), raw(count)});
  rec.blob("records", records, static_cast<size_t>(count) * sizeof(void*));
  const Blob& captured = rec.captured("records");
  const CallOutcome call = finishCall(rec, handle, !captured.faulted);
  if (!call.proceeds()) return call.status;
  if (!captured.present && count > 0) return kInvalidParam;
  bool allOurs = true;
  for (size_t at = 0; at < captured.bytes.size(); at += sizeof(void*)) {
    allOurs = releaseTagRecord(const_cast<void*>(pointerAt(captured, at))) && allOurs;
  }
  return allOurs ? kSuccess : kInvalidParam;
}

}  // extern "C"
