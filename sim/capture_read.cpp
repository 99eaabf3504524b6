#include "capture_read.h"

#include <cstdint>

#include "reader_bytes.h"

namespace sim {
namespace {

constexpr size_t kAntennaInfoSize = 24;
constexpr size_t kTagPatternSize = 40;
constexpr size_t kFilterSize = 40;
constexpr size_t kRssiRangeSize = 8;
constexpr size_t kTriggerInfoSize = 64;
constexpr size_t kTagEventReportInfoSize = 32;
constexpr size_t kReportTriggersSize = 4;
constexpr size_t kExtraTriggersSize = 256;
constexpr size_t kStartTriggerSize = 24;
constexpr size_t kExtraStartCount = 7;
constexpr size_t kSystemTimeSize = 16;
constexpr size_t kTimeOfDaySize = 6;
constexpr size_t kPreFilterSize = 36;

// Antenna counts come from the caller; a garbage count must not make the
// capture read gigabytes.
constexpr uint32_t kMaxAntennaEntries = 0xFFFF;

constexpr uint32_t kStartPeriodic = 1;
constexpr uint32_t kStartTimelapse = 4;

// The time record a START_TRIGGER's type makes meaningful: a SYSTEMTIME
// behind the pointer at 16 for a periodic trigger, a TIMEOFDAY behind the
// pointer at 8 for a time-lapse one. Other types reuse those bytes.
void captureStartTime(Recorder& rec, const std::string& name, const uint8_t* trigger) {
  const uint32_t type = load<uint32_t>(trigger, 0);
  if (type == kStartPeriodic) {
    rec.blob(name, loadPtr(trigger, 16), kSystemTimeSize);
  } else if (type == kStartTimelapse) {
    rec.blob(name, loadPtr(trigger, 8), kTimeOfDaySize);
  }
}

void captureExtraTriggers(Recorder& rec, const std::string& name, const uint8_t* block) {
  rec.blob(name, block, kExtraTriggersSize);
  if (block == nullptr) return;
  for (size_t i = 0; i < kExtraStartCount; ++i) {
    const std::string entry = name + ".start[" + std::to_string(i) + "].startTime";
    captureStartTime(rec, entry, block + kStartTriggerSize * i);
  }
}

}  // namespace

void captureAntennaInfo(Recorder& rec, const std::string& name, const void* p) {
  rec.blob(name, p, kAntennaInfoSize);
  if (p == nullptr) return;
  uint32_t length = load<uint32_t>(p, 8);
  if (length > kMaxAntennaEntries) length = kMaxAntennaEntries;
  rec.blob(name + ".antennaList", loadPtr(p, 0), length * sizeof(uint16_t));
  rec.blob(name + ".antennaOpList", loadPtr(p, 16), length * sizeof(uint32_t));
}

void captureTagPattern(Recorder& rec, const std::string& name, const void* p) {
  rec.blob(name, p, kTagPatternSize);
  if (p == nullptr) return;
  rec.blob(name + ".tagPattern", loadPtr(p, 8), bitsToBytes(load<uint16_t>(p, 16)));
  rec.blob(name + ".tagMask", loadPtr(p, 24), bitsToBytes(load<uint16_t>(p, 32)));
}

void captureFilter(Recorder& rec, const std::string& name, const void* p) {
  rec.blob(name, p, kFilterSize);
  if (p == nullptr) return;
  captureTagPattern(rec, name + ".tagPatternA", loadPtr(p, 8));
  captureTagPattern(rec, name + ".tagPatternB", loadPtr(p, 16));
  // The range block is larger, but only its first 8 bytes are ever set.
  rec.blob(name + ".rssiRangeFilter", loadPtr(p, 32), kRssiRangeSize);
}

void captureTriggerInfo(Recorder& rec, const std::string& name, const void* p) {
  rec.blob(name, p, kTriggerInfoSize);
  if (p == nullptr) return;
  captureStartTime(rec, name + ".startTrigger.startTime", static_cast<const uint8_t*>(p));
  rec.blob(name + ".tagEventReportInfo", loadPtr(p, 40), kTagEventReportInfoSize);
  rec.blob(name + ".reportTriggers", loadPtr(p, 48), kReportTriggersSize);
  captureExtraTriggers(rec, name + ".extraTriggers", loadPtr(p, 56));
}

void capturePreFilter(Recorder& rec, const std::string& name, const void* p) {
  rec.blob(name, p, kPreFilterSize);
  if (p == nullptr) return;
  rec.blob(name + ".tagPattern", loadPtr(p, 8), bitsToBytes(load<uint16_t>(p, 16)));
}

}  // namespace sim
