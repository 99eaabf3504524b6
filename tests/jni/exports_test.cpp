// The library's dynamic symbol table, as the virtual machine's lookup by name
// sees it: every native under its JNI name, except the three power-negotiation
// natives, exported under their C++ (mangled) names only. And the behaviour
// of those three when called through those names.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "native_run.h"

namespace jt {
namespace {

TEST(Exports, JniNamesForAllButThePowerNegotiationNatives) {
  void* library = Library::get().handle();
  ASSERT_NE(nullptr, library);
  size_t mangled = 0;
  for (const Native& n : Library::get().natives()) {
    EXPECT_NE(nullptr, dlsym(library, n.symbol.c_str())) << n.symbol;
    if (!n.mangledOnly) continue;
    ++mangled;
    EXPECT_EQ(nullptr, dlsym(library, jniName(n.name).c_str())) << "plain JNI name exported: " << n.name;
  }
  EXPECT_EQ(3u, mangled);
}

// Runs a power-negotiation getter with the C API answering `status` and `output`.
NativeRun runGetter(Jvm& jvm, Obj* target, const char* method, int32_t status, std::vector<uint8_t> output) {
  FreshReader reader;
  sim::setScriptedStatus(method, status);
  sim::setScriptedOutput(method, std::move(output));
  const Native& n = Library::get().native(method);
  return runNative(jvm, n, {reader.handle(), target}, reader.handle());
}

TEST(PowerNegotiation, GettersWriteOnlyOnSuccessTheStateAsItStandsAndTheStatusSignExtended) {
  Jvm jvm;
  Obj* state = jvm.object("POWER_NEGOTIATION_STATE");
  NativeRun r = runGetter(jvm, state, "RFID_GetPowerNegotiationState", 0, {2});
  EXPECT_EQ(2, state->fields["powernegstate"].number) << r.dump();
  Obj* status = jvm.object("POWER_NEGOTIATION_STATUS");
  r = runGetter(jvm, status, "RFID_GetPowerNegotiationStatus", 0, {0x05, 0x80, 0x01, 0x00});
  EXPECT_EQ(static_cast<jshort>(0x8005), status->fields["enumMode"].number) << r.dump();

  for (const char* method : {"RFID_GetPowerNegotiationState", "RFID_GetPowerNegotiationStatus"}) {
    r = runGetter(jvm, jvm.object("POWER_NEGOTIATION_STATE"), method, 5, {1, 1, 1, 1});
    EXPECT_EQ(5u, r.result) << method;
    EXPECT_EQ(0u, r.writes) << method << r.dump();
  }
}

}  // namespace
}  // namespace jt
