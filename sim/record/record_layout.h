// Records of the C API described as data: each field by name, offset and
// kind, and for a pointer field what it points to and how many bytes that
// is. One description per record serves everything that reads records from
// the reader's side: the simulator's deep captures (capture_record.h) and
// the call tracer's decoding of what it captured.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace sim::layout {

enum class Kind : uint8_t {
  U8, I8, U16, I16, U32, I32, U64, I64,
  F32,       // an IEEE single-precision number
  Bool,      // one byte, 0 or 1 as the library writes it
  Pointer,   // eight bytes; see Field::target / Field::length
  Embedded,  // a record (or an array of records) inside this one
  Bytes,     // an inline byte array of Field::count bytes
  Wide,      // an inline NUL-terminated wchar_t array of Field::count characters
};

struct Record;

// How many bytes a pointer field's target holds when it is not a record:
// fixed bytes, or the unsigned field of `width` bytes at offset `at` (of
// the record holding the pointer) times `times`, divided by `per`, rounded
// up or down.
struct Length {
  size_t fixed = 0;
  size_t at = 0;
  uint8_t width = 0;  // 0: fixed
  size_t times = 1;
  size_t per = 1;
  bool roundUp = false;
};

inline constexpr Length Fixed(size_t bytes) { return Length{bytes, 0, 0, 1, 1, false}; }
inline constexpr Length CountOf(size_t at, uint8_t width, size_t elementBytes) {
  return Length{0, at, width, elementBytes, 1, false};
}
inline constexpr Length BitsToBytes(size_t at, uint8_t width) { return Length{0, at, width, 1, 8, true}; }
inline constexpr Length BitsToWholeBytes(size_t at, uint8_t width) { return Length{0, at, width, 1, 8, false}; }

// A field that means something only when the 32-bit selector at `at` (of the
// record holding the field) equals `equals`: the variants of a union.
struct When {
  size_t at;
  uint32_t equals;
};

struct Field {
  const char* name;
  size_t offset;
  Kind kind;
  const Record* record = nullptr;  // Embedded: the record inside; Pointer: the record pointed to
  // Pointer without record: the bytes pointed to (none when zero). Pointer
  // with a record and a length: an array of records of those bytes in all,
  // its entries named "name[i]".
  Length length{};
  size_t count = 1;                // Embedded: entries ("name[i]"); Bytes, Wide: elements
  const When* when = nullptr;
};

struct Record {
  const char* name;
  size_t size;
  std::vector<Field> fields;
};

// Bytes of a scalar kind; 0 for the others.
size_t ScalarBytes(Kind kind);

// The field's length rule applied to a record's bytes (base: where the
// record starts in them). Fields beyond the bytes read as 0.
size_t LengthIn(const Length& length, const std::vector<uint8_t>& bytes, size_t base);

// An unsigned little-endian field of width bytes; 0 beyond the bytes.
uint64_t UnsignedAt(const std::vector<uint8_t>& bytes, size_t offset, size_t width);

// Whether a pointer field is followed: to a record, to records or to bytes.
bool Followed(const Field& field);
// Whether a pointer field points to an array of records.
bool PointsToRecords(const Field& field);
// How many records such an array holds, by its length rule.
size_t RecordCount(const Field& field, const std::vector<uint8_t>& bytes, size_t base);

// Whether a field's condition holds for the record at base.
bool Applies(const Field& field, const std::vector<uint8_t>& bytes, size_t base);

// The name of entry i of an embedded field: "name" for a single record,
// "name[i]" for an array.
std::string EntryName(const Field& field, size_t i);

// Where a field lies in the record, by its name or by a path through
// embedded records ("startTrigger.type", "start[3].startTime"). `bytes` is
// the width the caller reads or writes there: the scalar's width (a pointer
// is 8), or 0 for an embedded record or an inline array. The simulator
// composes and reads records by these names, so the offsets live in the
// descriptions alone. A name the record does not have, or a width that is
// not the field's, is a fault of the simulator's own code: it is said on
// stderr and the process aborts, at the first use of the name.
size_t OffsetOf(const Record& record, const std::string& path, size_t bytes);

}  // namespace sim::layout
