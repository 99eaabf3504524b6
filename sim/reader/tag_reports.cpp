#include "reader/tag_reports.h"

#include "record/captured_fields.h"

namespace sim {
namespace {

TagRead eventRecord(const TagRead& read, TagEvent event, const SystemTime& now) {
  TagRead record = read;
  record.tagEvent = event;
  record.tagEventTime = now;
  return record;
}

}  // namespace

TagReportPlan readTagReportPlan(const Recorder& rec, const std::string& name) {
  TagReportPlan plan;
  const Blob& trigger = rec.captured(name);
  if (!trigger.present) return plan;
  plan.everyNTags = fieldAt<uint32_t>(trigger, 36);
  const Blob& events = rec.captured(name + ".tagEventReportInfo");
  if (events.present) {
    plan.newTag = fieldAt<uint32_t>(events, 0);
    plan.invisible = fieldAt<uint32_t>(events, 8);
    plan.invisibleTimeoutMs = fieldAt<uint16_t>(events, 12);
    plan.back = fieldAt<uint32_t>(events, 16);
    plan.moving = fieldAt<uint32_t>(events, 24) != 0;
    plan.stationaryTimeoutMs = fieldAt<uint16_t>(events, 28);
  }
  const Blob& reports = rec.captured(name + ".reportTriggers");
  if (reports.present) plan.periodMs = fieldAt<uint32_t>(reports, 0);
  return plan;
}

void TagReporter::start(const TagReportPlan& plan, uint64_t fieldMs) {
  plan_ = plan;
  sightings_.clear();
  pending_ = 0;
  lastSignalMs_ = fieldMs;
}

uint32_t TagReporter::invisibleAfter() const {
  if (plan_.invisible == TagReportPlan::kModerated && plan_.invisibleTimeoutMs != 0) return plan_.invisibleTimeoutMs;
  return kInvisibleAfterMs;
}

void TagReporter::seen(TagRead& read, uint64_t fieldMs, const SystemTime& now, std::vector<TagRead>* out) {
  const std::string key(read.epc.begin(), read.epc.end());
  auto found = sightings_.find(key);
  if (found == sightings_.end()) {
    if (plan_.newTag != TagReportPlan::kNever) out->push_back(eventRecord(read, kNewTagVisible, now));
    Sighting& s = sightings_[key];
    s.last = read;
    s.firstMs = s.lastMs = fieldMs;
    s.lastMsOn[read.antenna] = fieldMs;
    return;
  }
  Sighting& s = found->second;
  if (!s.visible && plan_.back != TagReportPlan::kNever) out->push_back(eventRecord(read, kTagBackToVisibility, now));
  auto on = s.lastMsOn.find(read.antenna);
  const bool newAntenna = on == s.lastMsOn.end() || fieldMs - on->second >= invisibleAfter();
  if (plan_.moving && s.visible && s.firstMs != fieldMs && newAntenna) {
    out->push_back(eventRecord(read, kTagMoving, now));
    s.movedMs = fieldMs;
    s.stationaryReported = false;
  }
  const uint32_t stationaryAfter = plan_.stationaryTimeoutMs != 0 ? plan_.stationaryTimeoutMs : kStationaryAfterMs;
  if (plan_.moving && !s.stationaryReported && fieldMs - s.movedMs >= stationaryAfter) {
    out->push_back(eventRecord(read, kTagStationary, now));
    s.stationaryReported = true;
  }
  s.last = read;
  s.lastMs = fieldMs;
  s.lastMsOn[read.antenna] = fieldMs;
  s.visible = true;
}

std::vector<TagRead> TagReporter::reportsOf(std::vector<TagRead> reads, uint64_t fieldMs, const SystemTime& now) {
  if (!plan_.eventsReported()) return reads;
  std::vector<TagRead> out;
  for (TagRead& read : reads) seen(read, fieldMs, now, &out);
  for (auto& entry : sightings_) {
    Sighting& s = entry.second;
    if (!s.visible || fieldMs - s.lastMs < invisibleAfter()) continue;
    s.visible = false;
    if (plan_.invisible != TagReportPlan::kNever) out.push_back(eventRecord(s.last, kTagNotVisible, now));
  }
  return out;
}

bool TagReporter::signalDue(size_t buffered, uint64_t fieldMs) {
  pending_ += buffered;
  if (pending_ == 0) return false;
  const bool counted = plan_.everyNTags != 0;
  const bool periodic = plan_.periodMs != 0;
  const bool due = (counted && pending_ >= plan_.everyNTags) ||
                   (periodic && fieldMs - lastSignalMs_ >= plan_.periodMs) || (!counted && !periodic);
  if (!due) return false;
  pending_ = 0;
  lastSignalMs_ = fieldMs;
  return true;
}

}  // namespace sim
