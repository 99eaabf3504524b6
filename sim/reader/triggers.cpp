#include "reader/triggers.h"

#include "record/captured_fields.h"

namespace sim {
namespace {

// START_TRIGGER at 0: type, then its value from 8.
StartTrigger readStart(const Blob& t) {
  StartTrigger start;
  switch (fieldAt<uint32_t>(t, 0)) {
    case 1:
      start.kind = StartTrigger::Kind::kPeriodic;
      start.periodMs = fieldAt<uint32_t>(t, 8);
      break;
    case 2:
      start.kind = StartTrigger::Kind::kGpi;
      start.gpi = {fieldAt<uint16_t>(t, 8), fieldAt<uint8_t>(t, 10) != 0};
      start.timeoutMs = fieldAt<uint32_t>(t, 12);
      break;
    default:
      break;
  }
  return start;
}

StopTrigger countedWithTimeout(StopTrigger::Kind kind, const Blob& t) {
  StopTrigger stop;
  stop.kind = kind;
  stop.n = fieldAt<uint16_t>(t, 28);
  stop.timeoutMs = fieldAt<uint32_t>(t, 32);
  return stop;
}

StopTrigger onGpi(const Blob& t) {
  StopTrigger stop;
  stop.kind = StopTrigger::Kind::kGpi;
  stop.gpi = {fieldAt<uint16_t>(t, 28), fieldAt<uint8_t>(t, 30) != 0};
  stop.timeoutMs = fieldAt<uint32_t>(t, 32);
  return stop;
}

StopTrigger afterDuration(uint32_t ms) {
  StopTrigger stop;
  stop.kind = StopTrigger::Kind::kDuration;
  stop.durationMs = ms;
  return stop;
}

// STOP_TRIGGER at 24: type, then its value from 28.
StopTrigger readStop(const Blob& t) {
  switch (fieldAt<uint32_t>(t, 24)) {
    case 1: return afterDuration(fieldAt<uint32_t>(t, 28));
    case 2: return onGpi(t);
    case 3: return countedWithTimeout(StopTrigger::Kind::kTagObservation, t);
    case 4: return countedWithTimeout(StopTrigger::Kind::kAttempts, t);
    case 5: return afterDuration(fieldAt<uint32_t>(t, 32));  // handheld: its time-out
    case 6: return afterDuration(fieldAt<uint32_t>(t, 28));  // time-lapse: its total
    default: return {};
  }
}

}  // namespace

Triggers readTriggers(const Blob& triggerInfo) {
  if (!triggerInfo.present) return {};
  return {readStart(triggerInfo), readStop(triggerInfo), {}};
}

}  // namespace sim
