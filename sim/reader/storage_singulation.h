// Settings records a reader keeps as the application set them: the tag
// storage settings (16 bytes) and the singulation control of each antenna
// (20 bytes). Kept raw, so a getter returns exactly what the setter got.
#pragma once

#include <array>
#include <cstdint>

#include "reader/memory_fields.h"

namespace sim {

struct TagStorageSettings {
  std::array<uint8_t, 16> raw{};

  static TagStorageSettings defaults();
  uint32_t maxTagCount() const { return load<uint32_t>(raw.data(), 0); }
  uint32_t maxMemoryBankByteCount() const { return load<uint32_t>(raw.data(), 4); }
  uint32_t maxTagIDByteCount() const { return load<uint32_t>(raw.data(), 8); }
  bool discardTagsOnInventoryStop() const { return raw[15] != 0; }
};

struct SingulationControl {
  std::array<uint8_t, 20> raw{};

  static SingulationControl defaults();
};

inline TagStorageSettings TagStorageSettings::defaults() {
  TagStorageSettings s;
  store<uint32_t>(s.raw.data(), 0, 4096);    // maxTagCount
  store<uint32_t>(s.raw.data(), 4, 64);      // maxMemoryBankByteCount
  store<uint32_t>(s.raw.data(), 8, 64);      // maxTagIDByteCount
  store<uint16_t>(s.raw.data(), 12, 0xFFFF); // tagFields: every field
  return s;                                  // both flags 0
}

inline SingulationControl SingulationControl::defaults() {
  SingulationControl s;
  store<uint16_t>(s.raw.data(), 4, 100);  // tagPopulation; session S0, the rest 0
  return s;
}

}  // namespace sim
