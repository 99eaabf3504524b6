#include "record/record_layout.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace sim::layout {

size_t ScalarBytes(Kind kind) {
  switch (kind) {
    case Kind::U8: case Kind::I8: case Kind::Bool: return 1;
    case Kind::U16: case Kind::I16: return 2;
    case Kind::U32: case Kind::I32: case Kind::F32: return 4;
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

bool Followed(const Field& field) {
  return field.kind == Kind::Pointer && (field.record != nullptr || field.length.width != 0 || field.length.fixed != 0);
}

bool PointsToRecords(const Field& field) {
  return field.kind == Kind::Pointer && field.record != nullptr && (field.length.width != 0 || field.length.fixed != 0);
}

size_t RecordCount(const Field& field, const std::vector<uint8_t>& bytes, size_t base) {
  return field.record->size == 0 ? 0 : LengthIn(field.length, bytes, base) / field.record->size;
}

bool Applies(const Field& field, const std::vector<uint8_t>& bytes, size_t base) {
  return field.when == nullptr || UnsignedAt(bytes, base + field.when->at, 4) == field.when->equals;
}

std::string EntryName(const Field& field, size_t i) {
  return field.count == 1 ? field.name : std::string(field.name) + "[" + std::to_string(i) + "]";
}

namespace {

[[noreturn]] void NoSuchField(const Record& record, const std::string& path, const char* why) {
  std::fprintf(stderr, "halyard-sim: %s: field %s %s\n", record.name, path.c_str(), why);
  std::abort();
}

// The field named by one step of a path ("name" or "name[i]"), and the
// entry's offset from the start of the record.
const Field* Step(const Record& record, const std::string& step, size_t* offset) {
  const size_t open = step.find('[');
  const std::string name = step.substr(0, open);
  for (const Field& field : record.fields) {
    if (name != field.name) continue;
    size_t index = 0;
    if (open != std::string::npos) {
      char* end = nullptr;
      index = std::strtoul(step.c_str() + open + 1, &end, 10);
      if (field.kind != Kind::Embedded || *end != ']' || end[1] != '\0' || index >= field.count) return nullptr;
    }
    *offset = field.offset + (field.kind == Kind::Embedded ? index * field.record->size : 0);
    return &field;
  }
  return nullptr;
}

}  // namespace

size_t OffsetOf(const Record& record, const std::string& path, size_t bytes) {
  const Record* inside = &record;
  size_t offset = 0;
  size_t from = 0;
  while (true) {
    const size_t dot = path.find('.', from);
    size_t at = 0;
    const Field* field = Step(*inside, path.substr(from, dot == std::string::npos ? std::string::npos : dot - from), &at);
    if (field == nullptr) NoSuchField(record, path, "is not described");
    offset += at;
    if (dot == std::string::npos) {
      if (ScalarBytes(field->kind) != bytes) NoSuchField(record, path, "is not of that width");
      return offset;
    }
    if (field->kind != Kind::Embedded) NoSuchField(record, path, "goes through a field that holds no record");
    inside = field->record;
    from = dot + 1;
  }
}

}  // namespace sim::layout
