#include "reader/population.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>

#include "reader/text_file.h"

namespace sim {
namespace {

constexpr uint16_t kXpcIndicator = 0x0200;  // XI bit of the PC word

void appendWord(Bytes& out, uint32_t word, int bytes) {
  for (int i = bytes - 1; i >= 0; --i) out.push_back(static_cast<uint8_t>(word >> (8 * i)));
}

std::shared_ptr<const Population> makeShared(Population tags) {
  return std::make_shared<const Population>(std::move(tags));
}

// The start-up population, worked out once: a problem with the file is
// reported once, not at every reset.
std::shared_ptr<const Population> defaultPopulation() {
  static const std::shared_ptr<const Population> tags = [] {
    const char* path = std::getenv("HALYARD_SIM_TAGS");
    if (path == nullptr || *path == '\0') return makeShared(builtInPopulation());
    std::string text;
    if (!readTextFile(path, &text)) {
      std::fprintf(stderr, "halyard-sim: %s: cannot read the tag file; using the built-in tags\n",
                   path);
      return makeShared(builtInPopulation());
    }
    ParsedPopulation parsed = parseTagList(text);
    if (!parsed.error.empty()) {
      std::fprintf(stderr, "halyard-sim: %s: %s; using the built-in tags\n", path,
                   parsed.error.c_str());
      return makeShared(builtInPopulation());
    }
    return makeShared(std::move(parsed.tags));
  }();
  return tags;
}

struct Current {
  std::mutex mutex;
  std::shared_ptr<const Population> tags;
};

Current& current() {
  static Current c;
  return c;
}

void replaceCurrent(std::shared_ptr<const Population> tags) {
  std::lock_guard<std::mutex> lock(current().mutex);
  current().tags = std::move(tags);
}

}  // namespace

Bytes SimTag::bank(uint32_t memoryBank) const {
  Bytes out;
  switch (memoryBank) {
    case kBankReserved:
      appendWord(out, killPassword, 4);
      appendWord(out, accessPassword, 4);
      return out;
    case kBankEpc:
      appendWord(out, crc, 2);
      appendWord(out, pc, 2);
      out.insert(out.end(), epc.begin(), epc.end());
      return out;
    case kBankTid:
      return tid;
    case kBankUser:
      return user;
    default:
      return out;
  }
}

uint16_t crc16Genibus(const uint8_t* data, size_t n) {
  uint16_t crc = 0xFFFF;
  for (size_t i = 0; i < n; ++i) {
    crc ^= static_cast<uint16_t>(data[i] << 8);
    for (int bit = 0; bit < 8; ++bit) {
      crc = (crc & 0x8000) ? static_cast<uint16_t>((crc << 1) ^ 0x1021) : static_cast<uint16_t>(crc << 1);
    }
  }
  return static_cast<uint16_t>(~crc);
}

uint16_t pcForEpcLength(size_t epcBytes) {
  return static_cast<uint16_t>(((epcBytes / 2) & 0x1F) << 11);
}

void completeProtocolWords(SimTag& tag) {
  tag.pc = pcForEpcLength(tag.epc.size());
  if (tag.xpc != 0) tag.pc |= kXpcIndicator;
  Bytes covered;
  appendWord(covered, tag.pc, 2);
  covered.insert(covered.end(), tag.epc.begin(), tag.epc.end());
  tag.crc = crc16Genibus(covered.data(), covered.size());
}

std::shared_ptr<const Population> currentPopulation() {
  std::lock_guard<std::mutex> lock(current().mutex);
  if (!current().tags) current().tags = defaultPopulation();
  return current().tags;
}

std::string loadPopulation(const std::string& text) {
  ParsedPopulation parsed = parseTagList(text);
  if (!parsed.error.empty()) return parsed.error;
  replaceCurrent(makeShared(std::move(parsed.tags)));
  return {};
}

void useBuiltInPopulation() { replaceCurrent(makeShared(builtInPopulation())); }

void restoreDefaultPopulation() { replaceCurrent(defaultPopulation()); }

}  // namespace sim
