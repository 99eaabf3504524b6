// Shorthands for writing record descriptions (record_layout.h): a scalar, a
// pointer to a record or to bytes, a record inside a record, an inline
// array, a union variant.
#pragma once

#include "record/record_layout.h"

namespace sim::layout {

inline Field Scalar(const char* name, size_t offset, Kind kind) { return Field{name, offset, kind}; }

inline Field PointerTo(const char* name, size_t offset, const Record& record, const When* when = nullptr) {
  return Field{name, offset, Kind::Pointer, &record, {}, 1, when};
}

// An array of records of `length` bytes in all (CountOf(at, width, record size)).
inline Field PointerToRecords(const char* name, size_t offset, const Record& record, Length length) {
  return Field{name, offset, Kind::Pointer, &record, length};
}

inline Field PointerToBytes(const char* name, size_t offset, Length length) {
  return Field{name, offset, Kind::Pointer, nullptr, length};
}

// A pointer shown as its address only: what it points to has no length the
// record gives (a NUL-terminated text of the reader's, say).
inline Field Address(const char* name, size_t offset) { return Field{name, offset, Kind::Pointer}; }

inline Field Inside(const char* name, size_t offset, const Record& record, size_t count = 1) {
  return Field{name, offset, Kind::Embedded, &record, {}, count};
}

inline Field InlineBytes(const char* name, size_t offset, size_t count) {
  return Field{name, offset, Kind::Bytes, nullptr, {}, count};
}

inline Field InlineWide(const char* name, size_t offset, size_t chars) {
  return Field{name, offset, Kind::Wide, nullptr, {}, chars};
}

inline Field Variant(const When& when, Field field) {
  field.when = &when;
  return field;
}

}  // namespace sim::layout
