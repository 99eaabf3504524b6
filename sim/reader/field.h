// Which tags a round sees, how often, and with what RSSI: the living field
// of a simulated reader.
//
// Each antenna walks the tags that may be in its field from where its last
// round stopped, so a large population is read in turn and no tag starves.
// A tag is in the field when the scenario (reader/scenario.h) says so; it
// answers with a chance that falls with its signal (readChance), its RSSI
// varies by up to kRssiJitterDb from read to read, and a round reads at
// most the reader's rate times the round's time (reader/field_settings.h),
// shared among the round's antennas that may see tags. A disconnected antenna reads nothing.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "reader/filters.h"
#include "reader/population.h"
#include "reader/scenario.h"
#include "reader/tag_read.h"

namespace sim {

struct Reader;

constexpr int kRssiJitterDb = 2;

// 1 at -72 dBm or stronger, falling evenly to 0.05 at -95 dBm and below.
double readChance(int rssi);

// Where the tags of a population and scenario can be: made once for each
// pair in force, so that a round costs in proportion to the tags it walks.
struct FieldPlan {
  std::shared_ptr<const Population> tags;
  std::shared_ptr<const Scenario> scenario;
  std::map<uint16_t, std::vector<uint32_t>> candidates;       // per antenna, tag indices
  std::vector<std::vector<const ScenarioWindow*>> windows;    // per tag; none: always there

  // The tag's base RSSI on the antenna at that time; none when it is not in
  // that antenna's field then.
  std::optional<int8_t> presence(uint32_t tag, uint16_t antenna, uint64_t fieldMs) const;
};

FieldPlan makeFieldPlan(std::shared_ptr<const Population> tags, std::shared_ptr<const Scenario> scenario);

// The field as one reader sees it. Guarded by the reader's lock.
struct FieldState {
  uint64_t fieldMs = 0;  // advances kRoundMs with every round
  std::map<uint16_t, size_t> cursor;
  std::set<uint16_t> disconnected;
  int temperatureLevel = 0;  // the last alarm level raised
  FieldPlan plan;
};

// The reads of one round on the antennas; advances the field's time.
std::vector<TagRead> fieldReads(Reader& reader, const std::shared_ptr<const Population>& tags,
                                const std::vector<uint16_t>& antennas,
                                const std::optional<PostFilterRule>& postFilter);

}  // namespace sim
