// Settings records a reader keeps as the application set them: the tag
// storage settings and the singulation control of each antenna (records
// described in record/config_layouts.h). Kept raw, so a getter returns
// exactly what the setter got.
#pragma once

#include <cstdint>
#include <vector>

#include "reader/memory_fields.h"
#include "record/config_layouts.h"
#include "record/named_fields.h"

namespace sim {

struct TagStorageSettings {
  std::vector<uint8_t> raw = std::vector<uint8_t>(layout::TagStorageSettings().size, 0);

  static TagStorageSettings defaults();
  uint32_t maxTagCount() const { return field<uint32_t>("maxTagCount"); }
  uint32_t maxMemoryBankByteCount() const { return field<uint32_t>("maxMemoryBankByteCount"); }
  uint32_t maxTagIDByteCount() const { return field<uint32_t>("maxTagIDByteCount"); }
  bool discardTagsOnInventoryStop() const { return field<uint8_t>("discardTagsOnInventoryStop") != 0; }

  template <class T>
  T field(const char* name) const {
    return load<T>(raw.data(), offsetOf<T>(layout::TagStorageSettings(), name));
  }
};

struct SingulationControl {
  std::vector<uint8_t> raw = std::vector<uint8_t>(layout::SingulationControl().size, 0);

  static SingulationControl defaults();
};

inline TagStorageSettings TagStorageSettings::defaults() {
  TagStorageSettings s;
  const layout::Record& r = layout::TagStorageSettings();
  putNamed<uint32_t>(&s.raw, r, "maxTagCount", 4096);
  putNamed<uint32_t>(&s.raw, r, "maxMemoryBankByteCount", 64);
  putNamed<uint32_t>(&s.raw, r, "maxTagIDByteCount", 64);
  putNamed<uint16_t>(&s.raw, r, "tagFields", 0xFFFF);  // every field
  return s;                                            // both flags 0
}

inline SingulationControl SingulationControl::defaults() {
  SingulationControl s;
  putNamed<uint16_t>(&s.raw, layout::SingulationControl(), "tagPopulation", 100);  // session S0, the rest 0
  return s;
}

}  // namespace sim
