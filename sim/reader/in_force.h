// A simulator-wide value in force (the scenario, the field settings): read
// and replaced under its own lock, and put back to its start-up value by
// restore(), which the owner's reset hook calls.
#pragma once

#include <functional>
#include <mutex>
#include <utility>


namespace sim {

template <class T>
class InForce {
 public:
  // startUp gives the value at start and after each reset.
  explicit InForce(std::function<T()> startUp) : startUp_(std::move(startUp)), value_(startUp_()) {}
  InForce(const InForce&) = delete;
  InForce& operator=(const InForce&) = delete;

  T get() const {
    std::lock_guard<std::mutex> lock(mutex_);
    return value_;
  }
  void set(T value) {
    std::lock_guard<std::mutex> lock(mutex_);
    value_ = std::move(value);
  }
  void restore() { set(startUp_()); }
  template <class Change>
  void change(Change&& change) {
    std::lock_guard<std::mutex> lock(mutex_);
    change(value_);
  }

 private:
  const std::function<T()> startUp_;
  mutable std::mutex mutex_;
  T value_;
};

}  // namespace sim
