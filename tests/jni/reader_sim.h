// The simulated reader as the JNI tests see it: the one place that includes
// the simulator's headers.
#pragma once

#include <gtest/gtest.h>

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
inline sim::Call lastCall(const std::string& fn) {
  sim::Call call;
  if (!sim::findCall(fn, -1, &call)) ADD_FAILURE() << "no call of " << fn;
  return call;
}

// A blob of that call; fails the test when it is absent.
inline std::vector<uint8_t> blobOf(const sim::Call& call, const std::string& name) {
  auto it = call.blobs.find(name);
  if (it == call.blobs.end() || !it->second.present) ADD_FAILURE() << call.fn << ": no blob " << name;
  return it == call.blobs.end() ? std::vector<uint8_t>{} : it->second.bytes;
}

}  // namespace jt
