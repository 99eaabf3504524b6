// Shorthands for the fields of a record description (record_layout.h), shared
// by the files that describe records.
#pragma once

#include "record/record_layout.h"

namespace sim::layout {

inline Field Scalar(const char* name, size_t offset, Kind kind) { return Field{name, offset, kind}; }

inline Field PointerTo(const char* name, size_t offset, const Record& record, const When* when = nullptr) {
  return Field{name, offset, Kind::Pointer, &record, {}, 1, when};
}

inline Field PointerToBytes(const char* name, size_t offset, Length length) {
  return Field{name, offset, Kind::Pointer, nullptr, length};
}

inline Field Inside(const char* name, size_t offset, const Record& record, size_t count = 1) {
  return Field{name, offset, Kind::Embedded, &record, {}, count};
}

inline Field InlineBytes(const char* name, size_t offset, size_t count) {
  return Field{name, offset, Kind::Bytes, nullptr, {}, count};
}

// An inline wide string of `chars` characters.
inline Field InlineWide(const char* name, size_t offset, size_t chars) {
  return Field{name, offset, Kind::Wide, nullptr, {}, chars};
}

inline Field Variant(const When& when, Field field) {
  field.when = &when;
  return field;
}

}  // namespace sim::layout
