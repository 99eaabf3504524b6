// When a reader operation starts and stops, read from a TRIGGER_INFO record
// at call entry. Start: immediate, periodic, or on a GPI change (handheld,
// time-lapse and distance triggers start at once). Stop: never (until the
// stop call), after a duration, on a GPI change, after n unique tags, or
// after n rounds; the handheld and time-lapse stop triggers stop after their
// time-out and total duration.
#pragma once

#include <cstdint>

#include "record/journal.h"
#include "reader/tag_reports.h"

namespace sim {

struct GpiCondition {
  uint16_t port = 0;
  bool state = false;
};

struct StartTrigger {
  enum class Kind { kImmediate, kPeriodic, kGpi } kind = Kind::kImmediate;
  uint32_t periodMs = 0;
  GpiCondition gpi;
  uint32_t timeoutMs = 0;  // GPI wait; 0: none
};

struct StopTrigger {
  enum class Kind { kNone, kDuration, kGpi, kTagObservation, kAttempts } kind = Kind::kNone;
  uint32_t durationMs = 0;
  GpiCondition gpi;
  uint16_t n = 0;
  uint32_t timeoutMs = 0;  // 0: none
};

struct Triggers {
  StartTrigger start;
  StopTrigger stop;
  TagReportPlan reports;  // set by the caller from the records TRIGGER_INFO points at
};

// From the captured TRIGGER_INFO; an absent one (NULL) starts at once and
// runs until stopped.
Triggers readTriggers(const Blob& triggerInfo);

}  // namespace sim
