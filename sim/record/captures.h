// Deep captures of the records that inventory, locate, EAS scan and the tag
// access operations receive, by their descriptions in record/record_layouts.h
// (see record/capture_record.h for the blob names: the record under `name`,
// what it points to under "<name>.<field>"; a NULL pointer is an absent
// blob). The call tracer captures the same records from the same
// descriptions.
//
// `Sink` is the journal's Recorder or anything with the same blob(name, p,
// n) and captured(name); capture before the call's entry is finished. Each
// routine returns false when a blob could not be read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "record/journal.h"
#include "record/captured_fields.h"
#include "record/capture_record.h"
#include "record/record_layouts.h"

namespace sim {

// How the simulator's readers of captured records find the blobs.
using CapturedBlobs = std::function<const Blob&(const std::string& name)>;

template <class Sink>
CapturedBlobs capturedOf(const Sink& sink) {
  return [&sink](const std::string& name) -> const Blob& { return sink.captured(name); };
}

namespace capture {

inline size_t bitsToBytes(uint16_t bits) { return (static_cast<size_t>(bits) + 7) / 8; }

}  // namespace capture

template <class Sink>
bool captureAntennaInfo(Sink& rec, const std::string& name, const void* p) {
  return layout::captureRecord(rec, name, p, layout::AntennaInfo());
}

template <class Sink>
bool captureTagPattern(Sink& rec, const std::string& name, const void* p) {
  return layout::captureRecord(rec, name, p, layout::TagPattern());
}

// ACCESS_FILTER and POST_FILTER share one layout.
template <class Sink>
bool captureFilter(Sink& rec, const std::string& name, const void* p) {
  return layout::captureRecord(rec, name, p, layout::Filter());
}

template <class Sink>
bool captureTriggerInfo(Sink& rec, const std::string& name, const void* p) {
  return layout::captureRecord(rec, name, p, layout::TriggerInfo());
}

template <class Sink>
bool capturePreFilter(Sink& rec, const std::string& name, const void* p) {
  return layout::captureRecord(rec, name, p, layout::PreFilter());
}

}  // namespace sim
