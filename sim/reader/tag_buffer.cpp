#include "reader/tag_buffer.h"

#include <algorithm>

namespace sim {
namespace {

void merge(TagRead& kept, const TagRead& again) {
  kept.seenCount = static_cast<uint16_t>(kept.seenCount + again.seenCount);
  kept.lastSeen = again.lastSeen;
  kept.peakRssi = std::max(kept.peakRssi, again.peakRssi);
  kept.channelIndex = again.channelIndex;
  kept.phase = again.phase;
  kept.hasLocation = again.hasLocation;
  kept.relativeDistance = again.relativeDistance;
}

}  // namespace

size_t TagBuffer::KeyHash::operator()(const Key& key) const {
  // FNV-1a over the antenna, the sequence index and the EPC
  size_t h = 1469598103934665603ull ^ std::get<1>(key) ^ (static_cast<size_t>(std::get<2>(key)) << 16);
  for (uint8_t b : std::get<0>(key)) h = (h ^ b) * 1099511628211ull;
  return h;
}

TagBuffer::Key TagBuffer::keyOf(const TagRead& read) {
  return {read.epc, read.antenna, read.access ? read.access->sequenceIndex + 1 : 0};
}

TagBuffer::Added TagBuffer::add(const TagRead& read, size_t maxReads) {
  if (read.tagEvent != 0) {  // each tag event is a record of its own
    if (reads_.size() >= maxReads) return Added::kDropped;
    reads_.push_back(read);
    return Added::kNew;
  }
  auto found = index_.find(keyOf(read));
  if (found != index_.end()) {
    merge(*found->second, read);
    return Added::kUpdated;
  }
  if (reads_.size() >= maxReads) return Added::kDropped;
  reads_.push_back(read);
  index_[keyOf(read)] = std::prev(reads_.end());
  return Added::kNew;
}

std::optional<TagRead> TagBuffer::pop() {
  if (reads_.empty()) return std::nullopt;
  TagRead read = std::move(reads_.front());
  auto indexed = index_.find(keyOf(read));
  if (indexed != index_.end() && indexed->second == reads_.begin()) index_.erase(indexed);
  reads_.pop_front();
  return read;
}

std::vector<TagRead> TagBuffer::popMany(size_t max) {
  std::vector<TagRead> out;
  out.reserve(std::min(max, reads_.size()));
  while (out.size() < max && !reads_.empty()) out.push_back(std::move(*pop()));
  return out;
}

std::vector<TagRead> TagBuffer::peek(size_t max) const {
  std::vector<TagRead> out;
  for (auto it = reads_.begin(); it != reads_.end() && out.size() < max; ++it) out.push_back(*it);
  return out;
}

void TagBuffer::clear() {
  reads_.clear();
  index_.clear();
}

}  // namespace sim
