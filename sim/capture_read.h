// Deep captures of the records that inventory, locate, EAS scan and the tag
// access operations receive. Each routine records the record itself under
// `name` and what it points to under "<name>.<field>"; a NULL pointer is
// recorded as an absent blob. Call them before Recorder::finish().
#pragma once

#include <string>

#include "journal.h"

namespace sim {

// ANTENNA_INFO (24 bytes): "<name>.antennaList" (length x u16) and
// "<name>.antennaOpList" (length x u32).
void captureAntennaInfo(Recorder& rec, const std::string& name, const void* p);

// TAG_PATTERN (40 bytes): "<name>.tagPattern" and "<name>.tagMask".
void captureTagPattern(Recorder& rec, const std::string& name, const void* p);

// ACCESS_FILTER / POST_FILTER (40 bytes, one layout): "<name>.tagPatternA",
// "<name>.tagPatternB" (each with its pattern bytes), "<name>.rssiRangeFilter".
void captureFilter(Recorder& rec, const std::string& name, const void* p);

// TRIGGER_INFO (64 bytes): the start time the start trigger's type points
// at, "<name>.tagEventReportInfo", "<name>.reportTriggers",
// "<name>.extraTriggers" and the start times of its start entries.
void captureTriggerInfo(Recorder& rec, const std::string& name, const void* p);

// PRE_FILTER (36 bytes): "<name>.tagPattern".
void capturePreFilter(Recorder& rec, const std::string& name, const void* p);

}  // namespace sim
