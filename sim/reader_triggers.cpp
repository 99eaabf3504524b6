#include "reader_triggers.h"

#include "reader_bytes.h"

namespace sim {
namespace {

constexpr size_t kStopTrigger = 24;

StartTrigger readStart(const void* t) {
  StartTrigger start;
  switch (load<uint32_t>(t, 0)) {
    case 1:
      start.kind = StartTrigger::Kind::kPeriodic;
      start.periodMs = load<uint32_t>(t, 8);
      break;
    case 2:
      start.kind = StartTrigger::Kind::kGpi;
      start.gpi = {load<uint16_t>(t, 8), load<uint8_t>(t, 10) != 0};
      start.timeoutMs = load<uint32_t>(t, 12);
      break;
    default:
      break;
  }
  return start;
}

StopTrigger withTimeout(StopTrigger::Kind kind, const uint8_t* s) {
  StopTrigger stop;
  stop.kind = kind;
  stop.n = load<uint16_t>(s, 4);
  stop.timeoutMs = load<uint32_t>(s, 8);
  return stop;
}

StopTrigger afterDuration(uint32_t ms) {
  StopTrigger stop;
  stop.kind = StopTrigger::Kind::kDuration;
  stop.durationMs = ms;
  return stop;
}

StopTrigger readStop(const uint8_t* s) {
  switch (load<uint32_t>(s, 0)) {
    case 1: return afterDuration(load<uint32_t>(s, 4));
    case 2: {
      StopTrigger stop;
      stop.kind = StopTrigger::Kind::kGpi;
      stop.gpi = {load<uint16_t>(s, 4), load<uint8_t>(s, 6) != 0};
      stop.timeoutMs = load<uint32_t>(s, 8);
      return stop;
    }
    case 3: return withTimeout(StopTrigger::Kind::kTagObservation, s);
    case 4: return withTimeout(StopTrigger::Kind::kAttempts, s);
    case 5: return afterDuration(load<uint32_t>(s, 8));
    case 6: return afterDuration(load<uint32_t>(s, 4));
    default: return {};
  }
}

}  // namespace

Triggers readTriggers(const void* triggerInfo) {
  if (triggerInfo == nullptr) return {};
  const auto* t = static_cast<const uint8_t*>(triggerInfo);
  return {readStart(t), readStop(t + kStopTrigger)};
}

}  // namespace sim
