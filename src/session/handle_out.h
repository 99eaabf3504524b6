// A new reader handle on its way to Java (connect, login, accepted LLRP
// connection): the Java long[] is pinned first, the C API writes the handle
// into an 8-byte slot, and the slot reaches element 0 only on status 0. The
// elements are released with mode 0 whatever the status.
#pragma once

#include <jni.h>

#include "bridge/pinned_array.h"
#include "reader_api.h"

namespace orla {

class HandleOut {
 public:
  HandleOut(JNIEnv* env, jlongArray handleOut) : elements_(env, handleOut) {}
  HandleOut(const HandleOut&) = delete;
  HandleOut& operator=(const HandleOut&) = delete;

  // The slot the C API writes the handle into; 0 until it does.
  READER_HANDLE* slot() { return &slot_; }

  // Copies the slot into element 0 on status 0, releases the elements, and
  // returns the status.
  RFID_STATUS deliver(RFID_STATUS status) {
    if (status == 0) elements_[0] = slot_;
    elements_.release();
    return status;
  }

 private:
  PinnedArray<jlongArray> elements_;
  READER_HANDLE slot_ = 0;
};

}  // namespace orla
