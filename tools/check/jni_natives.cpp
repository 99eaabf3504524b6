#include "jni_natives.h"

namespace orla::check {

const std::vector<std::string>& JniNatives() {
  static const std::vector<std::string> natives = {
#include "jni_natives.inc"
  };
  return natives;
}

}  // namespace orla::check
