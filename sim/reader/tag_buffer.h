// The reader's tag buffer: reads wait here, in the order first seen, until
// the application fetches them. A tag seen again on the same antenna before
// it was fetched updates its read (seen count, last seen, peak RSSI). A tag
// event is never merged: each is a record of its own.
// Not locked itself: the reader's lock guards it.
#pragma once

#include <cstddef>
#include <list>
#include <unordered_map>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

#include "reader/tag_read.h"

namespace sim {

class TagBuffer {
 public:
  enum class Added { kNew, kUpdated, kDropped };

  // kDropped when the read is of a new tag and maxReads are buffered.
  Added add(const TagRead& read, size_t maxReads);
  std::optional<TagRead> pop();
  std::vector<TagRead> popMany(size_t max);
  std::vector<TagRead> peek(size_t max) const;
  size_t size() const { return reads_.size(); }
  void clear();

 private:
  // EPC, antenna, and 0 for a read without an access result, else the
  // access sequence index + 1: each operation's result is kept apart.
  using Key = std::tuple<Bytes, uint16_t, uint32_t>;
  struct KeyHash {
    size_t operator()(const Key& key) const;
  };
  static Key keyOf(const TagRead& read);
  std::list<TagRead> reads_;
  std::unordered_map<Key, std::list<TagRead>::iterator, KeyHash> index_;
};

}  // namespace sim
