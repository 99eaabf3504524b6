// The session records through the call tracer: connecting securely, logging
// in, the LLRP configuration, the last error, the version and event data.
// The trace must hold the bytes the simulator journaled and wrote back, and
// decode them by field name (event data by the record of its event type).
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "reader/event_signals.h"
#include "reader/sessions.h"
#include "reader/status.h"
#include "record/journal.h"
#include "trace_fixture.h"

namespace {

using trace_test::Bind;
using trace_test::Bytes;

using Connect = int32_t (*)(int64_t*, const wchar_t*, uint32_t, uint32_t, void*);
using Login = int32_t (*)(int64_t*, void*, uint32_t, uint8_t, void*);
using WithRecord = int32_t (*)(int64_t, void*);
using Version = int32_t (*)(void*);
using EventData = int32_t (*)(int64_t, uint32_t, void*);

void PutWide(Bytes& record, size_t at, const char* text) {
  for (size_t i = 0; text[i] != '\0'; ++i) record.put<uint32_t>(at + 4 * i, static_cast<unsigned char>(text[i]));
}

TEST(TraceSessionTest, SessionRecordsAreTracedAsJournaledAndDecodedByField) {
  ASSERT_NE(trace_test::Tracer(), nullptr);
  sim::resetSimulator();
  sim::record(true);
  Connect connect;
  Login login;
  WithRecord setLlrp, getLlrp, lastError;
  Version version;
  EventData eventData;
  Bind(trace_test::Tracer(), "RFID_ConnectW", &connect);
  Bind(trace_test::Tracer(), "RFID_LoginW", &login);
  Bind(trace_test::Tracer(), "RFID_SetLLRPConnectionConfigW", &setLlrp);
  Bind(trace_test::Tracer(), "RFID_GetLLRPConnectionConfigW", &getLlrp);
  Bind(trace_test::Tracer(), "RFID_GetLastErrorInfoW", &lastError);
  Bind(trace_test::Tracer(), "RFID_GetDllVersionInfoW", &version);
  Bind(trace_test::Tracer(), "RFID_GetEventData", &eventData);
  const size_t skip = trace_test::TracedCount();

  // SEC_CONNECTION_INFO: flags at 0 and 1, buffer sizes at 4, 16, 32, 48 and
  // their pointers at 8, 24, 40, 56 (no key), connStatus at 64.
  uint8_t cert[] = {0xa1, 0xb2, 0xc3}, phrase[] = {'p', 'w'}, root[] = {1, 2, 3, 4};
  Bytes secure(104);
  secure.put<uint8_t>(0, 1).put<uint8_t>(1, 1).put<uint32_t>(4, 3).ptr(8, cert).put<uint32_t>(32, 2).ptr(40, phrase);
  secure.put<uint32_t>(48, 4).ptr(56, root).put<int64_t>(64, -7);
  Bytes connInfo(48);  // CONNECTION_INFO: version at 0, secConnInfo at 8
  connInfo.put<uint32_t>(0, 2).ptr(8, secure.data());
  int64_t handle = 0;
  ASSERT_EQ(connect(&handle, L"reader-1", 5084, 0, connInfo.data()), sim::kSuccess);
  // LOGIN_INFO: wide hostName, userName, password at 0, 1040, 2080; version at 3120.
  Bytes loginInfo(3144);
  PutWide(loginInfo, 1040, "admin");
  loginInfo.put<uint32_t>(3120, 1).put<uint8_t>(3124, 1);
  int64_t managed = 0;
  login(&managed, loginInfo.data(), 1, 1, nullptr);
  // LLRP_CONNECTION_CONFIG: isClient at 0, port at 4, wide hostServerIP at 8,
  // pSecureModeConfig at 1048 (SEC_LLRP_CONFIG: secureMode at 0).
  Bytes secureLlrp(40);
  secureLlrp.put<uint8_t>(0, 1);
  Bytes llrp(1096);
  llrp.put<uint8_t>(0, 1).put<uint32_t>(4, 5085).ptr(1048, secureLlrp.data());
  PutWide(llrp, 8, "10.0.0.9");
  setLlrp(handle, llrp.data());
  Bytes llrpBack(1096), error(2120), dll(1048), antenna(16), alarm(16);
  getLlrp(handle, llrpBack.data());
  setLlrp(handle, nullptr);  // refused: the last error to fetch
  lastError(handle, error.data());
  version(dll.data());
  // Event data: an antenna event (antennaID at 0, event at 4) and an EAS
  // alarm (64-bit code at 0, antennaID at 8).
  sim::raiseEvent(handle, 3, Bytes(16).put<int16_t>(0, 2).put<uint32_t>(4, 1).b);
  sim::raiseEvent(handle, 10, Bytes(16).put<int64_t>(0, -5).put<int16_t>(8, 3).b);
  eventData(handle, 3, antenna.data());
  eventData(handle, 10, alarm.data());

  std::map<std::string, std::vector<sim::trace::TracedCall>> traced;
  for (sim::trace::TracedCall& call : trace_test::ReadTrace(skip)) traced[call.function].push_back(std::move(call));
  // What the simulator journaled on entry is what the trace holds.
  const struct { const char* fn; int index; const char* blob; } in[] = {
      {"RFID_ConnectW", 0, "connInfo"}, {"RFID_ConnectW", 0, "connInfo.secConnInfo"},
      {"RFID_ConnectW", 0, "connInfo.secConnInfo.clientCertBuff"},
      {"RFID_ConnectW", 0, "connInfo.secConnInfo.clientKeyBuff"},
      {"RFID_ConnectW", 0, "connInfo.secConnInfo.phraseBuff"}, {"RFID_ConnectW", 0, "connInfo.secConnInfo.rootCertBuff"},
      {"RFID_LoginW", 0, "loginInfo"}, {"RFID_SetLLRPConnectionConfigW", 0, "config"},
      {"RFID_SetLLRPConnectionConfigW", 0, "config.pSecureModeConfig"}, {"RFID_SetLLRPConnectionConfigW", 1, "config"},
  };
  for (const auto& c : in) {
    sim::Call journaled;
    ASSERT_TRUE(sim::findCall(c.fn, c.index, &journaled)) << c.fn;
    ASSERT_GT(traced[c.fn].size(), static_cast<size_t>(c.index)) << c.fn;
    const auto& blobs = traced[c.fn][c.index].in;
    ASSERT_EQ(blobs.count(c.blob), 1u) << c.fn << " " << c.blob;
    EXPECT_EQ(blobs.at(c.blob).present, journaled.blobs.at(c.blob).present) << c.fn << " " << c.blob;
    EXPECT_EQ(blobs.at(c.blob).bytes, journaled.blobs.at(c.blob).bytes) << c.fn << " " << c.blob;
  }
  // What the simulator wrote back is what the trace holds after the call.
  const auto secureBack = static_cast<const uint8_t*>(*reinterpret_cast<void* const*>(llrpBack.b.data() + 1048));
  ASSERT_NE(secureBack, nullptr);
  const struct { const char* fn; int index; const char* blob; std::vector<uint8_t> bytes; } out[] = {
      {"RFID_GetLLRPConnectionConfigW", 0, "config", llrpBack.b},
      {"RFID_GetLLRPConnectionConfigW", 0, "config.pSecureModeConfig", {secureBack, secureBack + 40}},
      {"RFID_GetLastErrorInfoW", 0, "errorInfo", error.b}, {"RFID_GetDllVersionInfoW", 0, "versionInfo", dll.b},
      {"RFID_GetEventData", 0, "record", antenna.b}, {"RFID_GetEventData", 1, "record", alarm.b},
  };
  for (const auto& c : out) {
    ASSERT_GT(traced[c.fn].size(), static_cast<size_t>(c.index)) << c.fn;
    ASSERT_EQ(traced[c.fn][c.index].out.count(c.blob), 1u) << c.fn << " " << c.blob;
    EXPECT_EQ(traced[c.fn][c.index].out.at(c.blob).bytes, c.bytes) << c.fn << " " << c.blob;
  }

  // The decoded view names the fields with their values.
  const struct { const char* fn; const char* path; std::string value; } decoded[] = {
      {"RFID_ConnectW", "in/connInfo/secConnInfo/connStatus", "-7"},
      {"RFID_ConnectW", "in/connInfo/secConnInfo/clientCertBuff", "a1b2c3"},
      {"RFID_LoginW", "in/loginInfo/userName", "admin"},
      {"RFID_SetLLRPConnectionConfigW", "in/config/pSecureModeConfig/secureMode", "1"},
      {"RFID_GetLLRPConnectionConfigW", "out/config/port", "5085"},
      {"RFID_GetLLRPConnectionConfigW", "out/config/hostServerIP", "10.0.0.9"},
      {"RFID_GetLastErrorInfoW", "out/errorInfo/rfidStatusCode", std::to_string(sim::kInvalidParam)},
      {"RFID_GetDllVersionInfoW", "out/versionInfo/dllVersion", "halyard-sim 1.0"},
      {"RFID_GetEventData", "out/record/antennaEvent", "1"},
      {"RFID_GetEventData", "out/record/alarmCode", "-5"},
  };
  const std::vector<sim::json::Value> lines = trace_test::TracedLines(skip);
  for (const auto& c : decoded) {
    bool found = false;
    for (const sim::json::Value& line : lines) {
      found = found || (line.string("function") == c.fn && trace_test::Decoded(line, c.path) == c.value);
    }
    EXPECT_TRUE(found) << c.fn << " " << c.path << " = " << c.value;
  }
}

}  // namespace
