#include "natives.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "heap_watch.h"

namespace jt {
namespace {

// Exported under their C++ names only, all three (JNIEnv*, jclass, int, jobject).
const char* const kMangledOnly[] = {"RFID_GetPowerNegotiationStatus", "RFID_SetPowerNegotiationState",
                                    "RFID_GetPowerNegotiationState"};

std::vector<Native> readDeclarations() {
  std::ifstream file(JT_ORLA_NATIVES_JAVA);
  std::stringstream text;
  text << file.rdbuf();
  const std::string all = text.str();
  static const std::regex declaration(R"(native\s+(\S+)\s+(\w+)\(([^)]*)\))");
  static const std::regex param(R"(\s*(\S+)\s+(\w+)\s*)");
  std::vector<Native> natives;
  for (auto it = std::sregex_iterator(all.begin(), all.end(), declaration); it != std::sregex_iterator(); ++it) {
    Native n{(*it)[2], (*it)[1], {}, jniName((*it)[2]), false};
    std::stringstream params((*it)[3].str());
    std::smatch m;
    for (std::string p; std::getline(params, p, ',');)
      if (std::regex_match(p, m, param)) n.params.push_back({m[1], m[2]});
    for (const char* name : kMangledOnly) {
      if (n.name != name) continue;
      n.mangledOnly = true;
      n.symbol = "_Z" + std::to_string(n.symbol.size()) + n.symbol + "P7JNIEnv_P7_jclassiP8_jobject";
    }
    natives.push_back(n);
  }
  return natives;
}

uint64_t raw(Jvm& jvm, const std::string& type, const Val& v) {
  if (v.kind == Val::Number) {
    if (type == "int") return static_cast<uint64_t>(static_cast<int64_t>(static_cast<int32_t>(v.number)));
    if (type == "short") return static_cast<uint64_t>(static_cast<int64_t>(static_cast<int16_t>(v.number)));
    return static_cast<uint64_t>(v.number);  // long, and boolean as raw as the test wants it
  }
  return reinterpret_cast<uint64_t>(jvm.value(v));
}

}  // namespace

std::string jniName(const std::string& method) {
  std::string name = "Java_com_kovra_rfid_orla_ORLANatives_";
  for (char c : method) name += c == '_' ? std::string("_1") : std::string(1, c);
  return name;
}

Library& Library::get() {
  static Library library;
  return library;
}

Library::Library() : natives_(readDeclarations()) {
  handle_ = dlopen(ORLA_JNI_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (handle_ == nullptr) {
    ADD_FAILURE() << dlerror();
    return;
  }
  HeapWatch::watchLibraryOf(dlsym(handle_, natives_.at(0).symbol.c_str()));
}

const Native& Library::native(const std::string& method) const {
  for (const Native& n : natives_)
    if (n.name == method) return n;
  ADD_FAILURE() << "no native " << method;
  return natives_.at(0);
}

void* Library::entry(const Native& n) const {
  void* e = handle_ == nullptr ? nullptr : dlsym(handle_, n.symbol.c_str());
  if (e == nullptr) ADD_FAILURE() << "not exported: " << n.symbol;
  return e;
}

Val defaultArgument(Jvm& jvm, const Param& p, jint reader) {
  if (p.name == "readerHandle" && p.type == "int") return reader;
  if (p.type == "boolean") return jvm.defaultBoolean;
  if (p.type == "int" || p.type == "short" || p.type == "long") return jvm.defaultNumber;
  if (p.type == "String") return jvm.defaultText.c_str();
  if (p.type.size() > 2 && p.type.compare(p.type.size() - 2, 2, "[]") == 0) {
    const std::string element = p.type.substr(0, p.type.size() - 2);
    static const std::map<std::string, std::string> primitive = {
        {"boolean", "[Z"}, {"byte", "[B"}, {"short", "[S"}, {"int", "[I"}, {"long", "[J"}};
    auto it = primitive.find(element);
    return jvm.array(it != primitive.end() ? it->second : "[Lcom/kovra/rfid/orla/" + element + ";", jvm.defaultLength);
  }
  return jvm.object(p.type);
}

uint64_t invoke(Jvm& jvm, const Native& n, const std::vector<Val>& args) {
  using Any = uint64_t (*)(JNIEnv*, jclass, uint64_t, uint64_t, uint64_t, uint64_t, uint64_t, uint64_t, uint64_t,
                           uint64_t, uint64_t, uint64_t);
  auto entry = reinterpret_cast<Any>(Library::get().entry(n));
  uint64_t a[10] = {};
  for (size_t i = 0; i < args.size() && i < 10; ++i) a[i] = raw(jvm, n.params.at(i).type, args[i]);
  if (entry == nullptr) return 0;
  const uint64_t result = entry(jvm.env(), nullptr, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9]);
  if (n.result == "int") return static_cast<uint64_t>(static_cast<int64_t>(static_cast<int32_t>(result)));
  return result;
}

}  // namespace jt
