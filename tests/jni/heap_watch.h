// The library's heap use, seen through the global allocation operators of
// the test executable (liborlajni.so is loaded with dlopen and binds its
// calls of operator new and delete to them). Only calls made from the
// library's own code are recorded; each is also logged on the Timeline.
#pragma once

#include <cstddef>
#include <vector>

namespace jt {

struct Allocation {
  size_t size = 0;
  bool array = false;  // new[] rather than new
  size_t madeAt = 0;   // C call count at allocation
  bool freed = false;
  bool freedAsArray = false;
  size_t freedAt = 0;  // C call count at release
  void* block = nullptr;
};

class HeapWatch {
 public:
  // Records the calls made from code of the loaded object that holds `symbol`.
  static void watchLibraryOf(const void* symbol);
  static void start();  // forget earlier allocations, start recording
  static void stop();
  static const std::vector<Allocation>& allocations();
  // Frees the blocks the library left allocated (kept on purpose), after a
  // test has counted them, so that leak checking stays meaningful.
  static void releaseKept();
};

}  // namespace jt
