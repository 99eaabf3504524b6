#include "reader_sim.h"

#include <gtest/gtest.h>

namespace jt {

sim::Call lastCall(const std::string& fn) {
  sim::Call call;
  EXPECT_TRUE(sim::findCall(fn, -1, &call)) << "no call of " << fn;
  return call;
}

std::vector<uint8_t> captured(const std::string& fn, const std::string& blob) {
  const sim::Call call = lastCall(fn);
  auto it = call.blobs.find(blob);
  EXPECT_TRUE(it != call.blobs.end() && it->second.present) << fn << ": no blob " << blob;
  return it == call.blobs.end() ? std::vector<uint8_t>{} : it->second.bytes;
}

}  // namespace jt
