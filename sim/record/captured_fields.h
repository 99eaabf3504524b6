// Records as bytes at their offsets: reading fields of a captured record (so
// deep captures follow the pointers of the copy taken at call entry, not the
// caller's memory) and composing the records the simulator writes back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "record/journal.h"

namespace sim {

// A wide string field of the C API: 260 characters of 4 bytes.
constexpr size_t kWideChars = 260;
constexpr size_t kWideFieldBytes = kWideChars * sizeof(wchar_t);

// A field beyond the captured bytes (or of an absent blob) reads as 0.
template <class T>
T fieldAt(const Blob& record, size_t offset) {
  T value{};
  if (offset + sizeof(T) <= record.bytes.size()) {
    std::memcpy(&value, record.bytes.data() + offset, sizeof(T));
  }
  return value;
}

inline const void* pointerAt(const Blob& record, size_t offset) {
  return reinterpret_cast<const void*>(fieldAt<uint64_t>(record, offset));
}

// Stores value at offset, growing the record as needed.
template <class T>
void putField(std::vector<uint8_t>* record, size_t offset, T value) {
  if (record->size() < offset + sizeof(T)) record->resize(offset + sizeof(T));
  std::memcpy(record->data() + offset, &value, sizeof(T));
}

// Stores a NUL-terminated wide string at offset.
inline void putWide(std::vector<uint8_t>* record, size_t offset, const wchar_t* text) {
  size_t i = 0;
  for (; text[i] != L'\0'; ++i) putField<wchar_t>(record, offset + i * sizeof(wchar_t), text[i]);
  putField<wchar_t>(record, offset + i * sizeof(wchar_t), L'\0');
}

}  // namespace sim
