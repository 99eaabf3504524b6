// Deep capture of a record by its description (record_layout.h): the record
// itself under `name`, what each pointer field points to under
// "<name>.<field>" (records inside records add their field name:
// "<name>.startTrigger.startTime", "<name>.start[3].startTime"), recursively;
// an array of records pointed to is one blob, and what its entries point to
// goes under "<name>.<field>[i].<field>".
// A NULL pointer is captured as an absent blob. Pointers are read from the
// copy just captured, never from the caller's memory again, so a wild
// record faults its blob instead of the process.
//
// `Sink` is anything with blob(name, p, n) and captured(name) returning a
// Blob that stays valid while the sink lives (the journal's Recorder, the
// simulator's ApiCall, the tracer's capture). Returns false when a blob
// could not be read.
#pragma once

#include <string>

#include "record/journal.h"
#include "record/record_layout.h"

namespace sim::layout {

template <class Sink>
bool captureRecord(Sink& sink, const std::string& name, const void* p, const Record& record);

template <class Sink>
bool captureBytes(Sink& sink, const std::string& name, const void* p, size_t n) {
  sink.blob(name, p, n);
  return !sink.captured(name).faulted;
}

// Follows the pointers of the record at base within the blob captured as
// `name`; path is the prefix of the names of what they point to.
template <class Sink>
bool capturePointees(Sink& sink, const std::string& path, const std::string& name, size_t base,
                     const Record& record) {
  bool ok = true;
  for (const Field& field : record.fields) {
    if (!Applies(field, sink.captured(name).bytes, base)) continue;
    if (field.kind == Kind::Embedded) {
      for (size_t i = 0; i < field.count; ++i) {
        ok = capturePointees(sink, path + "." + EntryName(field, i), name,
                             base + field.offset + i * field.record->size, *field.record) && ok;
      }
      continue;
    }
    if (!Followed(field)) continue;
    const std::vector<uint8_t>& bytes = sink.captured(name).bytes;
    const void* target = reinterpret_cast<const void*>(UnsignedAt(bytes, base + field.offset, 8));
    const std::string child = path + "." + field.name;
    if (PointsToRecords(field)) {
      const size_t count = RecordCount(field, bytes, base);
      ok = captureBytes(sink, child, target, count * field.record->size) && ok;
      for (size_t i = 0; target != nullptr && i < count; ++i) {
        ok = capturePointees(sink, child + "[" + std::to_string(i) + "]", child, i * field.record->size,
                             *field.record) && ok;
      }
    } else if (field.record != nullptr) {
      ok = captureRecord(sink, child, target, *field.record) && ok;
    } else {
      ok = captureBytes(sink, child, target, LengthIn(field.length, bytes, base)) && ok;
    }
  }
  return ok;
}

template <class Sink>
bool captureRecord(Sink& sink, const std::string& name, const void* p, const Record& record) {
  bool ok = captureBytes(sink, name, p, record.size);
  if (p == nullptr) return ok;
  return capturePointees(sink, name, name, 0, record) && ok;
}

}  // namespace sim::layout
