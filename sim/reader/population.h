// The tags in the simulated reader's field: a built-in population, or one
// read from the text file named by HALYARD_SIM_TAGS, or one a test loads.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "reader/tag_locks.h"

namespace sim {

using Bytes = std::vector<uint8_t>;

// The simulated reader has antennas 1 to kAntennaCount.
constexpr uint16_t kAntennaCount = 4;

enum MemoryBank : uint32_t {
  kBankReserved = 0,
  kBankEpc = 1,
  kBankTid = 2,
  kBankUser = 3,
};

struct SimTag {
  // What the tag reports; epc, pc, xpc and crc follow the EPC bank.
  Bytes epc;
  uint16_t pc = 0;
  uint32_t xpc = 0;
  uint16_t crc = 0;
  Bytes epcBank;  // CRC, PC, EPC words, XPC words at word 0x21 when there are any
  Bytes tid;
  Bytes user;
  uint32_t accessPassword = 0;
  uint32_t killPassword = 0;
  bool eas = false;
  std::map<uint16_t, int8_t> rssiByAntenna;  // the antennas whose field holds the tag
  TagLocks locks;
  bool killed = false;  // a killed tag has left every field for good
  // Chip commands' state: read protection, the configuration word, the QT
  // control word.
  bool readProtected = false;
  uint16_t configWord = 0;
  uint16_t qtControl = 0;
  // Gen2v2 untraceable: how much TID is hidden (0 none, 1 all but its first
  // two words, 2 all), and whether USER is.
  uint32_t hiddenTid = 0;
  bool hiddenUser = false;

  bool inFieldOf(uint16_t antenna) const { return rssiByAntenna.count(antenna) > 0; }
  // Bank contents as a Gen2 tag keeps them: reserved = kill + access
  // password, EPC = CRC + PC + EPC (+ XPC), TID, USER; all words big-endian.
  Bytes bank(uint32_t memoryBank) const;
};

using Population = std::vector<SimTag>;

// CRC-16/GENIBUS (poly 0x1021, init 0xFFFF, inverted), the Gen2 StoredCRC.
uint16_t crc16Genibus(const uint8_t* data, size_t n);
// PC word of an EPC of n bytes: its length in words in the top five bits.
uint16_t pcForEpcLength(size_t epcBytes);
// Fills PC, CRC and the EPC bank from the EPC and the XPC.
void completeProtocolWords(SimTag& tag);
// Takes PC, EPC and XPC from the EPC bank after a write, and computes the
// CRC anew (as a tag does); false (nothing changed) when the PC word asks
// for more EPC words than the bank holds.
bool protocolWordsFromEpcBank(SimTag& tag, const Bytes& epcBank);

struct ParsedPopulation {
  Population tags;
  std::string error;  // "line N: problem", empty on success
};
// The tag list text format (one tag a line, '#' comments, key=value fields).
ParsedPopulation parseTagList(const std::string& text);

Population builtInPopulation();

// The population in force, shared with running inventories.
std::shared_ptr<const Population> currentPopulation();
// Empty on success; otherwise the problem, and the population stays as it was.
std::string loadPopulation(const std::string& text);
void useBuiltInPopulation();
// Back to the start-up population (the HALYARD_SIM_TAGS file, else built in).
void restoreDefaultPopulation();
// Changes the population in force: change runs on a copy, under a lock that
// serialises changes, and the copy then takes its place. Inventories keep
// the population they took until their next round.
void changePopulation(const std::function<void(Population&)>& change);

}  // namespace sim
