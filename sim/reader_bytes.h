// Little-endian field access in caller records. The simulator reads and
// writes records at fixed byte offsets with memcpy, never through a struct
// definition shared with the library, so a wrong offset on one side shows.
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
inline const uint8_t* loadPtr(const void* base, size_t offset) {
  return reinterpret_cast<const uint8_t*>(load<uintptr_t>(base, offset));
}

inline void storePtr(void* base, size_t offset, const void* p) {
  store<uintptr_t>(base, offset, reinterpret_cast<uintptr_t>(p));
}

// Bytes needed for a bit count, as the records count pattern bits.
inline size_t bitsToBytes(uint32_t bits) { return (static_cast<size_t>(bits) + 7) / 8; }

}  // namespace sim
