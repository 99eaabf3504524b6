// Filters the simulated reader applies while reading: post filters (tag
// patterns A and B and an RSSI range, deciding what is reported) and
// pre-filters (Gen2 select rules per antenna, deciding which tags take part).
// Both are read from the copies of the caller's records taken when the call
// arrived, since the caller frees its buffers right after the call.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "record/captures.h"
#include "reader/population.h"

namespace sim {

// A TAG_PATTERN: bits of a memory bank, from a bit offset, under a mask.
struct TagPatternRule {
  uint32_t memoryBank = 0;
  uint16_t bitOffset = 0;
  uint16_t patternBits = 0;
  Bytes pattern;
  uint16_t maskBits = 0;  // 0: every pattern bit counts
  Bytes mask;

  bool matches(const SimTag& tag) const;
};

enum MatchPattern : uint32_t {
  kAAndB = 0,
  kNotAAndB = 1,
  kNotAAndNotB = 2,
  kAAndNotB = 3,
  kAOnly = 4,
  kNotA = 5,
};

enum MatchRange : uint32_t {
  kWithinRange = 0,
  kOutsideRange = 1,
  kGreaterThanLower = 2,
  kLowerThanUpper = 3,
};

struct RssiRangeRule {
  int8_t lower = 0;
  int8_t upper = 0;
  uint32_t matchRange = kWithinRange;

  bool admits(int8_t rssi) const;
};

// A POST_FILTER (the same layout as ACCESS_FILTER). A missing pattern
// matches every tag.
struct PostFilterRule {
  std::optional<TagPatternRule> a;
  std::optional<TagPatternRule> b;
  uint32_t matchPattern = kAAndB;
  std::optional<RssiRangeRule> rssiRange;

  bool admits(const SimTag& tag, int8_t rssi) const;
};

// From the blobs captureFilter recorded under name; nullopt when the filter
// was NULL.
std::optional<PostFilterRule> readPostFilter(const CapturedBlobs& blobs, const std::string& name);

enum FilterAction : uint32_t {
  kFilterActionDefault = 0,
  kFilterActionStateAware = 1,
  kFilterActionStateUnaware = 2,
};

// A PRE_FILTER. Its action is a Gen2 select action code (0 to 7): the state
// it names as asserted takes part in the inventory, the deasserted one not.
struct PreFilterRule {
  uint16_t antenna = 0;  // 0: every antenna
  TagPatternRule pattern;  // no mask
  uint32_t filterAction = kFilterActionDefault;
  uint32_t unawareActionOrTarget = 0;
  uint32_t stateAwareAction = 0;
  uint32_t truncateAction = 0;

  bool appliesTo(uint16_t ant) const { return antenna == 0 || antenna == ant; }
  uint32_t selectAction() const;
};

// From the blobs capturePreFilter recorded under name.
PreFilterRule readPreFilter(uint16_t antenna, const CapturedBlobs& blobs, const std::string& name);

// Whether the tag takes part on the antenna: with no rule for the antenna
// every tag does; otherwise the rules start from "not selected" and apply
// in order.
bool selectedByPreFilters(const std::vector<PreFilterRule>& rules, const SimTag& tag,
                          uint16_t antenna);

}  // namespace sim
