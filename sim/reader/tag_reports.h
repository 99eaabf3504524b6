// How a running operation reports what it reads: tag events instead of every
// read when the trigger asks for them (TAG_EVENT_REPORT_INFO), and when the
// reader signals TAG_READ (REPORT_TRIGGERS and the trigger's tag report
// count).
//
// Tag events, each one tag record with its event code and time stamp:
// - new tag visible: the first read of a tag in this run;
// - tag not visible: no antenna has read it for the invisible time-out (its
//   moderated time-out when that report is MODERATED and the time-out is
//   not 0, else kInvisibleAfterMs of the field's time);
// - back to visibility: read again after it was not visible;
// - moving: while visible, read by an antenna that has not read it within
//   the invisible time-out (not in the round it appeared); stationary: read
//   for the stationary time-out (kStationaryAfterMs when 0) since it moved.
// A report of NEVER drops that kind; IMMEDIATE and MODERATED report it.
// While any event is reported, plain reads are not.
//
// TAG_READ: after every round with reads by default; with a tag report
// count N, once N records were buffered since the last signal; with a
// periodic report duration P, at most once every P ms of field time.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "record/journal.h"
#include "reader/tag_read.h"

namespace sim {

enum TagEvent : uint32_t {
  kNoTagEvent = 0,
  kNewTagVisible = 1,
  kTagNotVisible = 2,
  kTagBackToVisibility = 3,
  kTagMoving = 4,
  kTagStationary = 5,
};

constexpr uint32_t kInvisibleAfterMs = 500;
constexpr uint32_t kStationaryAfterMs = 1000;

struct TagReportPlan {
  enum Report : uint32_t { kNever = 0, kImmediate = 1, kModerated = 2 };
  uint32_t newTag = kNever;
  uint32_t invisible = kNever;
  uint16_t invisibleTimeoutMs = 0;
  uint32_t back = kNever;
  bool moving = false;
  uint16_t stationaryTimeoutMs = 0;
  uint32_t everyNTags = 0;  // TRIGGER_INFO's tagReportTrigger; 0: none
  uint32_t periodMs = 0;    // REPORT_TRIGGERS' periodic report duration; 0: none

  bool eventsReported() const { return newTag != kNever || invisible != kNever || back != kNever || moving; }
};

// From the captured TRIGGER_INFO (name) and the blobs it points to.
TagReportPlan readTagReportPlan(const Recorder& rec, const std::string& name);

class TagReporter {
 public:
  // A new run of an operation: nothing seen yet.
  void start(const TagReportPlan& plan, uint64_t fieldMs);
  // What a round's reads put into the buffer: the reads, or their events
  // and those of tags that went out of sight.
  std::vector<TagRead> reportsOf(std::vector<TagRead> reads, uint64_t fieldMs, const SystemTime& now);
  // Whether TAG_READ is due after buffering `buffered` records this round.
  bool signalDue(size_t buffered, uint64_t fieldMs);

 private:
  struct Sighting {
    TagRead last;
    uint64_t firstMs = 0;
    uint64_t lastMs = 0;
    std::map<uint16_t, uint64_t> lastMsOn;  // by antenna
    uint64_t movedMs = 0;
    bool visible = true;
    bool stationaryReported = true;
  };
  uint32_t invisibleAfter() const;
  void seen(TagRead& read, uint64_t fieldMs, const SystemTime& now, std::vector<TagRead>* out);

  TagReportPlan plan_;
  std::unordered_map<std::string, Sighting> sightings_;  // by EPC
  size_t pending_ = 0;
  uint64_t lastSignalMs_ = 0;
};

}  // namespace sim
