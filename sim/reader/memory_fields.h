// Little-endian fields of records in memory the simulator owns (tag records,
// event data, settings), at fixed byte offsets with memcpy, never through a
// struct definition shared with the library. Records received from callers
// are read from their captured copies instead (record/captured_fields.h).
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace sim {

template <typename T>
T load(const void* base, size_t offset) {
  T value;
  std::memcpy(&value, static_cast<const uint8_t*>(base) + offset, sizeof value);
  return value;
}

template <typename T>
void store(void* base, size_t offset, T value) {
  std::memcpy(static_cast<uint8_t*>(base) + offset, &value, sizeof value);
}

// A pointer member of a record (8 bytes on this platform).
inline void storePtr(void* base, size_t offset, const void* p) {
  store<uintptr_t>(base, offset, reinterpret_cast<uintptr_t>(p));
}

}  // namespace sim
