#include "record/record_layout.h"

namespace sim::layout {

size_t ScalarBytes(Kind kind) {
  switch (kind) {
    case Kind::U8: case Kind::I8: case Kind::Bool: return 1;
    case Kind::U16: case Kind::I16: return 2;
    case Kind::U32: case Kind::I32: return 4;
    case Kind::U64: case Kind::I64: case Kind::Pointer: return 8;
    default: return 0;
  }
}

uint64_t UnsignedAt(const std::vector<uint8_t>& bytes, size_t offset, size_t width) {
  if (width > 8 || offset > bytes.size() || width > bytes.size() - offset) return 0;
  uint64_t value = 0;
  for (size_t i = 0; i < width; ++i) value |= static_cast<uint64_t>(bytes[offset + i]) << (8 * i);
  return value;
}

size_t LengthIn(const Length& length, const std::vector<uint8_t>& bytes, size_t base) {
  if (length.width == 0) return length.fixed;
  const uint64_t units = UnsignedAt(bytes, base + length.at, length.width) * length.times;
  return static_cast<size_t>(length.roundUp ? (units + length.per - 1) / length.per : units / length.per);
}

bool Applies(const Field& field, const std::vector<uint8_t>& bytes, size_t base) {
  return field.when == nullptr || UnsignedAt(bytes, base + field.when->at, 4) == field.when->equals;
}

std::string EntryName(const Field& field, size_t i) {
  return field.count == 1 ? field.name : std::string(field.name) + "[" + std::to_string(i) + "]";
}

}  // namespace sim::layout
