#include "reader/field.h"

#include <algorithm>
#include <limits>

#include "reader/field_settings.h"
#include "reader/rounds.h"
#include "reader/state.h"

namespace sim {
namespace {

constexpr int8_t kRssiOutsideTheTagsOwn = -50;

bool hasUpperCaseHex(const Bytes& epc, const std::string& hex) {
  static const char* const kDigits = "0123456789ABCDEF";
  if (hex.size() != epc.size() * 2) return false;
  for (size_t i = 0; i < epc.size(); ++i) {
    if (hex[2 * i] != kDigits[epc[i] >> 4] || hex[2 * i + 1] != kDigits[epc[i] & 0xF]) return false;
  }
  return true;
}

std::vector<uint16_t> antennasOf(const SimTag& tag, const ScenarioWindow& window) {
  if (!window.antennas.empty()) return window.antennas;
  std::vector<uint16_t> own;
  for (const auto& entry : tag.rssiByAntenna) own.push_back(entry.first);
  return own;
}

// Reads a round may make in all; no limit without a rate.
size_t roundBudget() {
  const uint32_t rate = fieldSettings().readRate;
  if (rate == 0) return std::numeric_limits<size_t>::max();
  return std::max<size_t>(1, static_cast<size_t>(rate) * kRoundMs / 1000);
}

void refreshPlan(FieldState& field, const std::shared_ptr<const Population>& tags) {
  std::shared_ptr<const Scenario> scenario = currentScenario();
  if (field.plan.tags == tags && field.plan.scenario == scenario) return;
  field.plan = makeFieldPlan(tags, std::move(scenario));
  field.cursor.clear();
}

}  // namespace

double readChance(int rssi) { return std::clamp((rssi + 95) / 23.0, 0.05, 1.0); }

std::optional<int8_t> FieldPlan::presence(uint32_t tag, uint16_t antenna, uint64_t fieldMs) const {
  const SimTag& t = (*tags)[tag];
  if (t.killed) return std::nullopt;  // gone for good
  if (windows[tag].empty()) {
    auto own = t.rssiByAntenna.find(antenna);
    if (own == t.rssiByAntenna.end()) return std::nullopt;
    return own->second;
  }
  for (const ScenarioWindow* w : windows[tag]) {
    if (!w->holds(fieldMs)) continue;
    const std::vector<uint16_t> antennas = antennasOf(t, *w);
    auto at = std::find(antennas.begin(), antennas.end(), antenna);
    if (at == antennas.end()) continue;
    if (w->rssi.size() == 1) return w->rssi[0];
    if (!w->rssi.empty()) return w->rssi[static_cast<size_t>(at - antennas.begin())];
    auto own = t.rssiByAntenna.find(antenna);
    return own == t.rssiByAntenna.end() ? kRssiOutsideTheTagsOwn : own->second;
  }
  return std::nullopt;
}

FieldPlan makeFieldPlan(std::shared_ptr<const Population> tags, std::shared_ptr<const Scenario> scenario) {
  FieldPlan plan;
  plan.tags = std::move(tags);
  plan.scenario = std::move(scenario);
  const Population& population = *plan.tags;
  plan.windows.resize(population.size());
  std::map<std::string, uint32_t> byEpc;
  if (!plan.scenario->empty()) {
    for (uint32_t i = 0; i < population.size(); ++i) {
      for (const ScenarioWindow& w : *plan.scenario) {
        if (hasUpperCaseHex(population[i].epc, w.epcHex)) plan.windows[i].push_back(&w);
      }
    }
  }
  for (uint32_t i = 0; i < population.size(); ++i) {
    std::set<uint16_t> antennas;
    if (plan.windows[i].empty()) {
      for (const auto& entry : population[i].rssiByAntenna) antennas.insert(entry.first);
    }
    for (const ScenarioWindow* w : plan.windows[i]) {
      for (uint16_t a : antennasOf(population[i], *w)) antennas.insert(a);
    }
    for (uint16_t a : antennas) plan.candidates[a].push_back(i);
  }
  return plan;
}

std::vector<TagRead> fieldReads(Reader& reader, const std::shared_ptr<const Population>& tags,
                                const std::vector<uint16_t>& antennas,
                                const std::optional<PostFilterRule>& postFilter) {
  FieldState& field = reader.field;
  refreshPlan(field, tags);
  const std::vector<PreFilterRule> rules = reader.preFilterRules();
  const SeenStamp stamp = stampNow(reader);
  std::uniform_real_distribution<double> chance(0.0, 1.0);
  // The antennas that may see tags share the round's reads: each takes an
  // even part of what those before it left.
  std::vector<const std::vector<uint32_t>*> lists;
  for (uint16_t antenna : antennas) {
    auto list = field.plan.candidates.find(antenna);
    const bool reads = list != field.plan.candidates.end() && field.disconnected.count(antenna) == 0;
    lists.push_back(reads ? &list->second : nullptr);
  }
  size_t left = roundBudget();
  size_t antennasLeft = static_cast<size_t>(std::count_if(lists.begin(), lists.end(), [](auto* l) { return l; }));
  std::vector<TagRead> reads;
  for (size_t a = 0; a < antennas.size(); ++a) {
    if (lists[a] == nullptr) continue;
    const uint16_t antenna = antennas[a];
    const size_t budget = std::max<size_t>(1, left / antennasLeft--);
    const std::vector<uint32_t>& candidates = *lists[a];
    const size_t n = candidates.size();
    const size_t start = field.cursor[antenna] % n;
    size_t walked = 0;
    size_t answered = 0;
    for (; walked < n && answered < budget; ++walked) {
      const uint32_t index = candidates[(start + walked) % n];
      const std::optional<int8_t> base = field.plan.presence(index, antenna, field.fieldMs);
      const SimTag& tag = (*tags)[index];
      if (!base || !selectedByPreFilters(rules, tag, antenna)) continue;
      const int8_t rssi = jitteredRssi(reader, *base);
      if (readChance(rssi) < 1.0 && chance(reader.random) >= readChance(rssi)) continue;
      ++answered;
      TagRead read = makeRead(reader, tag, antenna, rssi, stamp);
      if (postFilter && !postFilter->admits(tag, read.peakRssi)) continue;
      reads.push_back(std::move(read));
    }
    field.cursor[antenna] = (start + walked) % n;
    left -= std::min(left, answered);
  }
  field.fieldMs += kRoundMs;
  return reads;
}

}  // namespace sim
