// The JNI names of every native of ORLANatives, taken at build time from the
// header javac -h writes for the class.
#pragma once

#include <string>
#include <vector>

namespace orla::check {

const std::vector<std::string>& JniNatives();

}  // namespace orla::check
