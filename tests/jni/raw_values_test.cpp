// What only a C caller can do to the natives: Java booleans carrying bytes
// other than 0 and 1, optional objects left null one at a time, and the last
// slots of the extra trigger lists. Assertions are on what the simulator
// captured, at the C API's offsets.
#include <gtest/gtest.h>

#include <ostream>

#include "native_run.h"

namespace jt {
namespace {

// Runs `method` with the overrides and returns the last call of `fn`.
sim::Call callWith(const std::string& method, const Overrides& overrides, const std::string& fn) {
  FreshReader reader;
  Jvm jvm;
  const Native& n = Library::get().native(method);
  runNative(jvm, n, buildArguments(jvm, n, overrides, reader.handle()), reader.handle());
  return lastCall(fn);
}

uint8_t byteAt(const sim::Call& call, const std::string& blob, size_t offset) {
  const std::vector<uint8_t> bytes = blobOf(call, blob);
  EXPECT_LT(offset, bytes.size()) << call.fn << " " << blob;
  return offset < bytes.size() ? bytes[offset] : 0xEE;
}

struct BooleanCase {
  const char* method;
  std::string java;  // the boolean: an argument ("2") or a field ("1.forceLogin")
  const char* fn;
  int arg;           // C argument that carries it, or -1 for a byte of `blob`
  const char* blob;
  size_t offset;
  bool normalised;   // 0 or 1; otherwise the Java byte as it stands
  Overrides setup;
};

// gtest names the case after its native and boolean; its bytes say nothing.
void PrintTo(const BooleanCase& c, std::ostream* os) { *os << c.method << " " << c.java; }

const BooleanCase kBooleans[] = {
    {"RFID_Login", "3", "RFID_LoginW", 3, "", 0, true, {}},
    {"RFID_Login", "1.forceLogin", "RFID_LoginW", -1, "loginInfo", 3124, true, {}},
    {"rfidUtils_WaitForMultipleObjects", "2", "rfidUtils_WaitForMultipleObjects", 2, "", 0, true, {}},
    {"RFID_EnableReadPoint", "2", "RFID_EnableReadPoint", 2, "", 0, true, {}},
    {"RFID_SetRadioPowerState", "1", "RFID_SetRadioPowerState", 1, "", 0, true, {}},
    {"RFID_EnableGPIPort", "2", "RFID_EnableGPIPort", 2, "", 0, true, {}},
    {"RFID_SetGPOState", "2", "RFID_SetGPOState", 2, "", 0, false, {}},
    {"RFID_ExportProfileToReader", "3", "RFID_ExportProfileToReaderW", 3, "", 0, true, {}},
    {"RFID_SetAutoStartUserApp", "2", "RFID_SetUserAppAutoStartW", 2, "", 0, false, {}},
    {"RFID_SetPowerNegotiationState", "1.status", "RFID_SetPowerNegotiationState", 1, "", 0, true, {}},
    {"RFID_Connect", "4.secConnInfo.validatePeerCert", "RFID_ConnectW", -1, "connInfo.secConnInfo", 1, true,
     {{"4.secConnInfo.secureMode", 1}}},
    {"RFID_SetLLRPConnectionConfig", "1.isClient", "RFID_SetLLRPConnectionConfigW", -1, "config", 0, true, {}},
    {"RFID_SetLLRPConnectionConfig", "1.pSecureModeConfig.validatePeerCert", "RFID_SetLLRPConnectionConfigW", -1,
     "config.pSecureModeConfig", 1, true, {{"1.pSecureModeConfig.secureMode", 1}}},
    {"RFID_SetUSBOperationMode", "1.allowLLRPConnectionOverride", "RFID_SetUSBOperationMode", -1, "settings", 4, true,
     {}},
    {"RFID_SetUserLED", "1.blink", "RFID_SetUserLED", -1, "ledInfo", 8, true, {}},
    {"RFID_SetTagStorageSettings", "1.enableAccessReports", "RFID_SetTagStorageSettings", -1, "tagStorageSettings", 14,
     true, {}},
    {"RFID_SetTagStorageSettings", "1.discardTagsOnInventoryStop", "RFID_SetTagStorageSettings", -1,
     "tagStorageSettings", 15, true, {}},
    {"RFID_SetSingulationControl", "2.stateAwareSingulationAction.perform", "RFID_SetSingulationControl", -1,
     "singulationControl", 8, true, {}},
    {"RFID_Athenticate", "3.sendRsp", "RFID_Authenticate", -1, "params", 0, true, {}},
    {"RFID_Untraceable", "3.hideEPC", "RFID_Untraceable", -1, "params", 1, true, {}},
    {"RFID_Crypto", "3.customData", "RFID_Crypto", -1, "params", 16, true, {}},
};

class RawBooleans : public ::testing::TestWithParam<BooleanCase> {};

TEST_P(RawBooleans, ReachTheReaderAsZeroOrOneOrAsTheyStand) {
  const BooleanCase& c = GetParam();
  for (int64_t java : {0, 1, 2, 0x80, 0xFF}) {
    Overrides overrides = c.setup;
    overrides.emplace_back(c.java, java);
    const sim::Call call = callWith(c.method, overrides, c.fn);
    const uint64_t sent = c.arg >= 0 && static_cast<size_t>(c.arg) < call.args.size() ? call.args[c.arg]
                                                                                       : byteAt(call, c.blob, c.offset);
    EXPECT_EQ(c.normalised ? static_cast<uint64_t>(java != 0) : static_cast<uint64_t>(java), sent)
        << c.method << " " << c.java << " = " << java;
  }
}

INSTANTIATE_TEST_SUITE_P(EveryBoolean, RawBooleans, ::testing::ValuesIn(kBooleans),
                         [](const ::testing::TestParamInfo<BooleanCase>& info) {
                           std::string name = std::string(info.param.method) + "_" + info.param.java;
                           for (char& ch : name)
                             if (!isalnum(static_cast<unsigned char>(ch))) ch = '_';
                           return name;
                         });

// Optional objects: each left null while the others are set reaches the C
// API as NULL, the others as records.
struct OptionalCase {
  const char* method;
  const char* fn;
  std::vector<std::pair<int, int>> javaToC;  // Java argument -> C argument
};

const OptionalCase kOptionals[] = {
    {"RFID_PerformNXPEASScan", "RFID_PerformNXPEASScan", {{1, 1}, {2, 2}}},
    {"RFID_PerformInventory", "RFID_PerformInventory", {{1, 1}, {2, 2}, {3, 3}}},
    {"RFID_PerformAccessSequence", "RFID_PerformAccessSequence", {{1, 1}, {2, 2}, {3, 3}}},
    {"RFID_PerformTagLocationing", "RFID_PerformTagLocationing", {{3, 3}}},
    {"RFID_Read", "RFID_Read", {{3, 3}, {4, 4}, {5, 5}, {6, 6}}},
    {"RFID_Write", "RFID_Write", {{3, 3}, {4, 4}, {5, 5}}},
    {"RFID_Crypto", "RFID_Crypto", {{3, 3}, {4, 4}, {5, 5}, {6, 6}}},
    {"RFID_Login", "RFID_LoginW", {{1, 1}}},
};

TEST(OptionalObjects, EachNullAloneReachesTheReaderAsNull) {
  for (const OptionalCase& c : kOptionals) {
    for (const auto& [nulled, cArg] : c.javaToC) {
      const sim::Call call = callWith(c.method, {{std::to_string(nulled), nullptr}}, c.fn);
      for (const auto& [other, otherC] : c.javaToC) {
        ASSERT_LT(static_cast<size_t>(otherC), call.args.size()) << c.fn;
        EXPECT_EQ(other == nulled, call.args[otherC] == 0)
            << c.method << ": Java argument " << nulled << " null, C argument " << otherC;
      }
    }
  }
}

// The seventh (last) start and stop entries of the extra trigger block, with
// the six before them null, in every operation that converts triggers.
TEST(ExtraTriggers, TheLastStartAndStopSlotsAreFilled) {
  for (const auto& [method, triggerArg] : std::vector<std::pair<std::string, int>>{
           {"RFID_PerformInventory", 3}, {"RFID_PerformNXPEASScan", 2}, {"RFID_PerformAccessSequence", 3}}) {
    FreshReader reader;
    Jvm jvm;
    const Native& n = Library::get().native(method);
    std::vector<Val> args = buildArguments(jvm, n, {}, reader.handle());
    Obj* extra = jvm.at(jvm.value(args[triggerArg]), "extraTriggers");
    Obj* starts = jvm.array("[Lcom/kovra/rfid/orla/START_TRIGGER;", 7);
    Obj* stops = jvm.array("[Lcom/kovra/rfid/orla/STOP_TRIGGER;", 7);
    for (int i = 0; i < 6; ++i) starts->elements[i] = stops->elements[i] = nullptr;
    jvm.set(starts->elements[6], "type.ordinal", 2);
    jvm.set(starts->elements[6], "value.gpi.portNumber", 0x1234);
    jvm.set(starts->elements[6], "value.gpi.eventInfo", 0x80);
    jvm.set(starts->elements[6], "value.gpi.timeoutMilliseconds", 0x01020304);
    jvm.set(stops->elements[6], "type.ordinal", 4);
    jvm.set(stops->elements[6], "value.numAttempts.n", 9);
    jvm.set(stops->elements[6], "value.numAttempts.timeoutMilliseconds", 0x05060708);
    jvm.set(extra, "startTrigger", starts);
    jvm.set(extra, "stopTrigger", stops);
    runNative(jvm, n, args, reader.handle());
    const std::vector<uint8_t> block = blobOf(lastCall(method), "triggerInfo.extraTriggers");
    ASSERT_EQ(256u, block.size()) << method;
    const std::vector<uint8_t> start(block.begin() + 144, block.begin() + 160);
    const std::vector<uint8_t> stop(block.begin() + 240, block.begin() + 252);
    EXPECT_EQ((std::vector<uint8_t>{2, 0, 0, 0, 0, 0, 0, 0, 0x34, 0x12, 1, 0, 4, 3, 2, 1}), start) << method;
    EXPECT_EQ((std::vector<uint8_t>{4, 0, 0, 0, 9, 0, 0, 0, 8, 7, 6, 5}), stop) << method;
    EXPECT_EQ(std::vector<uint8_t>(144, 0), std::vector<uint8_t>(block.begin(), block.begin() + 144)) << method;
    EXPECT_EQ(std::vector<uint8_t>(4, 0), std::vector<uint8_t>(block.begin() + 252, block.end())) << method;
  }
}

}  // namespace
}  // namespace jt
