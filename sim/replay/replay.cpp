#include "replay/replay.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <mutex>
#include <thread>
#include <vector>

#include "reader/event_objects.h"
#include "reader/tag_read.h"
#include "reader/tag_records.h"
#include "record/api_functions.h"
#include "record/call_capture.h"
#include "record/json.h"
#include "record/record_layouts.h"
#include "record/trace_line.h"

namespace sim::replay {
namespace {

using api::Arg;
using api::ArgSpec;
using api::FunctionSpec;
using layout::Field;
using layout::Kind;
using layout::Record;
using trace::TracedCall;

struct State {
  std::mutex mutex;
  bool started = false;
  bool fromEnvironment = false;
  std::vector<TracedCall> calls;
  size_t next = 0;
  std::string divergence;
};

State& state() {
  static State* instance = new State;
  return *instance;
}

// The bytes of a blob that a field covers, by the field's path.
struct Span {
  size_t offset;
  size_t size;
  std::string path;
  bool pointer;
};

using Spans = std::map<std::string, std::vector<Span>>;

void CollectSpans(const Record& record, const std::string& path, const std::string& blobName, size_t base,
                  const std::map<std::string, Blob>& blobs, Spans* spans) {
  auto it = blobs.find(blobName);
  static const std::vector<uint8_t> none;
  const std::vector<uint8_t>& bytes = it == blobs.end() ? none : it->second.bytes;
  for (const Field& field : record.fields) {
    if (!layout::Applies(field, bytes, base)) continue;
    const size_t at = base + field.offset;
    const std::string fieldPath = path + "." + field.name;
    if (field.kind == Kind::Embedded) {
      for (size_t i = 0; i < field.count; ++i) {
        CollectSpans(*field.record, path + "." + layout::EntryName(field, i), blobName, at + i * field.record->size,
                     blobs, spans);
      }
      continue;
    }
    size_t size = layout::ScalarBytes(field.kind);
    if (field.kind == Kind::Bytes) size = field.count;
    if (field.kind == Kind::Wide) size = field.count * 4;
    (*spans)[blobName].push_back({at, size, fieldPath, field.kind == Kind::Pointer});
    if (layout::PointsToRecords(field)) {
      auto pointee = blobs.find(fieldPath);
      const size_t count = pointee == blobs.end() ? 0 : pointee->second.bytes.size() / field.record->size;
      for (size_t i = 0; i < count; ++i) {
        CollectSpans(*field.record, fieldPath + "[" + std::to_string(i) + "]", fieldPath, i * field.record->size,
                     blobs, spans);
      }
    } else if (field.kind == Kind::Pointer && field.record != nullptr) {
      CollectSpans(*field.record, fieldPath, fieldPath, 0, blobs, spans);
    }
  }
}

Spans SpansOf(const FunctionSpec& fn, const std::map<std::string, Blob>& blobs) {
  Spans spans;
  for (const ArgSpec& arg : fn.args) {
    if (arg.kind == Arg::TagList || arg.kind == Arg::TagArray) {
      auto it = blobs.find(arg.name);
      const size_t n = it == blobs.end() ? 0 : it->second.bytes.size() / 8;
      for (size_t i = 0; i < n; ++i) {
        spans[arg.name].push_back({i * 8, 8, api::TagEntryName(arg, i), true});
        CollectSpans(*arg.record, api::TagEntryName(arg, i), api::TagEntryName(arg, i), 0, blobs, &spans);
      }
    } else if (arg.record != nullptr) {
      CollectSpans(*arg.record, arg.name, arg.name, 0, blobs, &spans);
    }
  }
  return spans;
}

const Span* SpanAt(const Spans& spans, const std::string& blob, size_t byte) {
  auto it = spans.find(blob);
  if (it == spans.end()) return nullptr;
  for (const Span& span : it->second) {
    if (byte >= span.offset && byte < span.offset + span.size) return &span;
  }
  return nullptr;
}

std::string Byte(const std::vector<uint8_t>& bytes, size_t i) {
  if (i >= bytes.size()) return "none";
  char text[8];
  std::snprintf(text, sizeof text, "%02x", bytes[i]);
  return text;
}

// The first difference of a captured blob from the traced one, or "".
std::string BlobDifference(const std::string& name, const Blob& got, const Blob& traced, const Spans& spans) {
  if (got.present != traced.present) {
    return name + (got.present ? " is given, the trace has NULL" : " is NULL, the trace has it given");
  }
  if (got.faulted != traced.faulted) return name + (got.faulted ? " cannot be read" : " can be read, the trace could not");
  const size_t n = std::max(got.bytes.size(), traced.bytes.size());
  for (size_t i = 0; i < n; ++i) {
    const Span* span = SpanAt(spans, name, i);
    if (span != nullptr && span->pointer) continue;
    // Padding and bytes the library leaves as it found them (what no field
    // of a described record covers) are not the library's to repeat.
    if (span == nullptr && spans.count(name) != 0) continue;
    if (i < got.bytes.size() && i < traced.bytes.size() && got.bytes[i] == traced.bytes[i]) continue;
    std::string where = name + " byte " + std::to_string(i);
    if (span != nullptr) where += " (field " + span->path + ")";
    return where + " is " + Byte(got.bytes, i) + ", the trace has " + Byte(traced.bytes, i);
  }
  return "";
}

// Values the reader handed out, not the caller's to repeat exactly; and a
// wait's timeout, which an application works out from its clock.
bool HandedOut(const ArgSpec& arg) {
  return std::strcmp(arg.name, "handle") == 0 || std::strcmp(arg.name, "event") == 0 ||
         std::strcmp(arg.name, "passThrough") == 0 || std::strcmp(arg.name, "timeoutMs") == 0;
}

bool IsWait(const std::string& fn) {
  return fn == "rfidUtils_WaitForSingleObject" || fn == "rfidUtils_WaitForMultipleObjects";
}

// A poll the trace answered with "nothing yet": a wait that timed out, a
// fetch that found no tag, event data that was not there. How many of these
// an application makes depends on its clock, not on the reader, so a replay
// lets the application make more or fewer of them than the trace holds.
bool IsIdlePoll(const TracedCall& traced) {
  if (IsWait(traced.function)) return traced.result == kWaitTimeout;
  if (traced.function == "rfid_GetReadTags") {
    auto count = traced.out.find("count");
    return traced.result != 0 || (count != traced.out.end() && layout::UnsignedAt(count->second.bytes, 0, 4) == 0);
  }
  return (traced.function == "RFID_GetReadTag" || traced.function == "RFID_GetEventData") && traced.result != 0;
}

// A wide string is compared as text: up to its terminator, however much of
// the buffer behind it was captured.
bool IsWideArg(const FunctionSpec& fn, const std::string& name) {
  for (const ArgSpec& arg : fn.args) {
    if (arg.kind == Arg::Wide && name == arg.name) return true;
  }
  return false;
}

Blob WideText(Blob blob) {
  for (size_t i = 0; i + 4 <= blob.bytes.size(); i += 4) {
    if (layout::UnsignedAt(blob.bytes, i, 4) == 0) {
      blob.bytes.resize(i);
      break;
    }
  }
  return blob;
}

bool operator!=(const Blob& a, const Blob& b) {
  return a.present != b.present || a.faulted != b.faulted || a.bytes != b.bytes;
}

std::string Difference(const Call& call, const TracedCall& traced) {
  if (call.fn != traced.function) return "the trace has " + traced.function + " here";
  const FunctionSpec* fn = api::FindFunction(call.fn);
  if (fn == nullptr) return "";
  for (size_t i = 0; i < fn->args.size() && i < call.args.size() && i < traced.args.size(); ++i) {
    const ArgSpec& arg = fn->args[i];
    if (arg.kind != Arg::Int || HandedOut(arg)) continue;
    const uint64_t got = api::UnsignedValue(arg, call.args[i]);
    const uint64_t want = api::UnsignedValue(arg, traced.args[i].value);
    if (got != want) {
      return std::string("argument ") + arg.name + " is " + std::to_string(api::SignedValue(arg, got)) +
             ", the trace has " + std::to_string(api::SignedValue(arg, want));
    }
  }
  const Spans spans = SpansOf(*fn, traced.in);
  for (const auto& [name, blob] : traced.in) {
    auto got = call.blobs.find(name);
    if (got == call.blobs.end()) continue;  // not captured by the simulator
    if (IsWideArg(*fn, name)) {
      if (WideText(got->second) != WideText(blob)) return name + " differs from the traced text";
      continue;
    }
    std::string difference = BlobDifference(name, got->second, blob, spans);
    if (!difference.empty()) return difference;
  }
  return "";
}

template <class T>
T FieldValue(const Blob& blob, const char* name) {
  for (const Field& field : layout::TagData().fields) {
    if (std::strcmp(field.name, name) == 0) {
      return static_cast<T>(layout::UnsignedAt(blob.bytes, field.offset, sizeof(T)));
    }
  }
  return T{};
}

SystemTime TimeAt(const Blob& blob, size_t offset) {
  SystemTime time{};
  for (size_t i = 0; i < time.size(); ++i) time[i] = static_cast<uint16_t>(layout::UnsignedAt(blob.bytes, offset + 2 * i, 2));
  return time;
}

// A traced tag record as a read of the simulated reader.
TagRead TracedRead(const std::map<std::string, Blob>& out, const std::string& name) {
  auto blob = [&](const std::string& n) -> const Blob& {
    static const Blob absent;
    auto it = out.find(n);
    return it == out.end() ? absent : it->second;
  };
  const Blob& record = blob(name);
  TagRead read;
  read.epc = blob(name + ".pTagID").bytes;
  read.pc = FieldValue<uint16_t>(record, "PC");
  read.xpc = FieldValue<uint32_t>(record, "XPC");
  read.crc = FieldValue<uint16_t>(record, "CRC");
  read.antenna = FieldValue<uint16_t>(record, "antennaID");
  read.peakRssi = FieldValue<int8_t>(record, "peakRSSI");
  read.channelIndex = FieldValue<int16_t>(record, "channelIndex");
  read.phase = FieldValue<int16_t>(record, "phaseInfo");
  read.seenCount = FieldValue<uint16_t>(record, "tagSeenCount");
  read.firstSeen.utc = TimeAt(record, 40);
  read.lastSeen.utc = TimeAt(record, 56);
  const Blob& location = blob(name + ".pLocationInfo");
  read.hasLocation = location.present && location.bytes.size() >= 2;
  if (read.hasLocation) read.relativeDistance = static_cast<int16_t>(layout::UnsignedAt(location.bytes, 0, 2));
  read.memoryBankData = blob(name + ".pMemoryBankData").bytes;
  return read;
}

// Writes the traced record `name` into the caller's record at dst, by its
// description, and then what its pointers pointed to: into the caller's own
// buffer where the caller's record points to one already, otherwise into
// memory kept for the process (the reader's own tables and lists).
void WriteRecord(const Record& record, const std::map<std::string, Blob>& out, const std::string& name, uint8_t* dst);

const Blob* TracedBlob(const std::map<std::string, Blob>& out, const std::string& name) {
  auto it = out.find(name);
  return it == out.end() || !it->second.present || it->second.faulted ? nullptr : &it->second;
}

void WritePointees(const Record& record, const std::map<std::string, Blob>& out, const std::string& path,
                   uint8_t* dst, const std::vector<uint8_t>& callers) {
  for (const Field& field : record.fields) {
    if (!layout::Applies(field, callers, 0)) continue;
    if (field.kind == Kind::Embedded) {
      for (size_t i = 0; i < field.count; ++i) {
        const size_t at = field.offset + i * field.record->size;
        const std::vector<uint8_t> inner(callers.begin() + std::min(at, callers.size()),
                                         callers.begin() + std::min(at + field.record->size, callers.size()));
        WritePointees(*field.record, out, path + "." + layout::EntryName(field, i), dst + at, inner);
      }
      continue;
    }
    if (field.kind != Kind::Pointer) continue;
    if (!layout::Followed(field)) {
      // A text the trace could not follow (a name the reader points to): the
      // traced address means nothing here, an empty text stands in for it.
      static const wchar_t kNoText[1] = {L'\0'};
      if (layout::UnsignedAt(std::vector<uint8_t>(dst + field.offset, dst + field.offset + 8), 0, 8) != 0) {
        const uint64_t address = reinterpret_cast<uintptr_t>(kNoText);
        std::memcpy(dst + field.offset, &address, sizeof address);
      }
      continue;
    }
    const std::string child = path + "." + field.name;
    const Blob* pointee = TracedBlob(out, child);
    auto* own = reinterpret_cast<uint8_t*>(layout::UnsignedAt(callers, field.offset, 8));
    uint8_t* target = nullptr;
    if (pointee != nullptr) {
      target = own != nullptr ? own : static_cast<uint8_t*>(keepAlive(pointee->bytes));
      if (own != nullptr) std::memcpy(own, pointee->bytes.data(), pointee->bytes.size());
    }
    const uint64_t address = reinterpret_cast<uintptr_t>(target);
    std::memcpy(dst + field.offset, &address, sizeof address);
    if (target == nullptr || field.record == nullptr) continue;
    const size_t entries = layout::PointsToRecords(field) ? pointee->bytes.size() / field.record->size : 1;
    for (size_t i = 0; i < entries; ++i) {
      const std::string entry = layout::PointsToRecords(field) ? child + "[" + std::to_string(i) + "]" : child;
      uint8_t* at = target + i * field.record->size;
      WritePointees(*field.record, out, entry, at, std::vector<uint8_t>(at, at + field.record->size));
    }
  }
}

void WriteRecord(const Record& record, const std::map<std::string, Blob>& out, const std::string& name, uint8_t* dst) {
  const Blob* traced = TracedBlob(out, name);
  if (traced == nullptr) return;
  const std::vector<uint8_t> callers(dst, dst + record.size);  // the caller's own pointers
  std::memcpy(dst, traced->bytes.data(), std::min(record.size, traced->bytes.size()));
  WritePointees(record, out, name, dst, callers);
}

void WriteOutputs(const Call& call, const TracedCall& traced) {
  const FunctionSpec* fn = api::FindFunction(call.fn);
  if (fn == nullptr) return;
  for (size_t i = 0; i < fn->args.size() && i < call.args.size(); ++i) {
    const ArgSpec& arg = fn->args[i];
    auto out = traced.out.find(arg.name);
    void* dst = reinterpret_cast<void*>(call.args[i]);
    if (dst == nullptr || out == traced.out.end() || !out->second.present) continue;
    const Record* record = api::RecordOf(*fn, arg, call.args.data());
    if (arg.kind == Arg::InOut && record == nullptr) {
      std::memcpy(dst, out->second.bytes.data(), std::min(arg.bytes, out->second.bytes.size()));
    } else if (arg.kind == Arg::InOut && record == &layout::TagData()) {
      if (isTagRecord(dst)) fillTagRecord(dst, TracedRead(traced.out, arg.name), RecordFill());
    } else if (arg.kind == Arg::InOut) {
      WriteRecord(*record, traced.out, arg.name, static_cast<uint8_t*>(dst));
    } else if (arg.kind == Arg::TagArray) {
      const size_t n = out->second.bytes.size() / sizeof(void*);
      auto** records = static_cast<void**>(dst);
      for (size_t k = 0; k < n; ++k) {
        records[k] = allocateTagRecord(static_cast<int64_t>(call.args[0]));
        if (records[k] != nullptr) fillTagRecord(records[k], TracedRead(traced.out, api::TagEntryName(arg, k)), RecordFill());
      }
    }
  }
}

bool Load(const std::string& path, std::vector<TracedCall>* calls, std::string* error) {
  std::ifstream in(path);
  if (!in) {
    *error = "cannot open " + path;
    return false;
  }
  size_t number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    json::ParseResult parsed = json::Parse(line);
    TracedCall call;
    std::string why;
    if (!parsed.value || !trace::FromJson(*parsed.value, &call, &why)) {
      *error = path + ":" + std::to_string(number) + ": " + (parsed.value ? why : parsed.error);
      return false;
    }
    calls->push_back(std::move(call));
  }
  return true;
}

void Report(const std::string& text) { std::fprintf(stderr, "halyard-sim replay: %s\n", text.c_str()); }

// HALYARD_SIM_REPLAY, taken at the first call.
void StartFromEnvironment(State& s) {
  if (s.fromEnvironment) return;
  s.fromEnvironment = true;
  const char* path = std::getenv("HALYARD_SIM_REPLAY");
  if (path == nullptr || *path == '\0') return;
  std::string error;
  s.started = true;
  if (!Load(path, &s.calls, &error)) {
    s.divergence = "cannot replay: " + error;
    Report(s.divergence);
  }
}

}  // namespace

bool active() {
  State& s = state();
  std::lock_guard<std::mutex> lock(s.mutex);
  StartFromEnvironment(s);
  return s.started;
}

bool start(const std::string& path, std::string* error) {
  std::vector<TracedCall> calls;
  if (!Load(path, &calls, error)) return false;
  State& s = state();
  std::lock_guard<std::mutex> lock(s.mutex);
  s.fromEnvironment = true;
  s.started = true;
  s.calls = std::move(calls);
  s.next = 0;
  s.divergence.clear();
  return true;
}

void stop() {
  State& s = state();
  std::lock_guard<std::mutex> lock(s.mutex);
  s.fromEnvironment = true;
  s.started = false;
  s.calls.clear();
  s.divergence.clear();
}

std::string divergence() {
  State& s = state();
  std::lock_guard<std::mutex> lock(s.mutex);
  return s.divergence;
}

namespace {

// The traced call that answers this one: the next in the trace, past idle
// polls the application no longer makes; or, for an idle poll the trace
// holds fewer of, the last idle answer of that function before it (the
// first one when there is none before). nullptr when nothing matches.
const TracedCall* Match(State& s, const Call& call) {
  for (size_t at = s.next; at < s.calls.size(); ++at) {
    if (Difference(call, s.calls[at]).empty()) {
      s.next = at + 1;
      return &s.calls[at];
    }
    if (!IsIdlePoll(s.calls[at])) break;
  }
  const TracedCall* idle = nullptr;
  for (size_t at = 0; at < s.calls.size() && (idle == nullptr || at < s.next); ++at) {
    const TracedCall& traced = s.calls[at];
    if (traced.function == call.fn && IsIdlePoll(traced) && Difference(call, traced).empty()) idle = &traced;
  }
  return idle;
}

// How long a wait answered from the trace takes: as long as it took there,
// but no longer than this caller asked to wait.
std::chrono::nanoseconds WaitTime(const Call& call, const TracedCall& traced) {
  if (!IsWait(call.fn)) return std::chrono::nanoseconds(0);
  const size_t timeoutArg = call.fn == "rfidUtils_WaitForSingleObject" ? 1 : 3;
  const int64_t asked = timeoutArg < call.args.size() ? static_cast<int64_t>(call.args[timeoutArg]) : 0;
  int64_t nanos = std::max<int64_t>(traced.durationNanos, 0);
  if (asked >= 0 && static_cast<uint64_t>(asked) < 0xFFFFFFFFu) nanos = std::min(nanos, asked * 1000000);
  return std::chrono::nanoseconds(nanos);
}

}  // namespace

bool answer(const Call& call, int32_t* status) {
  State& s = state();
  std::chrono::nanoseconds wait{0};
  {
    std::lock_guard<std::mutex> lock(s.mutex);
    StartFromEnvironment(s);
    if (!s.started) return false;
    *status = kReplayDiverged;
    if (!s.divergence.empty()) return true;
    const size_t number = s.next + 1;
    const size_t expected = s.next;
    const TracedCall* traced = Match(s, call);
    if (traced == nullptr) {
      s.divergence = expected >= s.calls.size()
                         ? "call " + std::to_string(number) + " (" + call.fn + "): the trace ends after " +
                               std::to_string(s.calls.size()) + " calls"
                         : "call " + std::to_string(number) + " (" + call.fn + ") differs from the trace: " +
                               Difference(call, s.calls[expected]);
      Report(s.divergence);
      return true;
    }
    WriteOutputs(call, *traced);
    // Handles and records the simulator hands out stay its own; statuses come from the trace.
    const api::FunctionSpec* fn = api::FindFunction(call.fn);
    *status = fn == nullptr || fn->result == api::Result::Status ? static_cast<int32_t>(traced->result) : 0;
    wait = WaitTime(call, *traced);
  }
  // Outside the lock: other threads' calls go on meanwhile.
  if (wait.count() > 0) std::this_thread::sleep_for(wait);
  return true;
}

}  // namespace sim::replay
