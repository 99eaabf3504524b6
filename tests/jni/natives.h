// The natives of ORLANatives as the library exports them: their Java
// declarations (read from ORLANatives.java), their symbols (JNI names, and
// the C++ names of the three exported only that way), and a generic call
// with raw argument values, through dlsym as the virtual machine would.
#pragma once

#include <jni.h>

#include <cstdint>
#include <string>
#include <vector>

#include "fake_jvm.h"

namespace jt {

struct Param {
  std::string type;  // Java type as declared: "int", "long[]", "TAG_DATA", "String"
  std::string name;
};

struct Native {
  std::string name;  // Java method name
  std::string result;
  std::vector<Param> params;
  std::string symbol;
  bool mangledOnly = false;
};

// The JNI name of a method of ORLANatives.
std::string jniName(const std::string& method);

class Library {
 public:
  static Library& get();  // loads liborlajni.so once
  void* handle() const { return handle_; }
  const std::vector<Native>& natives() const { return natives_; }
  const Native& native(const std::string& method) const;
  void* entry(const Native& n) const;

 private:
  Library();
  void* handle_ = nullptr;
  std::vector<Native> natives_;
};

// The Java value a parameter gets when a test does not choose one: the
// reader handle for "readerHandle", defaults of the model for the rest.
Val defaultArgument(Jvm& jvm, const Param& p, jint reader);

// Calls the native with the Java arguments (numbers passed raw in their
// registers, so a boolean can carry any byte), and returns the raw result.
uint64_t invoke(Jvm& jvm, const Native& n, const std::vector<Val>& args);

}  // namespace jt
