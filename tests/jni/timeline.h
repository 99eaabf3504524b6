// One log of what the library does during a native call: its JNI calls and
// its heap allocations, each stamped with the number of C API calls the
// simulator had journalled at that moment, so that a test can tell what
// happened before and after each C call.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace jt {

struct Event {
  size_t cCalls = 0;  // C API calls journalled before this event
  std::string what;   // "GetIntField TAG_DATA.antennaID", "new[] 12 #3", ...
};

class Timeline {
 public:
  static void clear();
  static void record(std::string what);  // stamps with the C call count
  static void record(std::string what, size_t cCalls);
  static const std::vector<Event>& events();

  // Every event, with "C <function>" lines for the journalled C calls
  // put where they happened.
  static std::vector<std::string> merged();
};

// True when the strings that contain each of `steps`, taken in turn, appear
// in this order in `lines` (each after the one found for the step before).
bool inOrder(const std::vector<std::string>& lines, const std::vector<std::string>& steps, std::string* why);

}  // namespace jt
