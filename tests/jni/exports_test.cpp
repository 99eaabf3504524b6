// The power-negotiation getters, which are exported under their C++ (mangled)
// names only, called through those names: what they write on success.
#include <gtest/gtest.h>

#include "native_run.h"

namespace jt {
namespace {

// Runs a power-negotiation getter with the C API answering success and `output`.
NativeRun runGetter(Jvm& jvm, Obj* target, const char* method, std::vector<uint8_t> output) {
  FreshReader reader;
  sim::setScriptedOutput(method, std::move(output));
  const Native& n = Library::get().native(method);
  return runNative(jvm, n, {reader.handle(), target}, reader.handle());
}

TEST(PowerNegotiation, GettersWriteTheStateAsItStands) {
  Jvm jvm;
  Obj* state = jvm.object("POWER_NEGOTIATION_STATE");
  NativeRun r = runGetter(jvm, state, "RFID_GetPowerNegotiationState", {2});
  EXPECT_EQ(2, state->fields["powernegstate"].number) << r.dump();
  Obj* status = jvm.object("POWER_NEGOTIATION_STATUS");
  r = runGetter(jvm, status, "RFID_GetPowerNegotiationStatus", {0x05, 0x80, 0x01, 0x00});
  EXPECT_EQ(static_cast<jshort>(0x8005), status->fields["enumMode"].number) << r.dump();
}

}  // namespace
}  // namespace jt
