#include "reader/default_caps.h"

#include <array>
#include <cwchar>
#include <utility>

#include "reader/memory_fields.h"
#include "record/config_layouts.h"
#include "record/named_fields.h"

namespace sim {
namespace {

using layout::ReaderCaps;

constexpr size_t kRfModeCount = 2;

// Bytes of records that hold pointers and 32-bit fields, with those
// records' alignment: the reader's client reads them as such.
class RecordBytes {
 public:
  explicit RecordBytes(size_t n) : words_((n + 7) / 8, 0) {}
  uint8_t* data() { return reinterpret_cast<uint8_t*>(words_.data()); }
  const uint8_t* data() const { return reinterpret_cast<const uint8_t*>(words_.data()); }

 private:
  std::vector<uint64_t> words_;
};

// The tables the default record points at; built once, never freed.
struct CapsTables {
  std::array<int32_t, 3> sensitivities{{0, -30, -60}};
  std::array<int16_t, 21> powerLevels{};
  RecordBytes rfModeEntries{kRfModeCount * layout::RfModeTableEntry().size};
  RecordBytes rfModeTable{layout::UhfRfModeTable().size};
  std::array<uint32_t, 4> hopFrequencies{{902750, 915250, 927250, 910250}};
  RecordBytes hopTable{layout::FreqHopTable().size};
};

void putRfMode(uint8_t* entry, uint32_t id, uint32_t bdr, uint32_t modulation, uint32_t minTari) {
  const layout::Record& r = layout::RfModeTableEntry();
  const std::pair<const char*, uint32_t> fields[] = {
      {"modeIdentifer", id},      {"enumDivideRatio", 0},       {"bdrValue", bdr},
      {"enumModulation", modulation}, {"enumForwardLinkModulationType", 2}, {"pieValue", 1500},
      {"minTariValue", minTari},  {"maxTariValue", 25000},      {"stepTariValue", 6250},
      {"enumSpectralMaskIndicator", 1}};
  for (const auto& [name, value] : fields) store<uint32_t>(entry, offsetOf<uint32_t>(r, name), value);
  store<uint8_t>(entry, offsetOf<uint8_t>(r, "epcHAGTCConformance"), 1);
}

const CapsTables* buildTables() {
  auto* t = new CapsTables;
  for (size_t i = 0; i < t->powerLevels.size(); ++i) t->powerLevels[i] = static_cast<int16_t>(1000 + 100 * i);
  putRfMode(t->rfModeEntries.data(), 0, 640000, 0, 6250);
  putRfMode(t->rfModeEntries.data() + layout::RfModeTableEntry().size, 1, 320000, 1, 12500);
  const layout::Record& modes = layout::UhfRfModeTable();
  store<int16_t>(t->rfModeTable.data(), offsetOf<int16_t>(modes, "protocolID"), 0);  // EPC Gen2
  store<uint16_t>(t->rfModeTable.data(), offsetOf<uint16_t>(modes, "numEntries"), kRfModeCount);
  storePtr(t->rfModeTable.data(), offsetOf<uint64_t>(modes, "tablesEntries"), t->rfModeEntries.data());
  const layout::Record& hops = layout::FreqHopTable();
  store<int16_t>(t->hopTable.data(), offsetOf<int16_t>(hops, "hopTableID"), 1);
  store<uint16_t>(t->hopTable.data(), offsetOf<uint16_t>(hops, "numFreq"),
                  static_cast<uint16_t>(t->hopFrequencies.size()));
  storePtr(t->hopTable.data(), offsetOf<uint64_t>(hops, "freqList"), t->hopFrequencies.data());
  return t;
}

const CapsTables& capsTables() {
  static const CapsTables* tables = buildTables();
  return *tables;
}

// A counted table of the record: its count and its pointer by name.
void putTable(std::vector<uint8_t>* caps, const std::string& table, const char* count, const char* list, size_t n,
              const void* entries) {
  putNamed<uint16_t>(caps, ReaderCaps(), table + "." + count, static_cast<uint16_t>(n));
  putNamedPointer(caps, ReaderCaps(), table + "." + list, entries);
}

void putFlags(std::vector<uint8_t>* caps, std::initializer_list<const char*> flags) {
  for (const char* flag : flags) putNamed<uint8_t>(caps, ReaderCaps(), flag, 1);
}

}  // namespace

CapsTableSizes defaultTableSizes() {
  const CapsTables& t = capsTables();
  return {t.powerLevels.size(), t.sensitivities.size(), t.hopFrequencies.size(), kRfModeCount};
}

std::vector<uint8_t> defaultReaderCaps() {
  const CapsTables& t = capsTables();
  std::vector<uint8_t> caps(ReaderCaps().size, 0);
  putNamed<int32_t>(&caps, ReaderCaps(), "readerID.enumType", 0);
  putNamedWide(&caps, ReaderCaps(), "readerID.value", L"SIM-0001");
  putNamedWide(&caps, ReaderCaps(), "firmWareVersion", L"1.0.0-sim");
  putNamedWide(&caps, ReaderCaps(), "modelName", L"Simulated four-port reader");
  putNamed<int16_t>(&caps, ReaderCaps(), "numAntennas", 4);
  putNamed<int16_t>(&caps, ReaderCaps(), "numGPIs", 2);
  putNamed<int16_t>(&caps, ReaderCaps(), "numGPOs", 2);
  putFlags(&caps, {"utcClockSupported"});
  putTable(&caps, "receiveSensitivtyTable", "numValues", "receiveSensitivityValueList", t.sensitivities.size(),
           t.sensitivities.data());
  putFlags(&caps, {"blockEraseSupported", "blockWriteSupported", "stateAwareSingulationSupported",
                   "recommissionSupported", "blockPermalockSupported", "writeUMISupported",
                   "radioPowerControlSupported"});
  putNamed<int16_t>(&caps, ReaderCaps(), "maxNumOperationsInAccessSequence", 32);
  putNamed<int16_t>(&caps, ReaderCaps(), "maxNumPreFilters", 32);
  putTable(&caps, "rfModes", "numTables", "uhfTables", 1, t.rfModeTable.data());
  putNamed<int16_t>(&caps, ReaderCaps(), "countryCode", 840);
  putNamed<int32_t>(&caps, ReaderCaps(), "enumCommunicationStandard", 1);
  putTable(&caps, "transmitPowerLevelTable", "numValues", "powerValueList", t.powerLevels.size(),
           t.powerLevels.data());
  putFlags(&caps, {"hoppingEnabled"});
  putTable(&caps, "freqHopInfo", "numTables", "freqTables", 1, t.hopTable.data());
  putTable(&caps, "fixedFreqInfo", "numFreq", "freqList", 0, nullptr);  // no fixed frequencies
  putFlags(&caps, {"tagEventReportingSupported", "rssiFilterSupported", "NXPCommandsSupported",
                   "tagLocationingSupported"});
  putNamedPointer(&caps, ReaderCaps(), "dutyCycleTable", nullptr);  // no duty cycle table
  putFlags(&caps, {"tagListFilterSupported", "periodicTagReportsSupported", "antennaRFConfigSupported",
                   "G2V2CommandSupported"});
  return caps;
}

}  // namespace sim
