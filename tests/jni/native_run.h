// One call of a native under observation: the JNI calls and allocations it
// made, merged with the C calls the simulator journalled, and what became of
// every pin and every block.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "fake_jvm.h"
#include "heap_watch.h"
#include "natives.h"
#include "reader_sim.h"

namespace jt {

struct NativeRun {
  uint64_t result = 0;
  std::vector<std::string> lines;  // the merged timeline, "C <function>" for C calls
  std::vector<Pin> pins;
  std::vector<Allocation> allocations;
  size_t writes = 0;  // Java fields and array elements written
  size_t cCalls = 0;
  std::string dump() const;  // the timeline, one event a line, for failure messages
};

// A simulator reset to its start with one open reader session.
class FreshReader {
 public:
  FreshReader();
  ~FreshReader();
  jint handle() const { return handle_; }

 private:
  jint handle_;
};

// Java values that differ from the model's defaults: "2" is the third Java
// argument, "2.a.b" a field along a path from it.
using Overrides = std::vector<std::pair<std::string, Val>>;

// The native's arguments: the defaults of the model, then the overrides.
std::vector<Val> buildArguments(Jvm& jvm, const Native& n, const Overrides& overrides, jint reader);

// Runs `n` with `args` (defaults of the model where args is shorter). Blocks
// the library keeps are left allocated: the caller counts them, then calls
// HeapWatch::releaseKept().
NativeRun runNative(Jvm& jvm, const Native& n, std::vector<Val> args, jint reader);

}  // namespace jt
