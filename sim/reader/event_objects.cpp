#include "reader/event_objects.h"

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>

namespace sim {
namespace {

using Clock = std::chrono::steady_clock;

struct EventState {
  bool manualReset = false;
  bool set = false;
  bool closed = false;
};
using EventPtr = std::shared_ptr<EventState>;

// One lock and one condition for all objects: a wait on several objects
// then needs no lock ordering, and every change wakes every waiter.
struct EventTable {
  std::mutex mutex;
  std::condition_variable changed;
  std::map<int64_t, EventPtr> events;
  int64_t nextHandle = 0x20001;
};

EventTable& table() {
  static EventTable t;
  return t;
}

// Under the table lock.
EventPtr find(int64_t handle) {
  auto it = table().events.find(handle);
  return it == table().events.end() ? nullptr : it->second;
}

bool anyClosed(const std::vector<EventPtr>& events) {
  for (const EventPtr& e : events) {
    if (e->closed) return true;
  }
  return false;
}

// Index of the object that satisfies the wait, or -1.
int readyIndex(const std::vector<EventPtr>& events, bool waitAll) {
  for (size_t i = 0; i < events.size(); ++i) {
    if (!waitAll && events[i]->set) return static_cast<int>(i);
    if (waitAll && !events[i]->set) return -1;
  }
  return waitAll ? 0 : -1;
}

void consume(const std::vector<EventPtr>& events, bool waitAll, int index) {
  for (size_t i = 0; i < events.size(); ++i) {
    const bool taken = waitAll || static_cast<int>(i) == index;
    if (taken && !events[i]->manualReset) events[i]->set = false;
  }
}

// Under the table lock: the objects behind the handles, or an empty list
// when one is unknown.
std::vector<EventPtr> resolve(const std::vector<int64_t>& handles) {
  std::vector<EventPtr> events;
  for (int64_t h : handles) {
    EventPtr e = find(h);
    if (!e) return {};
    events.push_back(e);
  }
  return events;
}

template <typename Change>
bool change(int64_t handle, Change apply) {
  EventTable& t = table();
  {
    std::lock_guard<std::mutex> lock(t.mutex);
    EventPtr e = find(handle);
    if (!e) return false;
    apply(*e);
  }
  t.changed.notify_all();
  return true;
}

}  // namespace

int64_t createEvent(bool manualReset, bool initiallySet) {
  EventTable& t = table();
  std::lock_guard<std::mutex> lock(t.mutex);
  auto e = std::make_shared<EventState>();
  e->manualReset = manualReset;
  e->set = initiallySet;
  const int64_t handle = t.nextHandle++;
  t.events[handle] = e;
  return handle;
}

bool setEvent(int64_t handle) {
  return change(handle, [](EventState& e) { e.set = true; });
}

bool resetEvent(int64_t handle) {
  return change(handle, [](EventState& e) { e.set = false; });
}

bool closeEvent(int64_t handle) {
  if (!change(handle, [](EventState& e) { e.closed = true; })) return false;
  std::lock_guard<std::mutex> lock(table().mutex);
  table().events.erase(handle);
  return true;
}

bool eventExists(int64_t handle) {
  std::lock_guard<std::mutex> lock(table().mutex);
  return find(handle) != nullptr;
}

int32_t waitForEvents(const std::vector<int64_t>& handles, bool waitAll, int32_t timeoutMs) {
  EventTable& t = table();
  std::unique_lock<std::mutex> lock(t.mutex);
  const std::vector<EventPtr> events = resolve(handles);
  if (events.empty()) return kWaitFailed;
  const auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs < 0 ? 0 : timeoutMs);
  for (;;) {
    if (anyClosed(events)) return kWaitFailed;
    const int index = readyIndex(events, waitAll);
    if (index >= 0) {
      consume(events, waitAll, index);
      return kWaitObject0 + index;
    }
    if (timeoutMs < 0) {
      t.changed.wait(lock);
    } else if (t.changed.wait_until(lock, deadline) == std::cv_status::timeout &&
               readyIndex(events, waitAll) < 0 && !anyClosed(events)) {
      return kWaitTimeout;
    }
  }
}

void closeAllEvents() {
  EventTable& t = table();
  {
    std::lock_guard<std::mutex> lock(t.mutex);
    for (auto& entry : t.events) entry.second->closed = true;
    t.events.clear();
  }
  t.changed.notify_all();
}

}  // namespace sim
