#include "reader/default_caps.h"

#include <array>
#include <cwchar>

#include "record/captured_fields.h"
#include "reader/memory_fields.h"

namespace sim {
namespace {

constexpr size_t kRfModeEntryBytes = 80;
constexpr size_t kTableHeaderBytes = 16;  // count, padding, pointer
constexpr size_t kRfModeCount = 2;

// The tables the default record points at; built once, never freed. The
// byte tables stand for records holding pointers and 32-bit fields, and the
// reader's client reads them as such: they get those records' alignment.
struct CapsTables {
  std::array<int32_t, 3> sensitivities{{0, -30, -60}};
  std::array<int16_t, 21> powerLevels{};
  alignas(8) std::array<uint8_t, kRfModeCount * kRfModeEntryBytes> rfModeEntries{};
  alignas(8) std::array<uint8_t, kTableHeaderBytes> rfModeTable{};
  std::array<uint32_t, 4> hopFrequencies{{902750, 915250, 927250, 910250}};
  alignas(8) std::array<uint8_t, kTableHeaderBytes> hopTable{};
};

// One RF mode: identifier, divide ratio, BDR, modulation, forward link,
// PIE, minimum, maximum and step tari, spectral mask, conformance.
void putRfMode(uint8_t* entry, uint32_t id, uint32_t bdr, uint32_t modulation, uint32_t minTari) {
  const uint32_t fields[] = {id, 0, bdr, modulation, 2, 1500, minTari, 25000, 6250, 1};
  for (size_t i = 0; i < 10; ++i) store<uint32_t>(entry, 4 * i, fields[i]);
  entry[40] = 1;
}

const CapsTables* buildTables() {
  auto* t = new CapsTables;
  for (size_t i = 0; i < t->powerLevels.size(); ++i) t->powerLevels[i] = static_cast<int16_t>(1000 + 100 * i);
  putRfMode(t->rfModeEntries.data(), 0, 640000, 0, 6250);
  putRfMode(t->rfModeEntries.data() + kRfModeEntryBytes, 1, 320000, 1, 12500);
  store<int16_t>(t->rfModeTable.data(), 0, 0);  // protocol: EPC Gen2
  store<uint16_t>(t->rfModeTable.data(), 2, kRfModeCount);
  storePtr(t->rfModeTable.data(), 8, t->rfModeEntries.data());
  store<int16_t>(t->hopTable.data(), 0, 1);
  store<uint16_t>(t->hopTable.data(), 2, static_cast<uint16_t>(t->hopFrequencies.size()));
  storePtr(t->hopTable.data(), 8, t->hopFrequencies.data());
  return t;
}

const CapsTables& capsTables() {
  static const CapsTables* tables = buildTables();
  return *tables;
}

void putTable(std::vector<uint8_t>* caps, size_t at, uint16_t count, const void* list) {
  putField<uint16_t>(caps, at, count);
  putField<uint64_t>(caps, at + 8, reinterpret_cast<uintptr_t>(list));
}

}  // namespace

CapsTableSizes defaultTableSizes() {
  const CapsTables& t = capsTables();
  return {t.powerLevels.size(), t.sensitivities.size(), t.hopFrequencies.size(), kRfModeCount};
}

std::vector<uint8_t> defaultReaderCaps() {
  const CapsTables& t = capsTables();
  std::vector<uint8_t> caps(kReaderCapsRecordBytes, 0);
  putField<int32_t>(&caps, 8, 0);  // reader identifier type
  putWide(&caps, 12, L"SIM-0001");
  putWide(&caps, 1052, L"1.0.0-sim");
  putWide(&caps, 2092, L"Simulated four-port reader");
  putField<int16_t>(&caps, 3132, 4);  // antennas
  putField<int16_t>(&caps, 3134, 2);  // GPIs
  putField<int16_t>(&caps, 3136, 2);  // GPOs
  caps[3138] = 1;                     // UTC clock
  putTable(&caps, 3144, static_cast<uint16_t>(t.sensitivities.size()), t.sensitivities.data());
  for (size_t at = 3416; at <= 3422; ++at) caps[at] = 1;  // block erase ... radio power control
  putField<int16_t>(&caps, 3424, 32);                     // operations in an access sequence
  putField<int16_t>(&caps, 3426, 32);                     // pre-filters
  putTable(&caps, 3432, 1, t.rfModeTable.data());
  putField<int16_t>(&caps, 3448, 840);  // country code
  putField<int32_t>(&caps, 3452, 1);    // communication standard
  putTable(&caps, 3456, static_cast<uint16_t>(t.powerLevels.size()), t.powerLevels.data());
  caps[3472] = 1;  // hopping
  putTable(&caps, 3480, 1, t.hopTable.data());
  putTable(&caps, 3496, 0, nullptr);  // no fixed frequencies
  for (size_t at = 3512; at <= 3515; ++at) caps[at] = 1;  // tag events, RSSI filter, NXP, locationing
  putField<uint64_t>(&caps, 3520, 0);                     // no duty cycle table
  caps[3531] = 1;                                         // tag list filter
  caps[3544] = 1;                                         // periodic tag reports
  caps[3547] = 1;                                         // antenna RF configuration
  caps[3550] = 1;                                         // Gen2v2 commands
  return caps;
}

}  // namespace sim
