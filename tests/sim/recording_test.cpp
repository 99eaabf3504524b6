// Recording of calls into the journal: off by default, switched on for the
// tests that read it, bounded by a capacity past which calls are counted.
// Scripts apply whether recording is on or off.
#include <gtest/gtest.h>

#include <cstdint>

#include "record/journal.h"
#include "reader/sessions.h"

extern "C" {
int32_t RFID_GetAntennaMode(int64_t handle, uint32_t* mode);
}

namespace {

constexpr const char* kFn = "RFID_GetAntennaMode";

class RecordingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    sim::resetSimulator();
    reader = sim::openSession();
  }
  void TearDown() override {
    sim::setRecordCapacity(sim::kDefaultRecordCapacity);
    sim::record(false);
    sim::resetSimulator();
  }

  int32_t call() {
    uint32_t mode = 0;
    return RFID_GetAntennaMode(reader, &mode);
  }

  int64_t reader = 0;
};

TEST_F(RecordingTest, OffRecordsNothingWhileScriptsStillApply) {
  sim::record(false);
  sim::queueScriptedStatus(kFn, 7);
  sim::setScriptedStatus(kFn, 9);
  EXPECT_EQ(7, call());
  EXPECT_EQ(9, call());
  EXPECT_EQ(0u, sim::callCount(kFn));
  EXPECT_TRUE(sim::callNames().empty());
  EXPECT_EQ(0u, sim::droppedCalls());
}

TEST_F(RecordingTest, CallsPastTheCapacityAreDroppedAndCounted) {
  sim::record(true);
  sim::setRecordCapacity(3);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(0, call());
  EXPECT_EQ(3u, sim::callCount(kFn));
  EXPECT_EQ(2u, sim::droppedCalls());
  sim::Call last;
  ASSERT_TRUE(sim::findCall(kFn, -1, &last));
  EXPECT_EQ(3u, last.seq);  // the first three are kept, not the last three
}

TEST_F(RecordingTest, ResetEmptiesTheJournalAndTheCountButKeepsTheSwitchAndCapacity) {
  sim::record(true);
  sim::setRecordCapacity(1);
  call();
  call();
  sim::resetSimulator();
  EXPECT_TRUE(sim::recording());
  EXPECT_EQ(0u, sim::callCount(kFn));
  EXPECT_EQ(0u, sim::droppedCalls());
  call();
  call();
  EXPECT_EQ(1u, sim::callCount(kFn));
  EXPECT_EQ(1u, sim::droppedCalls());

  sim::record(false);
  sim::resetSimulator();
  EXPECT_FALSE(sim::recording());
}

TEST(RecordSwitchTest, OnlyOneSwitchesRecordingOn) {
  const struct {
    const char* value;
    bool on;
  } cases[] = {{"1", true}, {nullptr, false}, {"", false}, {"0", false}, {"true", false}, {"11", false}, {" 1", false}};
  for (const auto& c : cases) {
    EXPECT_EQ(c.on, sim::recordSwitch(c.value)) << (c.value != nullptr ? c.value : "(unset)");
  }
}

}  // namespace
