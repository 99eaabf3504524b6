// Pins the elements of a Java primitive array for the length of a scope.
// The elements are released with mode 0 (copy back, then free the pinned
// copy) either by release() or, at the latest, when the holder goes out of
// scope. Neither the array nor the pinned pointer is checked for null.
#pragma once

#include <jni.h>

namespace orla {

template <typename Array>
struct ArrayElements;

template <>
struct ArrayElements<jbooleanArray> {
  using Element = jboolean;
  static Element* pin(JNIEnv* env, jbooleanArray a) { return env->GetBooleanArrayElements(a, nullptr); }
  static void release(JNIEnv* env, jbooleanArray a, Element* e) { env->ReleaseBooleanArrayElements(a, e, 0); }
};

template <>
struct ArrayElements<jbyteArray> {
  using Element = jbyte;
  static Element* pin(JNIEnv* env, jbyteArray a) { return env->GetByteArrayElements(a, nullptr); }
  static void release(JNIEnv* env, jbyteArray a, Element* e) { env->ReleaseByteArrayElements(a, e, 0); }
};

template <>
struct ArrayElements<jshortArray> {
  using Element = jshort;
  static Element* pin(JNIEnv* env, jshortArray a) { return env->GetShortArrayElements(a, nullptr); }
  static void release(JNIEnv* env, jshortArray a, Element* e) { env->ReleaseShortArrayElements(a, e, 0); }
};

template <>
struct ArrayElements<jintArray> {
  using Element = jint;
  static Element* pin(JNIEnv* env, jintArray a) { return env->GetIntArrayElements(a, nullptr); }
  static void release(JNIEnv* env, jintArray a, Element* e) { env->ReleaseIntArrayElements(a, e, 0); }
};

template <>
struct ArrayElements<jlongArray> {
  using Element = jlong;
  static Element* pin(JNIEnv* env, jlongArray a) { return env->GetLongArrayElements(a, nullptr); }
  static void release(JNIEnv* env, jlongArray a, Element* e) { env->ReleaseLongArrayElements(a, e, 0); }
};

template <typename Array>
class PinnedArray {
 public:
  using Element = typename ArrayElements<Array>::Element;

  PinnedArray(JNIEnv* env, Array array)
      : env_(env), array_(array), elements_(ArrayElements<Array>::pin(env, array)) {}
  PinnedArray(const PinnedArray&) = delete;
  PinnedArray& operator=(const PinnedArray&) = delete;
  ~PinnedArray() { release(); }

  Element* data() const { return elements_; }
  Element& operator[](jsize i) const { return elements_[i]; }

  // Gives the elements back now; later calls and the destructor do nothing.
  void release() {
    if (pinned_) ArrayElements<Array>::release(env_, array_, elements_);
    pinned_ = false;
  }

 private:
  JNIEnv* env_;
  Array array_;
  Element* elements_;
  bool pinned_ = true;
};

}  // namespace orla
