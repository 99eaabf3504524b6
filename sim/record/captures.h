// Deep captures of the records that inventory, locate, EAS scan and the tag
// access operations receive. Each routine records the record itself under
// `name` and what it points to under "<name>.<field>"; a NULL pointer is
// recorded as an absent blob. The pointers followed are read from the copy
// just captured, so a wild record faults its blob instead of the process.
//
// `Sink` is the journal's Recorder or anything with the same blob(name, p,
// n) and captured(name); capture before the call's entry is finished. Each
// routine returns false when a blob could not be read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "record/journal.h"
#include "record/captured_fields.h"

namespace sim {

// How the simulator's readers of captured records find the blobs.
using CapturedBlobs = std::function<const Blob&(const std::string& name)>;

template <class Sink>
CapturedBlobs capturedOf(const Sink& sink) {
  return [&sink](const std::string& name) -> const Blob& { return sink.captured(name); };
}

namespace capture {

constexpr size_t kAntennaInfo = 24;
constexpr size_t kTagPattern = 40;
constexpr size_t kFilter = 40;
constexpr size_t kRssiRange = 8;  // of a larger block whose rest is never set
constexpr size_t kTriggerInfo = 64;
constexpr size_t kTagEventReportInfo = 32;
constexpr size_t kReportTriggers = 40;  // the block every caller provides, zeroed
constexpr size_t kExtraTriggers = 256;
constexpr size_t kStartTrigger = 24;
constexpr size_t kExtraStartCount = 7;
constexpr size_t kSystemTime = 16;
constexpr size_t kTimeOfDay = 6;
constexpr size_t kPreFilter = 36;
constexpr uint32_t kStartPeriodic = 1;
constexpr uint32_t kStartTimelapse = 4;

inline size_t bitsToBytes(uint16_t bits) { return (static_cast<size_t>(bits) + 7) / 8; }

template <class Sink>
bool take(Sink& rec, const std::string& name, const void* p, size_t n) {
  rec.blob(name, p, n);
  return !rec.captured(name).faulted;
}

// The time record a START_TRIGGER's type makes meaningful: a SYSTEMTIME
// behind the pointer at 16 for a periodic trigger, a TIMEOFDAY behind the
// pointer at 8 for a time-lapse one. Other types reuse those bytes.
template <class Sink>
bool startTime(Sink& rec, const std::string& name, const Blob& record, size_t at) {
  const uint32_t type = fieldAt<uint32_t>(record, at);
  if (type == kStartPeriodic) return take(rec, name, pointerAt(record, at + 16), kSystemTime);
  if (type == kStartTimelapse) return take(rec, name, pointerAt(record, at + 8), kTimeOfDay);
  return true;
}

template <class Sink>
bool extraTriggers(Sink& rec, const std::string& name, const void* p) {
  bool ok = take(rec, name, p, kExtraTriggers);
  if (p == nullptr) return ok;
  const Blob& block = rec.captured(name);
  for (size_t i = 0; i < kExtraStartCount; ++i) {
    const std::string entry = name + ".start[" + std::to_string(i) + "].startTime";
    ok = startTime(rec, entry, block, kStartTrigger * i) && ok;
  }
  return ok;
}

}  // namespace capture

// ANTENNA_INFO (24 bytes): "<name>.antennaList" (length x u16, pointer at 0,
// length at 8) and "<name>.antennaOpList" (length x u32, pointer at 16).
template <class Sink>
bool captureAntennaInfo(Sink& rec, const std::string& name, const void* p) {
  bool ok = capture::take(rec, name, p, capture::kAntennaInfo);
  if (p == nullptr) return ok;
  const Blob& record = rec.captured(name);
  const size_t length = fieldAt<uint32_t>(record, 8);
  ok = capture::take(rec, name + ".antennaList", pointerAt(record, 0), length * 2) && ok;
  return capture::take(rec, name + ".antennaOpList", pointerAt(record, 16), length * 4) && ok;
}

// TAG_PATTERN (40 bytes): "<name>.tagPattern" (ceil(bits at 16 / 8) bytes
// from the pointer at 8) and "<name>.tagMask" (bits at 32, pointer at 24).
template <class Sink>
bool captureTagPattern(Sink& rec, const std::string& name, const void* p) {
  bool ok = capture::take(rec, name, p, capture::kTagPattern);
  if (p == nullptr) return ok;
  const Blob& record = rec.captured(name);
  ok = capture::take(rec, name + ".tagPattern", pointerAt(record, 8),
                     capture::bitsToBytes(fieldAt<uint16_t>(record, 16))) && ok;
  return capture::take(rec, name + ".tagMask", pointerAt(record, 24),
                       capture::bitsToBytes(fieldAt<uint16_t>(record, 32))) && ok;
}

// ACCESS_FILTER / POST_FILTER (one 40-byte layout): "<name>.tagPatternA"
// (pointer at 8) and "<name>.tagPatternB" (at 16), each with its pattern
// bytes, and "<name>.rssiRangeFilter" (8 bytes, pointer at 32).
template <class Sink>
bool captureFilter(Sink& rec, const std::string& name, const void* p) {
  bool ok = capture::take(rec, name, p, capture::kFilter);
  if (p == nullptr) return ok;
  const Blob& record = rec.captured(name);
  ok = captureTagPattern(rec, name + ".tagPatternA", pointerAt(record, 8)) && ok;
  ok = captureTagPattern(rec, name + ".tagPatternB", pointerAt(record, 16)) && ok;
  return capture::take(rec, name + ".rssiRangeFilter", pointerAt(record, 32), capture::kRssiRange) && ok;
}

// TRIGGER_INFO (64 bytes): "<name>.startTrigger.startTime" (what the start
// type makes meaningful), "<name>.tagEventReportInfo" (32 bytes, pointer at
// 40), "<name>.reportTriggers" (40 bytes, at 48), "<name>.extraTriggers"
// (256 bytes, at 56) and "<name>.extraTriggers.start[i].startTime".
template <class Sink>
bool captureTriggerInfo(Sink& rec, const std::string& name, const void* p) {
  bool ok = capture::take(rec, name, p, capture::kTriggerInfo);
  if (p == nullptr) return ok;
  const Blob& record = rec.captured(name);
  ok = capture::startTime(rec, name + ".startTrigger.startTime", record, 0) && ok;
  ok = capture::take(rec, name + ".tagEventReportInfo", pointerAt(record, 40),
                     capture::kTagEventReportInfo) && ok;
  ok = capture::take(rec, name + ".reportTriggers", pointerAt(record, 48), capture::kReportTriggers) && ok;
  return capture::extraTriggers(rec, name + ".extraTriggers", pointerAt(record, 56)) && ok;
}

// PRE_FILTER (36 bytes): "<name>.tagPattern" (bits at 16, pointer at 8).
template <class Sink>
bool capturePreFilter(Sink& rec, const std::string& name, const void* p) {
  bool ok = capture::take(rec, name, p, capture::kPreFilter);
  if (p == nullptr) return ok;
  const Blob& record = rec.captured(name);
  return capture::take(rec, name + ".tagPattern", pointerAt(record, 8),
                       capture::bitsToBytes(fieldAt<uint16_t>(record, 16))) && ok;
}

}  // namespace sim
