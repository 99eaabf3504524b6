#include "reader/memory_reads.h"

#include <mutex>
#include <vector>

#include "reader/memory_fields.h"
#include "reader/state.h"
#include "record/captured_fields.h"
#include "reader/status.h"
#include "reader/population.h"
#include "reader/tag_records.h"
#include "reader/last_error.h"

namespace sim {
namespace {

constexpr size_t kScriptedTagBytes = 192;

// READ_ACCESS_PARAMS by byte offset.
constexpr size_t kParamsMemoryBank = 0;
constexpr size_t kParamsByteOffset = 4;
constexpr size_t kParamsByteCount = 6;
constexpr size_t kParamsBytes = 48;

// TAG_DATA fields that the read fills beyond the tag itself.
constexpr size_t kOpCode = 80;
constexpr size_t kOpStatus = 84;
constexpr size_t kMemoryBank = 88;
constexpr uint32_t kReadOperation = 0;

const SimTag* tagInField(const Population& tags, const std::vector<uint8_t>& epc) {
  for (const SimTag& tag : tags) {
    if (tag.epc == epc && !tag.rssiByAntenna.empty()) return &tag;
  }
  return nullptr;
}

// The tag as the first antenna whose field holds it sees it.
TagRead sightingOf(const SimTag& tag, const Reader& reader) {
  TagRead read;
  read.epc = tag.epc;
  read.pc = tag.pc;
  read.xpc = tag.xpc;
  read.crc = tag.crc;
  read.antenna = tag.rssiByAntenna.begin()->first;
  read.peakRssi = tag.rssiByAntenna.begin()->second;
  read.seenCount = 1;
  read.firstSeen = {utcNow(), reader.upTimeMicros()};
  read.lastSeen = read.firstSeen;
  return read;
}

int32_t readTagMemory(int64_t handle, const Blob& tagID, const Blob& params, void* tag) {
  const ReaderPtr reader = findReader(handle);
  if (!reader) return kInvalidHandle;
  if (!params.present || params.bytes.size() < kParamsBytes) return kInvalidParam;
  const uint32_t bank = fieldAt<uint32_t>(params, kParamsMemoryBank);
  const size_t offset = fieldAt<uint16_t>(params, kParamsByteOffset);
  const size_t count = fieldAt<uint16_t>(params, kParamsByteCount);

  const auto population = currentPopulation();
  const SimTag* found = tagInField(*population, tagID.bytes);
  if (found == nullptr) return kNotFound;
  const Bytes contents = found->bank(bank);
  if (offset + count > contents.size()) return kInvalidParam;
  if (tag == nullptr) return kSuccess;

  TagRead read = sightingOf(*found, *reader);
  read.memoryBankData.assign(contents.begin() + offset, count == 0 ? contents.end() : contents.begin() + offset + count);
  RecordFill fill;
  {
    std::lock_guard<std::mutex> lock(reader->mutex);
    fill.maxTagIdBytes = reader->storage.maxTagIDByteCount();
    fill.maxMemoryBankBytes = reader->storage.maxMemoryBankByteCount();
    fill.upTime = reader->upTimeForm;
  }
  if (!fillTagRecord(tag, read, fill)) return kInvalidParam;
  store<uint32_t>(tag, kOpCode, kReadOperation);
  store<uint32_t>(tag, kOpStatus, 0);
  store<uint32_t>(tag, kMemoryBank, bank);
  return kSuccess;
}

}  // namespace

int32_t answerRead(ApiCall& call, int64_t handle, void* tag) {
  std::vector<uint8_t> scripted;
  if (scriptedOutput("RFID_Read", &scripted)) {
    call.outputsIfScripted({{tag, kScriptedTagBytes}});
    return call.finish();
  }
  const Blob tagID = call.captured("tagID");
  const Blob params = call.captured("params");
  const int32_t status = call.finish();
  if (status != kSuccess) return status;
  return rememberFailure(handle, readTagMemory(handle, tagID, params, tag), "RFID_Read");
}

}  // namespace sim
