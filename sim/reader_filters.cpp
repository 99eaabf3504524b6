#include "reader_filters.h"

#include "reader_bytes.h"

namespace sim {
namespace {

Bytes copyBits(const uint8_t* p, uint16_t bits) {
  const size_t n = bitsToBytes(bits);
  if (p == nullptr) return Bytes(n, 0);
  return Bytes(p, p + n);
}

bool bitAt(const Bytes& bytes, size_t bit) {
  return (bytes[bit / 8] >> (7 - bit % 8)) & 1;
}

std::optional<TagPatternRule> readTagPattern(const uint8_t* p) {
  if (p == nullptr) return std::nullopt;
  TagPatternRule rule;
  rule.memoryBank = load<uint32_t>(p, 0);
  rule.bitOffset = load<uint16_t>(p, 4);
  rule.patternBits = load<uint16_t>(p, 16);
  rule.pattern = copyBits(loadPtr(p, 8), rule.patternBits);
  rule.maskBits = load<uint16_t>(p, 32);
  rule.mask = copyBits(loadPtr(p, 24), rule.maskBits);
  return rule;
}

std::optional<RssiRangeRule> readRssiRange(const uint8_t* p) {
  if (p == nullptr) return std::nullopt;
  return RssiRangeRule{load<int8_t>(p, 0), load<int8_t>(p, 1), load<uint32_t>(p, 4)};
}

bool matchesOrAbsent(const std::optional<TagPatternRule>& rule, const SimTag& tag) {
  return !rule || rule->matches(tag);
}

bool combine(uint32_t matchPattern, bool a, bool b) {
  switch (matchPattern) {
    case kNotAAndB: return !a && b;
    case kNotAAndNotB: return !a && !b;
    case kAAndNotB: return a && !b;
    case kAOnly: return a;
    case kNotA: return !a;
    default: return a && b;
  }
}

// Gen2 select actions: what a matching and a non-matching tag do.
enum class Effect { kAssert, kDeassert, kNothing, kNegate };
struct SelectAction {
  Effect onMatch;
  Effect onMiss;
};
constexpr SelectAction kSelectActions[8] = {
    {Effect::kAssert, Effect::kDeassert},  {Effect::kAssert, Effect::kNothing},
    {Effect::kNothing, Effect::kDeassert}, {Effect::kNegate, Effect::kNothing},
    {Effect::kDeassert, Effect::kAssert},  {Effect::kDeassert, Effect::kNothing},
    {Effect::kNothing, Effect::kAssert},   {Effect::kNothing, Effect::kNegate},
};

bool apply(Effect effect, bool selected) {
  switch (effect) {
    case Effect::kAssert: return true;
    case Effect::kDeassert: return false;
    case Effect::kNegate: return !selected;
    default: return selected;
  }
}

}  // namespace

bool TagPatternRule::matches(const SimTag& tag) const {
  const Bytes bank = tag.bank(memoryBank);
  if (static_cast<size_t>(bitOffset) + patternBits > bank.size() * 8) return false;
  for (size_t i = 0; i < patternBits; ++i) {
    const bool counted = maskBits == 0 || i >= maskBits || bitAt(mask, i);
    if (counted && bitAt(bank, bitOffset + i) != bitAt(pattern, i)) return false;
  }
  return true;
}

bool RssiRangeRule::admits(int8_t rssi) const {
  switch (matchRange) {
    case kOutsideRange: return rssi < lower || rssi > upper;
    case kGreaterThanLower: return rssi > lower;
    case kLowerThanUpper: return rssi < upper;
    default: return rssi >= lower && rssi <= upper;
  }
}

bool PostFilterRule::admits(const SimTag& tag, int8_t rssi) const {
  if (rssiRange && !rssiRange->admits(rssi)) return false;
  return combine(matchPattern, matchesOrAbsent(a, tag), matchesOrAbsent(b, tag));
}

PostFilterRule readPostFilter(const void* record) {
  PostFilterRule rule;
  rule.a = readTagPattern(loadPtr(record, 8));
  rule.b = readTagPattern(loadPtr(record, 16));
  rule.matchPattern = load<uint32_t>(record, 24);
  rule.rssiRange = readRssiRange(loadPtr(record, 32));
  return rule;
}

uint32_t PreFilterRule::selectAction() const {
  switch (filterAction) {
    case kFilterActionStateAware: return stateAwareAction;
    case kFilterActionStateUnaware: return unawareActionOrTarget;
    default: return 0;
  }
}

PreFilterRule readPreFilter(uint16_t antenna, const void* record) {
  PreFilterRule rule;
  rule.antenna = antenna;
  rule.pattern.memoryBank = load<uint32_t>(record, 0);
  rule.pattern.patternBits = load<uint16_t>(record, 16);
  rule.pattern.pattern = copyBits(loadPtr(record, 8), rule.pattern.patternBits);
  rule.pattern.bitOffset = load<uint16_t>(record, 18);
  rule.filterAction = load<uint32_t>(record, 20);
  rule.unawareActionOrTarget = load<uint32_t>(record, 24);
  rule.stateAwareAction = load<uint32_t>(record, 28);
  rule.truncateAction = load<uint32_t>(record, 32);
  return rule;
}

bool selectedByPreFilters(const std::vector<PreFilterRule>& rules, const SimTag& tag,
                          uint16_t antenna) {
  bool any = false;
  bool selected = false;
  for (const PreFilterRule& rule : rules) {
    if (!rule.appliesTo(antenna)) continue;
    any = true;
    const SelectAction& action = kSelectActions[rule.selectAction() % 8];
    selected = apply(rule.pattern.matches(tag) ? action.onMatch : action.onMiss, selected);
  }
  return !any || selected;
}

}  // namespace sim
