// Holds the modified UTF-8 bytes of a Java string for the length of a scope
// and gives them back when the scope ends, if the virtual machine gave any.
#pragma once

#include <jni.h>

namespace orla {

class UtfChars {
 public:
  UtfChars(JNIEnv* env, jstring string)
      : env_(env), string_(string), chars_(env->GetStringUTFChars(string, nullptr)) {}
  UtfChars(const UtfChars&) = delete;
  UtfChars& operator=(const UtfChars&) = delete;
  ~UtfChars() {
    if (chars_ != nullptr) env_->ReleaseStringUTFChars(string_, chars_);
  }

  const char* get() const { return chars_; }

 private:
  JNIEnv* env_;
  jstring string_;
  const char* chars_;
};

}  // namespace orla
