// The simulator's journal: call order, blobs, scripts, and how a recorded
// C API entry settles its status and outputs.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cstdint>
#include <cstring>
#include <thread>
#include <vector>

#include "record/api_call.h"
#include "record/journal.h"
#include "record/captured_fields.h"
#include "reader/sessions.h"
#include "reader/status.h"

extern "C" {
int32_t RFID_ConnectW(int64_t* handleOut, const wchar_t* hostName, uint32_t, uint32_t, void* connInfo);
int32_t RFID_GetAntennaMode(int64_t handle, uint32_t* mode);
int32_t RFID_GetAntennaConfig(int64_t handle, uint16_t antennaID, uint16_t* first, uint16_t* second,
                              uint16_t* third);
}

namespace {

class JournalTest : public ::testing::Test {
 protected:
  void SetUp() override {
    sim::resetSimulator();
    sim::record(true);
  }
  void TearDown() override { sim::resetSimulator(); }
};

sim::Call callOf(const std::string& fn, int64_t index) {
  sim::Call call;
  EXPECT_TRUE(sim::findCall(fn, index, &call)) << fn << " #" << index;
  return call;
}

int64_t connect() {
  int64_t handle = 0;
  wchar_t host[260] = L"reader";
  uint8_t connInfo[48] = {};
  EXPECT_EQ(sim::kSuccess, RFID_ConnectW(&handle, host, 0, 0, connInfo));
  return handle;
}

// Two readable pages followed by an unreadable one.
class GuardedPages {
 public:
  GuardedPages() {
    void* p = mmap(nullptr, 3 * kPage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    base_ = static_cast<uint8_t*>(p);
    mprotect(base_ + 2 * kPage, kPage, PROT_NONE);
  }
  ~GuardedPages() { munmap(base_, 3 * kPage); }
  GuardedPages(const GuardedPages&) = delete;
  GuardedPages& operator=(const GuardedPages&) = delete;

  uint8_t* guard() const { return base_ + 2 * kPage; }  // first unreadable byte

  static constexpr size_t kPage = 4096;

 private:
  uint8_t* base_;
};

TEST_F(JournalTest, RecordsCallsInOrderWithTheirArguments) {
  sim::Recorder("A", {1, 2}).finish();
  sim::Recorder("B", {}).finish();
  sim::Recorder("A", {3}).finish();

  EXPECT_EQ((std::vector<std::string>{"A", "B", "A"}), sim::callNames());
  EXPECT_EQ(2u, sim::callCount("A"));
  EXPECT_EQ(0u, sim::callCount("never called"));
  EXPECT_EQ((std::vector<uint64_t>{1, 2}), callOf("A", 0).args);
  EXPECT_EQ((std::vector<uint64_t>{3}), callOf("A", -1).args);
  EXPECT_EQ((std::vector<uint64_t>{1, 2}), callOf("A", -2).args);
  EXPECT_LT(callOf("A", 0).seq, callOf("B", 0).seq);
  EXPECT_LT(callOf("B", 0).seq, callOf("A", 1).seq);

  sim::Call missing;
  EXPECT_FALSE(sim::findCall("A", 2, &missing));
  EXPECT_FALSE(sim::findCall("A", -3, &missing));
  EXPECT_FALSE(sim::findCall("C", 0, &missing));
}

TEST_F(JournalTest, TellsNullFromEmptyAndCopiesAtCallEntry) {
  uint8_t bytes[3] = {1, 2, 3};
  wchar_t text[8] = L"abc";
  {
    sim::Recorder rec("F", {});
    rec.blob("null", nullptr, 4);
    rec.blob("empty", bytes, 0);
    rec.blob("bytes", bytes, 3);
    rec.wide("text", text, 2);
    rec.wide("whole", text);
    rec.finish();
  }
  bytes[0] = 9;  // the caller reuses its buffer after the call
  sim::Call call = callOf("F", 0);
  EXPECT_FALSE(call.blobs["null"].present);
  EXPECT_TRUE(call.blobs["empty"].present);
  EXPECT_TRUE(call.blobs["empty"].bytes.empty());
  EXPECT_EQ((std::vector<uint8_t>{1, 2, 3}), call.blobs["bytes"].bytes);
  EXPECT_EQ(2 * sizeof(wchar_t), call.blobs["text"].bytes.size());
  EXPECT_EQ(3 * sizeof(wchar_t), call.blobs["whole"].bytes.size());
  EXPECT_EQ(0, std::memcmp(text, call.blobs["whole"].bytes.data(), 3 * sizeof(wchar_t)));
}

TEST_F(JournalTest, UnreadableMemoryIsRecordedAsAFaultNotACrash) {
  GuardedPages pages;
  auto* lastChars = reinterpret_cast<wchar_t*>(pages.guard()) - 2;
  lastChars[0] = L'Z';
  lastChars[1] = L'\0';  // ends right before the unreadable page
  {
    sim::Recorder rec("F", {});
    rec.blob("straddling", pages.guard() - 4, 8);
    rec.blob("wild", reinterpret_cast<void*>(16), 4);
    rec.blob("huge", pages.guard() - 4, size_t{1} << 40);
    rec.wide("endsAtPage", lastChars);
    rec.wide("runsIntoPage", lastChars, 1);
    lastChars[1] = L'Y';
    rec.wide("unterminated", lastChars);
    rec.finish();
  }
  sim::Call call = callOf("F", 0);
  for (const char* name : {"straddling", "wild", "huge", "unterminated"}) {
    EXPECT_TRUE(call.blobs[name].present) << name;
    EXPECT_TRUE(call.blobs[name].faulted) << name;
    EXPECT_TRUE(call.blobs[name].bytes.empty()) << name;
  }
  EXPECT_FALSE(call.blobs["endsAtPage"].faulted);
  EXPECT_EQ(sizeof(wchar_t), call.blobs["endsAtPage"].bytes.size());
  EXPECT_FALSE(call.blobs["runsIntoPage"].faulted);
}

TEST_F(JournalTest, QueuedStatusesGoFirstThenTheFixedOneUntilReset) {
  int32_t status = -1;
  EXPECT_FALSE(sim::scriptedStatus("F", &status));
  EXPECT_EQ(0, status);

  sim::setScriptedStatus("F", 5);
  sim::queueScriptedStatus("F", 7);
  sim::queueScriptedStatus("F", 0);
  EXPECT_EQ(7, sim::Recorder("F", {}).finish());
  EXPECT_TRUE(sim::scriptedStatus("F", &status));  // a scripted 0 is a script
  EXPECT_EQ(0, status);
  EXPECT_EQ(5, sim::Recorder("F", {}).finish());
  EXPECT_EQ(5, sim::Recorder("F", {}).finish());
  EXPECT_EQ(0, sim::Recorder("G", {}).finish());

  sim::resetSimulator();
  EXPECT_EQ(0, sim::Recorder("F", {}).finish());
  EXPECT_EQ(1u, sim::callCount("F"));
}

TEST_F(JournalTest, AnUnfinishedRecorderStillRecordsButConsumesNoScript) {
  sim::queueScriptedStatus("F", 4);
  { sim::Recorder rec("F", {42}); }
  EXPECT_EQ(1u, sim::callCount("F"));
  EXPECT_EQ(4, sim::Recorder("F", {}).finish());
}

TEST_F(JournalTest, ScriptedOutputsAndPointersHoldUntilReset) {
  sim::setScriptedOutput("F", {1, 2, 3});
  uint8_t out[4] = {9, 9, 9, 9};
  EXPECT_TRUE(sim::scriptedOutput("F", out, 2));
  EXPECT_EQ((std::vector<uint8_t>{1, 2, 9, 9}), std::vector<uint8_t>(out, out + 4));
  EXPECT_TRUE(sim::scriptedOutput("F", out, 4));
  EXPECT_EQ((std::vector<uint8_t>{1, 2, 3, 9}), std::vector<uint8_t>(out, out + 4));
  EXPECT_FALSE(sim::scriptedOutput("G", out, 4));

  sim::setScriptedPointer("F", 0x1234);
  uint64_t value = 0;
  EXPECT_TRUE(sim::scriptedPointer("F", &value));
  EXPECT_EQ(0x1234u, value);

  sim::resetSimulator();
  EXPECT_FALSE(sim::scriptedOutput("F", out, 4));
  EXPECT_FALSE(sim::scriptedPointer("F", &value));
}

TEST_F(JournalTest, KeptMemoryIsADistinctCopy) {
  std::vector<uint8_t> bytes{5, 6};
  auto* a = static_cast<uint8_t*>(sim::keepAlive(bytes));
  auto* b = static_cast<uint8_t*>(sim::keepAlive(bytes));
  for (int i = 0; i < 100; ++i) sim::keepAlive({1});  // later ones do not move earlier ones
  EXPECT_NE(a, b);
  EXPECT_EQ(5, a[0]);
  EXPECT_EQ(6, a[1]);
  EXPECT_NE(nullptr, sim::keepAlive({}));
}

TEST_F(JournalTest, ConcurrentCallsAreAllRecordedWithDistinctNumbers) {
  constexpr int kThreads = 4;
  constexpr int kCalls = 200;
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([t] {
      for (int i = 0; i < kCalls; ++i) {
        sim::Recorder rec("F", {static_cast<uint64_t>(t)});
        rec.blob("b", &i, sizeof i);
        rec.finish();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  std::vector<sim::Call> calls = sim::journalSnapshot();
  ASSERT_EQ(static_cast<size_t>(kThreads * kCalls), calls.size());
  for (size_t i = 1; i < calls.size(); ++i) EXPECT_EQ(calls[i - 1].seq + 1, calls[i].seq);
}

// How a simulated C function settles its status and outputs.

TEST_F(JournalTest, AnUnknownHandleFailsUnlessAStatusIsScripted) {
  uint32_t mode = 7;
  EXPECT_EQ(sim::kInvalidHandle, RFID_GetAntennaMode(0x7777, &mode));
  EXPECT_EQ(1u, sim::callCount("RFID_GetAntennaMode"));
  sim::setScriptedStatus("RFID_GetAntennaMode", 0);
  EXPECT_EQ(sim::kSuccess, RFID_GetAntennaMode(0x7777, &mode));
}

TEST_F(JournalTest, ANullOutputIsAnInvalidParameterAfterRecording) {
  int64_t handle = connect();
  EXPECT_EQ(sim::kInvalidParam, RFID_GetAntennaMode(handle, nullptr));
  sim::Call call = callOf("RFID_GetAntennaMode", -1);
  EXPECT_EQ((std::vector<uint64_t>{static_cast<uint64_t>(handle), 0}), call.args);
  EXPECT_FALSE(call.blobs["mode"].present);
}

TEST_F(JournalTest, AnUnwritableOutputIsAnInvalidParameterNotACrash) {
  int64_t handle = connect();
  GuardedPages pages;
  auto* mode = reinterpret_cast<uint32_t*>(pages.guard());
  sim::setScriptedOutput("RFID_GetAntennaMode", {1, 2, 3, 4});
  EXPECT_EQ(sim::kInvalidParam, RFID_GetAntennaMode(handle, mode));
  EXPECT_TRUE(callOf("RFID_GetAntennaMode", -1).blobs["mode"].faulted);
}

TEST_F(JournalTest, OutputsSpreadTheScriptAcrossOutParametersEvenOnFailure) {
  int64_t handle = connect();
  uint16_t first = 0, second = 0xAAAA, third = 0xBBBB;
  EXPECT_EQ(sim::kSuccess, RFID_GetAntennaConfig(handle, 1, &first, &second, &third));
  EXPECT_EQ(0, first);  // no script: zeros
  EXPECT_EQ(0, third);
  EXPECT_EQ(0xAAAA, sim::fieldAt<uint16_t>(callOf("RFID_GetAntennaConfig", 0).blobs["second"], 0));

  sim::setScriptedOutput("RFID_GetAntennaConfig", {0x01, 0x02, 0x03, 0x04, 0x05});
  sim::queueScriptedStatus("RFID_GetAntennaConfig", 9);
  EXPECT_EQ(9, RFID_GetAntennaConfig(handle, 1, &first, &second, &third));
  EXPECT_EQ(0x0201, first);
  EXPECT_EQ(0x0403, second);
  EXPECT_EQ(0x0005, third);  // what the script does not cover is zeroed
}

}  // namespace
