// The reader library exports its installed-apps count with C++ linkage, so
// the declaration we call through must produce exactly this symbol. This
// test binary does not link the reader library: it defines the symbol under
// its mangled name here, and the call below only links if the declaration
// in the header names the same one. (Record layouts are pinned by the
// header's static_asserts; widths and signedness of what reaches Java are
// checked through the natives against the simulator.)
#include "reader_api.h"

#include <gtest/gtest.h>

#include <cstdint>

extern "C" int32_t _Z24rfid_GetNumInstalledAppsPvPj(void* handle, unsigned int* count) {
  *count = static_cast<unsigned int>(reinterpret_cast<uintptr_t>(handle)) ^ 0xA5A5u;
  return 7;
}

namespace {

TEST(ReaderApiLinkage, NumInstalledAppsIsImportedUnderItsMangledName) {
  unsigned int count = 0;
  // A handle of -2 goes in sign-extended to pointer width.
  void* handle = reinterpret_cast<void*>(static_cast<intptr_t>(-2));
  EXPECT_EQ(rfid_GetNumInstalledApps(handle, &count), 7);
  EXPECT_EQ(count, 0xFFFFFFFEu ^ 0xA5A5u);
}

}  // namespace
