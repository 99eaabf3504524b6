// Every function of the C API that liborlajni.so imports, with its
// arguments as the reader sees them: integer values of their width, wide
// strings, byte buffers whose length another argument gives, records (by
// their description in record_layouts.h) and out-parameters. The call
// tracer captures and decodes calls by it; the replaying simulator matches
// calls against a trace and writes the traced outputs back by it. Argument
// names are the names the simulator's journal records their captures under.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "record/record_layout.h"

namespace sim::api {

// WideText: a pointer to a wide string the reader owns, captured as "result".
enum class Result : uint8_t { Status, Int64, Pointer, WideText };

enum class Arg : uint8_t {
  Int,        // an integer of `width` bytes (signed when `isSigned`)
  Pointer,    // an address only: reserved, or a record not decoded
  Wide,       // a NUL-terminated wchar_t string, read in
  Bytes,      // in: the value of argument `lengthArg` times `unit` bytes
  In,         // in: a record
  InOut,      // a record (or `bytes` bytes when record is NULL) the call may write
  TagArray,   // out: an array of tag record pointers, as many as the count
              // behind argument `lengthArg`, each a TAG_DATA
  TagList,    // in: an array of pointers to records (tag records, cable-loss
              // records), `lengthArg` gives the count
};

struct ArgSpec {
  const char* name;
  Arg kind;
  uint8_t width = 8;
  bool isSigned = false;
  const layout::Record* record = nullptr;
  int lengthArg = -1;  // the argument a length depends on, or the record (recordFor)
  size_t unit = 1;
  size_t bytes = 0;
  // In, InOut: the record is the one this gives for the value of argument
  // lengthArg (RFID_GetEventData: the data record of the event type).
  const layout::Record& (*recordFor)(uint32_t value) = nullptr;
};

struct FunctionSpec {
  const char* name;  // the symbol
  Result result;
  std::vector<ArgSpec> args;
};

const std::vector<FunctionSpec>& Functions();
// nullptr for a function the library does not import.
const FunctionSpec* FindFunction(const std::string& name);

// The record an argument points to in a call: its own, or the one the value
// of another argument chooses; nullptr for none.
const layout::Record* RecordOf(const FunctionSpec& fn, const ArgSpec& arg, const uint64_t* args);

// An argument's raw register value as its declared type reads it: sign- or
// zero-extended from its width.
int64_t SignedValue(const ArgSpec& arg, uint64_t raw);
uint64_t UnsignedValue(const ArgSpec& arg, uint64_t raw);

}  // namespace sim::api
