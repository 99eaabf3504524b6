// One buffered read of a tag: what the reader reports about a tag seen on
// one antenna, aggregated over the rounds until the read is fetched.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "reader/population.h"

namespace sim {

// SYSTEMTIME members in record order: Year, Month, DayOfWeek, Day, Hour,
// Minute, Second, Milliseconds.
using SystemTime = std::array<uint16_t, 8>;

SystemTime utcNow();
// Writes t as the 16 bytes of a SYSTEMTIME at offset of a record.
void storeSystemTime(void* record, size_t offset, const SystemTime& t);

struct SeenStamp {
  SystemTime utc{};
  uint64_t upTimeMicros = 0;  // since the reader's start
};

// What an access operation did to the tag, reported with the read.
struct AccessResult {
  uint32_t opCode = 0;  // ACCESS_OPERATION_CODE
  int32_t opStatus = 0;
  uint32_t memoryBank = 0;
  uint32_t byteOffset = 0;
  bool hasWord = false;  // a QT control word or configuration word read back
  int16_t word = 0;
  uint32_t sequenceIndex = 0;  // the operation's index in an access sequence
};

struct TagRead {
  Bytes epc;
  uint16_t pc = 0;
  uint32_t xpc = 0;
  uint16_t crc = 0;
  uint16_t antenna = 0;
  int8_t peakRssi = 0;
  int16_t channelIndex = 0;
  int16_t phase = 0;
  uint16_t seenCount = 0;
  SeenStamp firstSeen;
  SeenStamp lastSeen;
  bool hasLocation = false;
  int16_t relativeDistance = 0;
  Bytes memoryBankData;  // none for inventory reads
  std::optional<AccessResult> access;  // none for inventory reads
  uint32_t tagEvent = 0;  // TagEvent of reader/tag_reports.h; 0 for a plain read
  SystemTime tagEventTime{};
};

}  // namespace sim
