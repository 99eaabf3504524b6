#include "reader/tag_records.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <vector>
#include <memory>
#include <mutex>

#include "reader/memory_fields.h"
#include "record/record_layouts.h"

namespace sim {
namespace {

// Fields of TAG_DATA, resolved by name once when the library loads.
size_t At(const char* path, size_t bytes) { return layout::OffsetOf(layout::TagData(), path, bytes); }

const size_t kMemoryAllocated = At("memoryAllocated", 4);
const size_t kMemoryUsed = At("memoryUsed", 4);
const size_t kTagIdPtr = At("pTagID", 8);
const size_t kTagIdLength = At("tagIDLength", 4);
const size_t kTagIdAllocated = At("tagIDAllocated", 4);
const size_t kPc = At("PC", 2);
const size_t kXpc = At("XPC", 4);
const size_t kCrc = At("CRC", 2);
const size_t kAntennaId = At("antennaID", 2);
const size_t kFirstSeenUtc = At("seenTime.utcTime.firstSeenTimeStamp", 0);
const size_t kLastSeenUtc = At("seenTime.utcTime.lastSeenTimeStamp", 0);
const size_t kFirstSeenUpTime = At("seenTime.upTime.firstSeenTimeStamp", 8);
const size_t kLastSeenUpTime = At("seenTime.upTime.lastSeenTimeStamp", 8);
const size_t kPeakRssi = At("peakRSSI", 1);
const size_t kChannelIndex = At("channelIndex", 2);
const size_t kTagSeenCount = At("tagSeenCount", 2);
const size_t kOpCode = At("opCode", 4);
const size_t kOpStatus = At("opStatus", 4);
const size_t kMemoryBank = At("memoryBank", 4);
const size_t kMemoryBankDataPtr = At("pMemoryBankData", 8);
const size_t kMemoryBankDataByteOffset = At("memoryBankDataByteOffset", 4);
const size_t kMemoryBankDataLength = At("memoryBankDataLength", 4);
const size_t kMemoryBankDataAllocated = At("memoryBankDataAllocated", 4);
const size_t kTagEvent = At("tagEvent", 4);
const size_t kTagEventTimeStamp = At("tagEventTimeStamp", 0);
const size_t kLocationInfoPtr = At("pLocationInfo", 8);
const size_t kOpResultPtr = At("pOpResult", 8);
const size_t kPhaseInfo = At("phaseInfo", 2);

// The bytes up to the GPS pointer: the record as described.
const uint32_t kMemoryUsedBytes = static_cast<uint32_t>(layout::TagData().size);

struct OwnedRecord {
  int64_t reader = 0;
  alignas(16) uint8_t record[kTagRecordSize] = {};
  uint8_t tagId[kTagIdCapacity] = {};
  uint8_t memoryBank[kMemoryBankCapacity] = {};
  int16_t location[4] = {};
  int16_t opResult[8] = {};
};

// Records handed back are kept for reuse (up to kSpareRecords), so a
// reader that hands out thousands of records a second does not make the
// allocator churn.
constexpr size_t kSpareRecords = 4096;

struct Records {
  std::mutex mutex;
  std::unordered_map<const void*, std::unique_ptr<OwnedRecord>> owned;
  std::vector<std::unique_ptr<OwnedRecord>> spare;
};

Records& records() {
  static Records r;
  return r;
}

void fillSeenTimes(uint8_t* record, const TagRead& read, bool upTime) {
  if (upTime) {
    store<uint64_t>(record, kFirstSeenUpTime, read.firstSeen.upTimeMicros);
    store<uint64_t>(record, kLastSeenUpTime, read.lastSeen.upTimeMicros);
  } else {
    storeSystemTime(record, kFirstSeenUtc, read.firstSeen.utc);
    storeSystemTime(record, kLastSeenUtc, read.lastSeen.utc);
  }
}

size_t copyCapped(uint8_t* dst, size_t capacity, uint32_t limit, const Bytes& src) {
  const size_t n = std::min({src.size(), capacity, static_cast<size_t>(limit)});
  std::copy_n(src.begin(), n, dst);
  return n;
}

void fillIdentity(OwnedRecord& owned, const TagRead& read, const RecordFill& fill) {
  uint8_t* r = owned.record;
  storePtr(r, kTagIdPtr, owned.tagId);
  const size_t n = copyCapped(owned.tagId, kTagIdCapacity, fill.maxTagIdBytes, read.epc);
  store<uint32_t>(r, kTagIdLength, static_cast<uint32_t>(n));
  store<uint32_t>(r, kTagIdAllocated, kTagIdCapacity);
  store<uint16_t>(r, kPc, read.pc);
  store<uint32_t>(r, kXpc, read.xpc);
  store<uint16_t>(r, kCrc, read.crc);
}

void fillSighting(uint8_t* r, const TagRead& read, const RecordFill& fill) {
  store<int16_t>(r, kAntennaId, static_cast<int16_t>(read.antenna));
  fillSeenTimes(r, read, fill.upTime);
  store<int8_t>(r, kPeakRssi, read.peakRssi);
  store<int16_t>(r, kChannelIndex, read.channelIndex);
  store<int16_t>(r, kTagSeenCount, static_cast<int16_t>(read.seenCount));
  store<int16_t>(r, kPhaseInfo, read.phase);
  store<uint32_t>(r, kTagEvent, read.tagEvent);
  storeSystemTime(r, kTagEventTimeStamp, read.tagEventTime);
}

void fillMemoryBank(OwnedRecord& owned, const TagRead& read, const RecordFill& fill) {
  uint8_t* r = owned.record;
  storePtr(r, kMemoryBankDataPtr, owned.memoryBank);
  const size_t n =
      copyCapped(owned.memoryBank, kMemoryBankCapacity, fill.maxMemoryBankBytes, read.memoryBankData);
  store<uint32_t>(r, kMemoryBankDataLength, static_cast<uint32_t>(n));
  store<uint32_t>(r, kMemoryBankDataAllocated, kMemoryBankCapacity);
}

void fillAccessResult(OwnedRecord& owned, const TagRead& read) {
  if (!read.access) return;
  const AccessResult& a = *read.access;
  uint8_t* r = owned.record;
  store<uint32_t>(r, kOpCode, a.opCode);
  store<int32_t>(r, kOpStatus, a.opStatus);
  store<uint32_t>(r, kMemoryBank, a.memoryBank);
  store<uint32_t>(r, kMemoryBankDataByteOffset, a.byteOffset);
  owned.opResult[0] = a.word;
  storePtr(r, kOpResultPtr, a.hasWord ? owned.opResult : nullptr);
}

void fillLocation(OwnedRecord& owned, const TagRead& read) {
  owned.location[0] = read.relativeDistance;
  storePtr(owned.record, kLocationInfoPtr, read.hasLocation ? owned.location : nullptr);
}

}  // namespace

void* allocateTagRecord(int64_t reader) {
  std::lock_guard<std::mutex> lock(records().mutex);
  std::unique_ptr<OwnedRecord> owned;
  if (records().spare.empty()) {
    owned = std::make_unique<OwnedRecord>();
  } else {
    owned = std::move(records().spare.back());
    records().spare.pop_back();
    *owned = OwnedRecord();
  }
  owned->reader = reader;
  void* record = owned->record;
  records().owned[record] = std::move(owned);
  return record;
}

bool releaseTagRecord(void* record) {
  std::lock_guard<std::mutex> lock(records().mutex);
  auto it = records().owned.find(record);
  if (it == records().owned.end()) return false;
  if (records().spare.size() < kSpareRecords) records().spare.push_back(std::move(it->second));
  records().owned.erase(it);
  return true;
}

bool isTagRecord(const void* record) {
  std::lock_guard<std::mutex> lock(records().mutex);
  return records().owned.count(record) > 0;
}

bool fillTagRecord(void* record, const TagRead& read, const RecordFill& fill) {
  std::lock_guard<std::mutex> lock(records().mutex);
  auto it = records().owned.find(record);
  if (it == records().owned.end()) return false;
  OwnedRecord& owned = *it->second;
  std::fill(std::begin(owned.record), std::end(owned.record), 0);
  store<uint32_t>(owned.record, kMemoryAllocated, kTagRecordSize);
  store<uint32_t>(owned.record, kMemoryUsed, kMemoryUsedBytes);
  fillIdentity(owned, read, fill);
  fillSighting(owned.record, read, fill);
  fillMemoryBank(owned, read, fill);
  fillLocation(owned, read);
  fillAccessResult(owned, read);
  return true;
}

size_t liveTagRecords(int64_t reader) {
  std::lock_guard<std::mutex> lock(records().mutex);
  return static_cast<size_t>(std::count_if(records().owned.begin(), records().owned.end(),
                                            [reader](const auto& e) { return e.second->reader == reader; }));
}

void releaseAllTagRecords() {
  std::lock_guard<std::mutex> lock(records().mutex);
  records().owned.clear();
}

}  // namespace sim
