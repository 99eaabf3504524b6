// Reader sessions through the simulated C API: handles, deep copies of the
// connection records, scripted failures and bad input.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "api/connect.h"
#include "record/journal.h"
#include "record/captured_fields.h"
#include "reader/sessions.h"
#include "reader/status.h"

extern "C" {
int32_t RFID_ConnectW(int64_t* handleOut, const wchar_t* hostName, uint32_t first, uint32_t second,
                      void* connInfo);
int32_t RFID_Reconnect(int64_t handle);
int32_t RFID_Disconnect(int64_t handle);
int32_t RFID_LoginW(int64_t* handleOut, void* loginInfo, uint32_t readerKind, uint8_t flag, void* reserved);
int32_t RFID_Logout(int64_t handle);
int32_t RFID_AcceptConnection(int64_t* handleOut, int64_t passThrough, void* acceptInfo, void* scratchOut);
int32_t RFID_GetLLRPConnectionConfigW(int64_t handle, void* config);
int32_t RFID_SetLLRPConnectionConfigW(int64_t handle, void* config);
const wchar_t* RFID_GetErrorDescriptionW(int32_t status);
int32_t RFID_GetDllVersionInfoW(void* versionInfo);
}

namespace {

class ConnectionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    sim::resetSimulator();
    sim::record(true);
  }
  void TearDown() override { sim::resetSimulator(); }
};

sim::Call lastCall(const std::string& fn) {
  sim::Call call;
  EXPECT_TRUE(sim::findCall(fn, -1, &call)) << fn;
  return call;
}

template <class T>
void put(uint8_t* record, size_t offset, T value) {
  std::memcpy(record + offset, &value, sizeof value);
}

int64_t connect(const wchar_t* host = L"reader-1") {
  wchar_t hostName[260] = {};
  std::wcsncpy(hostName, host, 260);
  uint8_t connInfo[48] = {};
  int64_t handle = 0;
  EXPECT_EQ(sim::kSuccess, RFID_ConnectW(&handle, hostName, 0, 0, connInfo));
  return handle;
}

TEST_F(ConnectionTest, ConnectIssuesDistinctIncreasingHandlesUntilDisconnect) {
  int64_t first = connect();
  int64_t second = connect();
  EXPECT_NE(0, first);
  EXPECT_GT(second, first);
  EXPECT_TRUE(sim::sessionExists(first));

  EXPECT_EQ(sim::kSuccess, RFID_Reconnect(first));
  EXPECT_EQ(sim::kSuccess, RFID_Disconnect(first));
  EXPECT_FALSE(sim::sessionExists(first));
  EXPECT_TRUE(sim::sessionExists(second));
  EXPECT_EQ(sim::kInvalidHandle, RFID_Disconnect(first));
  EXPECT_EQ(sim::kInvalidHandle, RFID_Reconnect(first));
  EXPECT_EQ(4u, sim::callCount("RFID_Disconnect") + sim::callCount("RFID_Reconnect"));

  sim::resetSimulator();  // handles are never reused, not even after a reset
  EXPECT_FALSE(sim::sessionExists(second));
  EXPECT_GT(connect(), second);
}

// What the session was opened with is kept with it until it closes.
TEST_F(ConnectionTest, ASessionKeepsItsOriginUntilDisconnect) {
  int64_t handle = connect(L"10.0.0.7");
  const sim::Blob host = lastCall("RFID_ConnectW").blobs["hostName"];
  ASSERT_EQ(1040u, host.bytes.size());
  EXPECT_EQ(0, std::memcmp(L"10.0.0.7", host.bytes.data(), 9 * sizeof(wchar_t)));
  EXPECT_EQ(host.bytes, sim::sessionOrigin(handle)["hostName"].bytes);
  RFID_Disconnect(handle);
  EXPECT_TRUE(sim::sessionOrigin(handle).empty());
}

TEST_F(ConnectionTest, AScriptedFailureAnswersButOpensNoSession) {
  wchar_t host[260] = L"reader";
  uint8_t connInfo[48] = {};
  int64_t handle = 0;
  sim::queueScriptedStatus("RFID_ConnectW", 17);
  EXPECT_EQ(17, RFID_ConnectW(&handle, host, 0, 0, connInfo));
  EXPECT_NE(0, handle);  // something recognisable reaches the caller...
  EXPECT_FALSE(sim::sessionExists(handle));  // ...but it is no session

  sim::setScriptedOutput("RFID_ConnectW", {0x44, 0x33, 0x22, 0x11});
  sim::queueScriptedStatus("RFID_ConnectW", 17);
  EXPECT_EQ(17, RFID_ConnectW(&handle, host, 0, 0, connInfo));
  EXPECT_EQ(0x11223344, handle);
  EXPECT_FALSE(sim::sessionExists(handle));
}

TEST_F(ConnectionTest, DisconnectFailingByScriptKeepsTheSession) {
  int64_t handle = connect();
  sim::queueScriptedStatus("RFID_Disconnect", 9);
  EXPECT_EQ(9, RFID_Disconnect(handle));
  EXPECT_TRUE(sim::sessionExists(handle));
}

TEST_F(ConnectionTest, NullRecordsAreInvalidParametersAfterRecording) {
  wchar_t host[260] = L"reader";
  uint8_t connInfo[48] = {};
  int64_t handle = 0;
  EXPECT_EQ(sim::kInvalidParam, RFID_ConnectW(nullptr, host, 0, 0, connInfo));
  EXPECT_EQ(sim::kInvalidParam, RFID_ConnectW(&handle, nullptr, 0, 0, connInfo));
  EXPECT_EQ(sim::kInvalidParam, RFID_ConnectW(&handle, host, 0, 0, nullptr));
  EXPECT_EQ(3u, sim::callCount("RFID_ConnectW"));
  EXPECT_FALSE(lastCall("RFID_ConnectW").blobs["connInfo"].present);
  EXPECT_FALSE(sim::sessionExists(handle));

  EXPECT_EQ(sim::kInvalidParam, RFID_LoginW(&handle, nullptr, 1, 1, nullptr));
  EXPECT_FALSE(lastCall("RFID_LoginW").blobs["loginInfo"].present);
}

TEST_F(ConnectionTest, LoginAndAcceptOpenSessionsOfTheirOwn) {
  std::vector<uint8_t> loginInfo(3144, 0);
  int64_t login = 0;
  ASSERT_EQ(sim::kSuccess, RFID_LoginW(&login, loginInfo.data(), 2, 1, nullptr));
  EXPECT_TRUE(sim::sessionExists(login));
  EXPECT_EQ(sim::kSuccess, RFID_Logout(login));
  EXPECT_FALSE(sim::sessionExists(login));

  uint8_t acceptInfo[8] = {};
  uint8_t scratch[64] = {};
  int64_t accepted = 0;
  ASSERT_EQ(sim::kSuccess, RFID_AcceptConnection(&accepted, -2, acceptInfo, scratch));
  EXPECT_TRUE(sim::sessionExists(accepted));
  EXPECT_NE(login, accepted);
}

TEST_F(ConnectionTest, LlrpConfigurationIsKeptPerReaderWithACopyOfItsSecureRecord) {
  int64_t handle = connect();
  int64_t other = connect();
  std::vector<uint8_t> config(1096, 0);
  config[0] = 1;
  put<uint32_t>(config.data(), 4, 6000);
  auto secure = std::make_unique<uint8_t[]>(40);
  std::memset(secure.get(), 0, 40);
  secure[0] = 1;
  secure[1] = 1;
  put(config.data(), 1048, secure.get());
  ASSERT_EQ(sim::kSuccess, RFID_SetLLRPConnectionConfigW(handle, config.data()));
  secure.reset();  // the reader keeps a copy

  std::vector<uint8_t> got(1096, 0xCC);
  ASSERT_EQ(sim::kSuccess, RFID_GetLLRPConnectionConfigW(handle, got.data()));
  EXPECT_EQ(1, got[0]);
  EXPECT_EQ(6000u, sim::fieldAt<uint32_t>(sim::Blob{true, got, false}, 4));
  auto* keptSecure = static_cast<const uint8_t*>(sim::pointerAt(sim::Blob{true, got, false}, 1048));
  ASSERT_NE(nullptr, keptSecure);
  EXPECT_EQ(0x0101, keptSecure[0] | keptSecure[1] << 8);

  ASSERT_EQ(sim::kSuccess, RFID_GetLLRPConnectionConfigW(other, got.data()));
  EXPECT_EQ(0, got[0]);
  EXPECT_EQ(nullptr, sim::pointerAt(sim::Blob{true, got, false}, 1048));

  sim::queueScriptedStatus("RFID_SetLLRPConnectionConfigW", 5);
  config[0] = 0;
  put<const void*>(config.data(), 1048, nullptr);  // the secure record is gone
  EXPECT_EQ(5, RFID_SetLLRPConnectionConfigW(handle, config.data()));
  ASSERT_EQ(sim::kSuccess, RFID_GetLLRPConnectionConfigW(handle, got.data()));
  EXPECT_EQ(1, got[0]);  // the failed set changed nothing
}

TEST_F(ConnectionTest, ErrorsAndVersionAnswerWithTextOrTheScript) {
  std::vector<uint8_t> version(1048, 0xCC);
  ASSERT_EQ(sim::kSuccess, RFID_GetDllVersionInfoW(version.data()));
  EXPECT_EQ(std::wstring(L"halyard-sim 1.0"), reinterpret_cast<const wchar_t*>(version.data()));
  EXPECT_EQ(sim::kInvalidParam, RFID_GetDllVersionInfoW(nullptr));

  EXPECT_EQ(std::wstring(L"Invalid reader handle"), RFID_GetErrorDescriptionW(sim::kInvalidHandle));
  EXPECT_EQ(std::wstring(L"Unknown status"), RFID_GetErrorDescriptionW(-12345));
  std::vector<uint8_t> text(16, 0);
  sim::putWide(&text, 0, L"scripted");
  void* kept = sim::keepAlive(text);
  sim::setScriptedPointer("RFID_GetErrorDescriptionW", reinterpret_cast<uintptr_t>(kept));
  EXPECT_EQ(kept, RFID_GetErrorDescriptionW(0));
}

}  // namespace
