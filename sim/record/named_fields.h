// Fields of the records the simulator reads and composes, by their names in
// the record descriptions (record_layout.h), so their offsets are written
// once, there. A path the record does not have aborts at its first use.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/captured_fields.h"
#include "record/record_layout.h"

namespace sim {

template <class T>
size_t offsetOf(const layout::Record& record, const std::string& path) {
  return layout::OffsetOf(record, path, sizeof(T));
}

// A field of a captured record; 0 beyond its bytes.
template <class T>
T namedField(const Blob& captured, const layout::Record& record, const std::string& path) {
  return fieldAt<T>(captured, offsetOf<T>(record, path));
}

template <class T>
void putNamed(std::vector<uint8_t>* bytes, const layout::Record& record, const std::string& path, T value) {
  putField<T>(bytes, offsetOf<T>(record, path), value);
}

inline void putNamedPointer(std::vector<uint8_t>* bytes, const layout::Record& record, const std::string& path,
                            const void* p) {
  putNamed<uint64_t>(bytes, record, path, reinterpret_cast<uintptr_t>(p));
}

// An inline wide text field.
inline void putNamedWide(std::vector<uint8_t>* bytes, const layout::Record& record, const std::string& path,
                         const wchar_t* text) {
  putWide(bytes, layout::OffsetOf(record, path, 0), text);
}

}  // namespace sim
