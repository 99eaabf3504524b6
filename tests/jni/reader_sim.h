// The simulated reader as the JNI tests see it: the one place that includes
// the simulator's headers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "reader/sessions.h"
#include "reader/status.h"
#include "record/journal.h"

namespace jt {

// Calls the simulator has journalled so far (a stamp for ordering the
// library's JNI calls and allocations against its C calls).
inline size_t cCallCount() { return sim::callNames().size(); }

// The last journalled call of fn; fails the test when there is none.
sim::Call lastCall(const std::string& fn);

// Captured blob of fn's last call; fails the test when absent.
std::vector<uint8_t> captured(const std::string& fn, const std::string& blob);

}  // namespace jt
