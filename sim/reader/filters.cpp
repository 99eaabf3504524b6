#include "reader/filters.h"

#include "record/captured_fields.h"

namespace sim {
namespace {

// The pattern bits of a captured buffer; missing bytes read as 0.
Bytes patternBits(const Blob& buffer, uint16_t bits) {
  Bytes bytes = buffer.bytes;
  bytes.resize(capture::bitsToBytes(bits), 0);
  return bytes;
}

bool bitAt(const Bytes& bytes, size_t bit) {
  return (bytes[bit / 8] >> (7 - bit % 8)) & 1;
}

std::optional<TagPatternRule> readTagPattern(const CapturedBlobs& blobs, const std::string& name) {
  const Blob& record = blobs(name);
  if (!record.present) return std::nullopt;
  TagPatternRule rule;
  rule.memoryBank = fieldAt<uint32_t>(record, 0);
  rule.bitOffset = fieldAt<uint16_t>(record, 4);
  rule.patternBits = fieldAt<uint16_t>(record, 16);
  rule.pattern = patternBits(blobs(name + ".tagPattern"), rule.patternBits);
  rule.maskBits = fieldAt<uint16_t>(record, 32);
  rule.mask = patternBits(blobs(name + ".tagMask"), rule.maskBits);
  return rule;
}

std::optional<RssiRangeRule> readRssiRange(const Blob& range) {
  if (!range.present) return std::nullopt;
  return RssiRangeRule{fieldAt<int8_t>(range, 0), fieldAt<int8_t>(range, 1), fieldAt<uint32_t>(range, 4)};
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

std::optional<PostFilterRule> readPostFilter(const CapturedBlobs& blobs, const std::string& name) {
  const Blob& record = blobs(name);
  if (!record.present) return std::nullopt;
  PostFilterRule rule;
  rule.a = readTagPattern(blobs, name + ".tagPatternA");
  rule.b = readTagPattern(blobs, name + ".tagPatternB");
  rule.matchPattern = fieldAt<uint32_t>(record, 24);
  rule.rssiRange = readRssiRange(blobs(name + ".rssiRangeFilter"));
  return rule;
}

uint32_t PreFilterRule::selectAction() const {
  switch (filterAction) {
    case kFilterActionStateAware: return stateAwareAction;
    case kFilterActionStateUnaware: return unawareActionOrTarget;
    default: return 0;
  }
}

PreFilterRule readPreFilter(uint16_t antenna, const CapturedBlobs& blobs, const std::string& name) {
  const Blob& record = blobs(name);
  PreFilterRule rule;
  rule.antenna = antenna;
  rule.pattern.memoryBank = fieldAt<uint32_t>(record, 0);
  rule.pattern.patternBits = fieldAt<uint16_t>(record, 16);
  rule.pattern.pattern = patternBits(blobs(name + ".tagPattern"), rule.pattern.patternBits);
  rule.pattern.bitOffset = fieldAt<uint16_t>(record, 18);
  rule.filterAction = fieldAt<uint32_t>(record, 20);
  rule.unawareActionOrTarget = fieldAt<uint32_t>(record, 24);
  rule.stateAwareAction = fieldAt<uint32_t>(record, 28);
  rule.truncateAction = fieldAt<uint32_t>(record, 32);
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
