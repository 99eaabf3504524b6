// TAG_DATA records the simulated API hands out. Each record is 256 zeroed
// bytes with its own tag ID, memory bank and location buffers; records are
// counted per reader until handed back, so tests can prove the library
// releases what it obtains.
#pragma once

#include <cstddef>
#include <cstdint>

#include "reader/tag_read.h"

namespace sim {

constexpr size_t kTagRecordSize = 256;
constexpr size_t kTagIdCapacity = 128;
constexpr size_t kMemoryBankCapacity = 512;

struct RecordFill {
  uint32_t maxTagIdBytes = kTagIdCapacity;
  uint32_t maxMemoryBankBytes = kMemoryBankCapacity;
  bool upTime = false;  // seen times in the up-time form instead of UTC
};

void* allocateTagRecord(int64_t reader);
// False when the record was not handed out by allocateTagRecord (or was
// already released).
bool releaseTagRecord(void* record);
bool isTagRecord(const void* record);
// Writes the read into a record of ours; false when the record is not ours.
bool fillTagRecord(void* record, const TagRead& read, const RecordFill& fill);

size_t liveTagRecords(int64_t reader);
void releaseAllTagRecords();

}  // namespace sim
