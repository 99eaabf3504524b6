// State kept per reader handle: one store per type, emptied for a handle
// when its session closes and entirely on reset.
#pragma once

#include <cstdint>
#include <map>
#include <mutex>

#include "reader/sessions.h"

namespace sim {

template <class T>
class SessionStore {
 public:
  static SessionStore& instance() {
    static SessionStore* store = new SessionStore;  // outlives late callers
    return *store;
  }

  void put(int64_t handle, T value) {
    std::lock_guard<std::mutex> lock(mutex_);
    values_[handle] = std::move(value);
  }

  // Runs f on the value kept for handle (a new one when there is none),
  // under the store's lock; for read-modify-write on an open session.
  template <class F>
  void update(int64_t handle, F f) {
    std::lock_guard<std::mutex> lock(mutex_);
    f(values_[handle]);
  }

  // A copy of the value kept for handle; false when there is none.
  bool get(int64_t handle, T* value) const {
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = values_.find(handle);
    if (it == values_.end()) return false;
    *value = it->second;
    return true;
  }

 private:
  SessionStore() {
    addSessionClosedHook(&forget);
    addResetHook(&clear);
  }

  static void forget(int64_t handle) {
    SessionStore& store = instance();
    std::lock_guard<std::mutex> lock(store.mutex_);
    store.values_.erase(handle);
  }

  static void clear() {
    SessionStore& store = instance();
    std::lock_guard<std::mutex> lock(store.mutex_);
    store.values_.clear();
  }

  mutable std::mutex mutex_;
  std::map<int64_t, T> values_;
};

}  // namespace sim
