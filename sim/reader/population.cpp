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
      return epcBank;
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

namespace {

constexpr size_t kXpcWordAt = 0x21;

uint16_t wordAt(const Bytes& bytes, size_t word) {
  return static_cast<uint16_t>(bytes[2 * word] << 8 | bytes[2 * word + 1]);
}

// StoredCRC over the PC word and the EPC, as the tag computes it.
uint16_t storedCrc(uint16_t pc, const Bytes& epc) {
  Bytes covered;
  appendWord(covered, pc, 2);
  covered.insert(covered.end(), epc.begin(), epc.end());
  return crc16Genibus(covered.data(), covered.size());
}

}  // namespace

void completeProtocolWords(SimTag& tag) {
  tag.pc = pcForEpcLength(tag.epc.size());
  if (tag.xpc != 0) tag.pc |= kXpcIndicator;
  tag.crc = storedCrc(tag.pc, tag.epc);
  tag.epcBank.clear();
  appendWord(tag.epcBank, tag.crc, 2);
  appendWord(tag.epcBank, tag.pc, 2);
  tag.epcBank.insert(tag.epcBank.end(), tag.epc.begin(), tag.epc.end());
  if (tag.xpc == 0) return;
  tag.epcBank.resize(2 * kXpcWordAt, 0);
  if (tag.xpc > 0xFFFF) appendWord(tag.epcBank, tag.xpc >> 16, 2);
  appendWord(tag.epcBank, tag.xpc & 0xFFFF, 2);
}

bool protocolWordsFromEpcBank(SimTag& tag, const Bytes& epcBank) {
  if (epcBank.size() < 4) return false;
  const uint16_t pc = wordAt(epcBank, 1);
  const size_t epcBytes = 2 * static_cast<size_t>(pc >> 11);
  if (4 + epcBytes > epcBank.size()) return false;
  tag.pc = pc;
  tag.epc.assign(epcBank.begin() + 4, epcBank.begin() + 4 + static_cast<std::ptrdiff_t>(epcBytes));
  tag.xpc = 0;
  const size_t words = epcBank.size() / 2;
  if ((pc & kXpcIndicator) != 0 && words > kXpcWordAt) {
    tag.xpc = wordAt(epcBank, kXpcWordAt);
    if (words > kXpcWordAt + 1) tag.xpc = tag.xpc << 16 | wordAt(epcBank, kXpcWordAt + 1);
  }
  tag.crc = storedCrc(pc, tag.epc);
  tag.epcBank = epcBank;
  tag.epcBank[0] = static_cast<uint8_t>(tag.crc >> 8);
  tag.epcBank[1] = static_cast<uint8_t>(tag.crc);
  return true;
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

void changePopulation(const std::function<void(Population&)>& change) {
  std::lock_guard<std::mutex> lock(current().mutex);
  if (!current().tags) current().tags = defaultPopulation();
  Population copy = *current().tags;
  change(copy);
  current().tags = makeShared(std::move(copy));
}

void useBuiltInPopulation() { replaceCurrent(makeShared(builtInPopulation())); }

void restoreDefaultPopulation() { replaceCurrent(defaultPopulation()); }

}  // namespace sim
