// Event objects of the reader API's event utilities: manual- or auto-reset,
// with an initial state, waited on singly or in groups with a time-out.
// Handles are small positive numbers (they fit a Java int), issued in
// increasing order and never reused, so a stale handle stays unknown.
#pragma once

#include <cstdint>
#include <vector>

namespace sim {

constexpr int32_t kWaitObject0 = 0;      // + index of the signalled object
constexpr int32_t kWaitTimeout = 258;
constexpr int32_t kWaitFailed = -1;      // an unknown or closed handle
constexpr int32_t kWaitForever = -1;

int64_t createEvent(bool manualReset, bool initiallySet);
// Each returns false for an unknown handle.
bool setEvent(int64_t handle);
bool resetEvent(int64_t handle);
bool closeEvent(int64_t handle);
bool eventExists(int64_t handle);

// kWaitObject0 + index of the object that ended the wait (the first set one
// when waiting for any; 0 when waiting for all), kWaitTimeout, or
// kWaitFailed for an empty list, an unknown handle, or a handle closed
// while waiting. A negative time-out waits forever. A satisfied wait resets
// the auto-reset objects it consumed.
int32_t waitForEvents(const std::vector<int64_t>& handles, bool waitAll, int32_t timeoutMs);

// Closes every event object (waiters are released with kWaitFailed).
void closeAllEvents();

}  // namespace sim
