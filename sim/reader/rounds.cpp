#include "reader/rounds.h"

#include <algorithm>

#include "reader/event_signals.h"
#include "reader/field.h"
#include "reader/tag_read.h"
#include "record/session_layouts.h"

namespace sim {
namespace {

constexpr int kChannelCount = 50;
constexpr int kPhaseSteps = 4096;

int randomIn(Reader& reader, int low, int high) {
  return std::uniform_int_distribution<int>(low, high)(reader.random);
}

bool passesWarningLevel(size_t before, size_t after, uint32_t maxTags) {
  const size_t level = std::max<size_t>(1, static_cast<size_t>(maxTags) * 9 / 10);
  return before < level && after >= level;
}

void raiseDataless(const Reader& reader, EventType type) { raiseEvent(reader.handle, type, {}); }

}  // namespace

SeenStamp stampNow(const Reader& reader) { return {utcNow(), reader.upTimeMicros()}; }

int8_t jitteredRssi(Reader& reader, int8_t base) {
  return static_cast<int8_t>(std::clamp(base + randomIn(reader, -kRssiJitterDb, kRssiJitterDb), -128, 127));
}

TagRead makeRead(Reader& reader, const SimTag& tag, uint16_t antenna, int8_t rssi, const SeenStamp& stamp) {
  TagRead read;
  read.epc = tag.epc;
  read.pc = tag.pc;
  read.xpc = tag.xpc;
  read.crc = tag.crc;
  read.antenna = antenna;
  read.peakRssi = rssi;
  read.channelIndex = static_cast<int16_t>(randomIn(reader, 1, kChannelCount));
  read.phase = static_cast<int16_t>(randomIn(reader, 0, kPhaseSteps - 1));
  read.seenCount = 1;
  read.firstSeen = read.lastSeen = stamp;
  return read;
}

TagRead makeRead(Reader& reader, const SimTag& tag, uint16_t antenna) {
  return makeRead(reader, tag, antenna, jitteredRssi(reader, tag.rssiByAntenna.at(antenna)), stampNow(reader));
}

std::vector<Bytes> inventoryRound(Reader& reader, const std::shared_ptr<const Population>& tags,
                                  const std::vector<uint16_t>& antennas,
                                  const std::optional<PostFilterRule>& postFilter) {
  std::vector<TagRead> reads = fieldReads(reader, tags, antennas, postFilter);
  std::vector<Bytes> epcs;
  for (const TagRead& r : reads) epcs.push_back(r.epc);
  bufferReads(reader, reader.reports.reportsOf(std::move(reads), reader.field.fieldMs, utcNow()));
  return epcs;
}

std::vector<Bytes> bufferReads(Reader& reader, const std::vector<TagRead>& reads) {
  const uint32_t maxTags = reader.storage.maxTagCount();
  const size_t before = reader.buffer.size();
  std::vector<Bytes> read;
  bool dropped = false;
  for (const TagRead& r : reads) {
    if (reader.buffer.add(r, maxTags) == TagBuffer::Added::kDropped) {
      dropped = true;
    } else {
      read.push_back(r.epc);
    }
  }
  if (reader.reports.signalDue(read.size(), reader.field.fieldMs)) raiseDataless(reader, kTagReadEvent);
  if (passesWarningLevel(before, reader.buffer.size(), maxTags)) {
    raiseDataless(reader, kBufferFullWarningEvent);
  }
  if (dropped) raiseDataless(reader, kBufferFullEvent);
  return read;
}

std::vector<Bytes> locateRound(Reader& reader, const Population& tags,
                               const std::vector<uint16_t>& antennas, const Bytes& epc) {
  auto tag = std::find_if(tags.begin(), tags.end(), [&](const SimTag& t) { return t.epc == epc; });
  if (tag == tags.end()) return {};
  std::optional<TagRead> best;
  for (uint16_t antenna : antennas) {
    if (!tag->inFieldOf(antenna)) continue;
    TagRead r = makeRead(reader, *tag, antenna);
    if (!best || r.peakRssi > best->peakRssi) best = r;
  }
  if (!best) return {};
  best->hasLocation = true;
  best->relativeDistance = relativeDistanceFor(best->peakRssi);
  if (reader.buffer.add(*best, reader.storage.maxTagCount()) == TagBuffer::Added::kDropped) {
    raiseDataless(reader, kBufferFullEvent);
    return {};
  }
  raiseDataless(reader, kTagReadEvent);
  return {epc};
}

void easRound(Reader& reader, const Population& tags, const std::vector<uint16_t>& antennas) {
  static const layout::Record& kAlarm = layout::EventData(kNxpEasAlarmEvent);
  static const size_t kCodeAt = layout::OffsetOf(kAlarm, "alarmCode", 8);
  static const size_t kAntennaAt = layout::OffsetOf(kAlarm, "antennaID", 2);
  for (uint16_t antenna : antennas) {
    for (const SimTag& tag : tags) {
      if (!tag.eas || !tag.inFieldOf(antenna)) continue;
      std::vector<uint8_t> data(kAlarm.size, 0);
      store<int64_t>(data.data(), kCodeAt, easAlarmCode(tag));
      store<int16_t>(data.data(), kAntennaAt, static_cast<int16_t>(antenna));
      raiseEvent(reader.handle, kNxpEasAlarmEvent, std::move(data));
    }
  }
}

int16_t relativeDistanceFor(int8_t rssi) {
  return static_cast<int16_t>(std::clamp((-30 - rssi) * 2, 0, 100));
}

int64_t easAlarmCode(const SimTag& tag) {
  uint64_t code = 0;
  const size_t from = tag.epc.size() > 8 ? tag.epc.size() - 8 : 0;
  for (size_t i = from; i < tag.epc.size(); ++i) code = (code << 8) | tag.epc[i];
  return static_cast<int64_t>(code);
}

}  // namespace sim
