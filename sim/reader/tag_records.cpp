#include "reader/tag_records.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <vector>
#include <memory>
#include <mutex>

#include "reader/memory_fields.h"

namespace sim {
namespace {

// Fields of TAG_DATA by byte offset.
constexpr size_t kMemoryAllocated = 0;
constexpr size_t kMemoryUsed = 4;
constexpr size_t kTagIdPtr = 8;
constexpr size_t kTagIdLength = 16;
constexpr size_t kTagIdAllocated = 20;
constexpr size_t kPc = 24;
constexpr size_t kXpc = 28;
constexpr size_t kCrc = 32;
constexpr size_t kAntennaId = 34;
constexpr size_t kFirstSeen = 40;
constexpr size_t kLastSeenUtc = 56;
constexpr size_t kLastSeenUpTime = 48;
constexpr size_t kPeakRssi = 72;
constexpr size_t kChannelIndex = 74;
constexpr size_t kTagSeenCount = 76;
constexpr size_t kOpCode = 80;
constexpr size_t kOpStatus = 84;
constexpr size_t kMemoryBank = 88;
constexpr size_t kMemoryBankDataPtr = 96;
constexpr size_t kMemoryBankDataByteOffset = 104;
constexpr size_t kMemoryBankDataLength = 108;
constexpr size_t kMemoryBankDataAllocated = 112;
constexpr size_t kTagEvent = 116;
constexpr size_t kTagEventTimeStamp = 120;
constexpr size_t kLocationInfoPtr = 136;
constexpr size_t kOpResultPtr = 144;
constexpr size_t kPhaseInfo = 168;

constexpr uint32_t kMemoryUsedBytes = 192;  // the bytes up to the GPS pointer

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

void storeSystemTime(uint8_t* record, size_t offset, const SystemTime& t) {
  for (size_t i = 0; i < t.size(); ++i) store<uint16_t>(record, offset + 2 * i, t[i]);
}

void fillSeenTimes(uint8_t* record, const TagRead& read, bool upTime) {
  if (upTime) {
    store<uint64_t>(record, kFirstSeen, read.firstSeen.upTimeMicros);
    store<uint64_t>(record, kLastSeenUpTime, read.lastSeen.upTimeMicros);
  } else {
    storeSystemTime(record, kFirstSeen, read.firstSeen.utc);
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
