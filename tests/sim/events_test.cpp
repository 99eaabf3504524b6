// Event objects of the simulated reader API, and the reader events that set
// them and carry data.
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <thread>
#include <vector>

#include "api/c_api.h"
#include "reader/event_signals.h"
#include "reader/sessions.h"
#include "reader/status.h"

namespace {

constexpr int32_t kTimeout = 258;
constexpr int32_t kFailed = -1;

class EventsTest : public ::testing::Test {
 protected:
  void SetUp() override { sim::resetSimulator(); }
  void TearDown() override { sim::resetSimulator(); }

  static int64_t autoReset(bool set = false) { return rfidUtils_CreateEvent(nullptr, 0, set, nullptr); }
  static int64_t manualReset(bool set = false) { return rfidUtils_CreateEvent(nullptr, 1, set, nullptr); }
};

TEST_F(EventsTest, AutoResetReleasesOneWaitAndManualResetStaysSetUntilReset) {
  const int64_t once = autoReset(true);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(once, 0), 0);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(once, 20), kTimeout);
  EXPECT_EQ(rfidUtils_SetEvent(once), 1);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(once, 10), 0);

  const int64_t manual = manualReset(false);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(manual, 0), kTimeout);
  EXPECT_EQ(rfidUtils_SetEvent(manual), 1);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(manual, 0), 0);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(manual, 0), 0);
  EXPECT_EQ(rfidUtils_ResetEvent(manual), 1);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(manual, 0), kTimeout);
}

TEST_F(EventsTest, WaitForAnyReturnsTheFirstSetObjectAndConsumesOnlyIt) {
  const int64_t handles[3] = {autoReset(), autoReset(true), autoReset(true)};
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(3, handles, 0, 0), 1);
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(3, handles, 0, 0), 2);
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(3, handles, 0, 20), kTimeout);
}

TEST_F(EventsTest, WaitForAllNeedsEveryObjectAndConsumesThemTogether) {
  const int64_t handles[2] = {autoReset(true), manualReset(false)};
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(2, handles, 1, 0), kTimeout);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(handles[0], 0), 0) << "a failed wait-all consumes nothing";
  rfidUtils_SetEvent(handles[0]);
  rfidUtils_SetEvent(handles[1]);
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(2, handles, 1, 0), 0);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(handles[0], 0), kTimeout) << "auto-reset consumed";
  EXPECT_EQ(rfidUtils_WaitForSingleObject(handles[1], 0), 0) << "manual-reset stays set";
}

TEST_F(EventsTest, SetFromAnotherThreadWakesABlockedWait) {
  const int64_t e = autoReset();
  std::thread setter([e] {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    rfidUtils_SetEvent(e);
  });
  EXPECT_EQ(rfidUtils_WaitForSingleObject(e, -1), 0);
  setter.join();
}

TEST_F(EventsTest, UnknownAndClosedHandlesAreRefused) {
  const int64_t e = autoReset(true);
  EXPECT_EQ(rfidUtils_CloseHandle(e), 1);
  EXPECT_EQ(rfidUtils_CloseHandle(e), 0);
  EXPECT_EQ(rfidUtils_SetEvent(e), 0);
  EXPECT_EQ(rfidUtils_ResetEvent(e), 0);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(e, 0), kFailed);
  const int64_t mixed[2] = {autoReset(true), e};
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(2, mixed, 0, 0), kFailed);
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(0, mixed, 0, 0), kFailed) << "nothing to wait on";
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(2, nullptr, 0, 0), kFailed);
}

TEST_F(EventsTest, ResetReleasesAWaiterThatWouldWaitForever) {
  const int64_t e = manualReset();
  int32_t result = 0;
  std::thread waiter([&] { result = rfidUtils_WaitForSingleObject(e, -1); });
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  sim::resetSimulator();
  waiter.join();
  EXPECT_EQ(result, kFailed);
}

TEST_F(EventsTest, RegisteredEventIsSetByTheReaderAndItsDataReadBack) {
  const int64_t reader = sim::openSession();
  const int64_t e = autoReset();
  ASSERT_EQ(RFID_RegisterEventNotification(reader, sim::kNxpEasAlarmEvent, e), sim::kSuccess);
  uint8_t record[16] = {};
  EXPECT_EQ(RFID_GetEventData(reader, sim::kNxpEasAlarmEvent, record), sim::kNotFound);

  std::vector<uint8_t> data(16, 0);
  const int64_t code = -5;
  std::memcpy(data.data(), &code, 8);
  data[8] = 3;  // antenna 3, little-endian
  sim::raiseEvent(reader, sim::kNxpEasAlarmEvent, data);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(e, 0), 0);
  ASSERT_EQ(RFID_GetEventData(reader, sim::kNxpEasAlarmEvent, record), sim::kSuccess);
  EXPECT_EQ(0, std::memcmp(record, data.data(), 16));

  ASSERT_EQ(RFID_DeregisterEventNotification(reader, sim::kNxpEasAlarmEvent), sim::kSuccess);
  sim::raiseEvent(reader, sim::kNxpEasAlarmEvent, data);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(e, 0), kTimeout) << "no longer registered";
  EXPECT_EQ(RFID_DeregisterEventNotification(reader, sim::kNxpEasAlarmEvent), sim::kNotFound);
}

TEST_F(EventsTest, RegistrationChecksReaderTypeAndEvent) {
  const int64_t reader = sim::openSession();
  const int64_t e = autoReset();
  EXPECT_EQ(RFID_RegisterEventNotification(reader + 1000, sim::kTagReadEvent, e), sim::kInvalidHandle);
  EXPECT_EQ(RFID_RegisterEventNotification(reader, 16, e), sim::kNotFound);
  EXPECT_EQ(RFID_RegisterEventNotification(reader, sim::kTagReadEvent, e + 1000), sim::kInvalidParam);
  EXPECT_EQ(RFID_GetEventData(reader, sim::kGpiEvent, nullptr), sim::kInvalidParam);
}

TEST_F(EventsTest, ExceptionTextIsKeptUpToTheRecordTheLibraryProvides) {
  const int64_t reader = sim::openSession();
  std::vector<uint8_t> data(2000, 0x41);
  sim::raiseEvent(reader, sim::kReaderExceptionEvent, data);
  std::vector<uint8_t> record(2000, 0);
  ASSERT_EQ(RFID_GetEventData(reader, sim::kReaderExceptionEvent, record.data()), sim::kSuccess);
  EXPECT_EQ(record[1087], 0x41);
  EXPECT_EQ(record[1088], 0) << "never beyond the 1088 bytes the caller provides";
}

TEST_F(EventsTest, ClosedSessionDropsItsRegistrations) {
  const int64_t reader = sim::openSession();
  const int64_t e = autoReset();
  ASSERT_EQ(RFID_RegisterEventNotification(reader, sim::kGpiEvent, e), sim::kSuccess);
  sim::closeSession(reader);
  sim::raiseEvent(reader, sim::kGpiEvent, {1, 0, 1});
  EXPECT_EQ(rfidUtils_WaitForSingleObject(e, 0), kTimeout);
}

}  // namespace
