// One line of a call trace (JSON Lines), written by the call tracer and read
// back by orla-trace and the replaying simulator:
//
//   {"seq":1,"time":"2026-11-23T22:40:01.123456789Z","thread":4242,
//    "function":"RFID_Read","duration_ns":2100,"status":0,
//    "args":[{"name":"handle","value":1},{"name":"params","pointer":"0x7ffd..."},...],
//    "in":{"params":"0100...","params.writeData":"30a1",...},
//    "out":{"tag":"c000...","tag.pTagID":"3034..."},
//    "decoded":{"in":{"params":{"memoryBank":1,...}},"out":{"tag":{...}}}}
//
// "in" holds every blob captured before the call, "out" every blob captured
// after it, as hexadecimal bytes; null for a NULL pointer, "fault" for
// memory that could not be read. "decoded" shows each record argument by
// field name, with what its pointers point to inside it. Functions that
// return no status have "result" (a number, or a "0x" address) instead.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "record/api_functions.h"
#include "record/call_capture.h"
#include "record/blob_set.h"
#include "record/json.h"

namespace sim::trace {

struct Entry {
  uint64_t seq = 0;
  int64_t wallNanos = 0;  // since the epoch
  int64_t thread = 0;
  const api::FunctionSpec* fn = nullptr;
  uint64_t args[8] = {};
  uint64_t result = 0;
  int64_t durationNanos = 0;
  BlobSet in;
  BlobSet out;
};

std::string ToJsonLine(const Entry& entry);

// A call as read back from a trace line.
struct TracedArg {
  std::string name;
  bool pointer = false;  // an address: differs from run to run
  uint64_t value = 0;    // as the argument's type reads it, in 64 bits
};

struct TracedCall {
  std::string function;
  uint64_t seq = 0;
  int64_t durationNanos = 0;
  bool hasStatus = false;
  int64_t result = 0;
  std::vector<TracedArg> args;
  std::map<std::string, Blob> in;
  std::map<std::string, Blob> out;
};

// false with a reason when the line is no call of a known function.
bool FromJson(const json::Value& line, TracedCall* call, std::string* error);

// A record's fields by name as a JSON object, following its pointers into
// the blobs captured under name (see capture_record.h).
std::string DecodeRecord(const layout::Record& record, const BlobSet& blobs, const std::string& name);

}  // namespace sim::trace
