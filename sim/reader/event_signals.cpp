#include "reader/event_signals.h"

#include <map>
#include <mutex>
#include <utility>

#include "reader/event_objects.h"
#include "record/session_layouts.h"

namespace sim {
namespace {

using Key = std::pair<int64_t, uint32_t>;

struct Registry {
  std::mutex mutex;
  std::map<Key, int64_t> registered;
  std::map<Key, std::vector<uint8_t>> latest;
};

Registry& registry() {
  static Registry r;
  return r;
}

template <typename Map>
void eraseReader(Map& map, int64_t reader) {
  for (auto it = map.begin(); it != map.end();) {
    it = it->first.first == reader ? map.erase(it) : std::next(it);
  }
}

}  // namespace

bool isEventType(uint32_t type) { return type <= kGpsDataEvent; }

size_t eventDataCapacity(uint32_t type) { return layout::EventData(type).size; }

void registerEvent(int64_t reader, uint32_t type, int64_t event) {
  std::lock_guard<std::mutex> lock(registry().mutex);
  registry().registered[{reader, type}] = event;
}

bool deregisterEvent(int64_t reader, uint32_t type) {
  std::lock_guard<std::mutex> lock(registry().mutex);
  return registry().registered.erase({reader, type}) > 0;
}

void raiseEvent(int64_t reader, uint32_t type, std::vector<uint8_t> data) {
  if (data.size() > eventDataCapacity(type)) data.resize(eventDataCapacity(type));
  int64_t event = 0;
  bool registered = false;
  {
    std::lock_guard<std::mutex> lock(registry().mutex);
    registry().latest[{reader, type}] = std::move(data);
    auto it = registry().registered.find({reader, type});
    registered = it != registry().registered.end();
    if (registered) event = it->second;
  }
  if (registered) setEvent(event);
}

bool latestEventData(int64_t reader, uint32_t type, std::vector<uint8_t>* data) {
  std::lock_guard<std::mutex> lock(registry().mutex);
  auto it = registry().latest.find({reader, type});
  if (it == registry().latest.end()) return false;
  *data = it->second;
  return true;
}

void dropReaderEvents(int64_t reader) {
  std::lock_guard<std::mutex> lock(registry().mutex);
  eraseReader(registry().registered, reader);
  eraseReader(registry().latest, reader);
}

void dropAllReaderEvents() {
  std::lock_guard<std::mutex> lock(registry().mutex);
  registry().registered.clear();
  registry().latest.clear();
}

}  // namespace sim
