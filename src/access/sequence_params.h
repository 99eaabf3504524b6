// The parameter record that an operation of an access sequence carries,
// built from the field of the Java operation object that its code names.
#pragma once

#include <jni.h>

#include <cstdint>

namespace orla {

// One operation's parameter record and the buffers filled on its way. The
// write data and the lock privilege buffer belong to this holder and go
// with the record; the block-permalock mask does not: the record points at
// it, and the caller leaves it allocated. The holder frees nothing by
// itself: the caller calls release().
class SequenceParams {
 public:
  SequenceParams() = default;
  SequenceParams(const SequenceParams&) = delete;
  SequenceParams& operator=(const SequenceParams&) = delete;

  // Reads the Java parameters that opCode calls for from their field of the
  // operation, allocates the record (zeroed only for the codes whose record
  // is zeroed) and fills it. Returns the record, or NULL for a code without
  // parameters. The field's object must not be null. Call at most once.
  void* fill(JNIEnv* env, jobject operation, uint32_t opCode);

  // Frees the write data, then the record, then the privilege buffer.
  // Never frees a block-permalock mask.
  void release();

 private:
  template <class Record, class Filler>
  void build(JNIEnv* env, jobject operation, const char* field, const char* signature, bool zeroed,
             Filler fill);

  void* record_ = nullptr;
  void (*deleteRecord_)(void*) = nullptr;
  uint8_t* writeData_ = nullptr;
  uint16_t* privileges_ = nullptr;
};

}  // namespace orla
