// Inventory, tag locationing and the EAS scan of the simulated reader,
// driven through its C functions with records built byte by byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "record/journal.h"
#include "api/c_api.h"
#include "reader/event_signals.h"
#include "reader/rounds.h"
#include "reader/state.h"
#include "record/captured_fields.h"
#include "reader/sessions.h"
#include "reader/status.h"
#include "reader/population.h"
#include "reader/tag_records.h"

namespace {

using sim::Bytes;

// Tags 1 and 2 have EPCs beginning 3000, tags 3 and 4 beginning 3034.
const char* const kTags =
    "EPC=300000000000000000000001 ANT=1 RSSI=-40\n"
    "EPC=300000000000000000000002 ANT=1 RSSI=-60\n"
    "EPC=303400000000000000000003 ANT=1,2 RSSI=-45,-70\n"
    "EPC=303400000000000000000004 ANT=2 RSSI=-55 EAS=1\n";

constexpr int32_t kWaitTimeout = 258;
constexpr int32_t kLongWaitMs = 3000;  // only ever reached when something is broken

// A record under construction, zero-filled to its size.
struct Record {
  explicit Record(size_t size) : bytes(size, 0) {}
  template <class T>
  Record& put(size_t offset, T value) {
    sim::putField(&bytes, offset, value);
    return *this;
  }
  Record& ptr(size_t offset, const void* p) { return put<uint64_t>(offset, reinterpret_cast<uintptr_t>(p)); }
  void* data() { return bytes.data(); }
  std::vector<uint8_t> bytes;
};

Record antennaInfo(const std::vector<uint16_t>& antennas) {
  return Record(24).ptr(0, antennas.data()).put<uint32_t>(8, static_cast<uint32_t>(antennas.size()));
}

Record triggers(uint32_t stopType, uint32_t value, uint32_t timeout = 0) {
  return Record(64).put<uint32_t>(24, stopType).put<uint32_t>(28, value).put<uint32_t>(32, timeout);
}
Record duration(uint32_t ms) { return triggers(1, ms); }
Record oneRound() { return triggers(4, 1); }

Record epcPattern(const Bytes& pattern) {
  return Record(40)
      .put<uint32_t>(0, sim::kBankEpc)
      .put<uint16_t>(4, 32)  // after the CRC and PC words
      .ptr(8, pattern.data())
      .put<uint16_t>(16, static_cast<uint16_t>(pattern.size() * 8));
}

struct Read {
  Bytes epc;
  int16_t antenna;
  int8_t rssi;
  int16_t seenCount;
  const uint8_t* location;
};

Read readOf(const void* record) {
  Read r;
  const auto* p = static_cast<const uint8_t*>(record);
  const uint8_t* id = reinterpret_cast<const uint8_t*>(*reinterpret_cast<const uintptr_t*>(p + 8));
  r.epc.assign(id, id + *reinterpret_cast<const uint32_t*>(p + 16));
  std::memcpy(&r.antenna, p + 34, 2);
  std::memcpy(&r.rssi, p + 72, 1);
  std::memcpy(&r.seenCount, p + 76, 2);
  r.location = reinterpret_cast<const uint8_t*>(*reinterpret_cast<const uintptr_t*>(p + 136));
  return r;
}

Bytes epcOf(int tag) {
  return Bytes{0x30, static_cast<uint8_t>(tag >= 3 ? 0x34 : 0x00), 0, 0, 0, 0, 0, 0, 0, 0, 0,
               static_cast<uint8_t>(tag)};
}

class InventoryTest : public ::testing::Test {
 protected:
  void SetUp() override {
    sim::resetSimulator();
    sim::record(true);
    ASSERT_EQ(sim::loadPopulation(kTags), "");
    reader = sim::openSession();
  }
  void TearDown() override { sim::resetSimulator(); }

  int64_t eventFor(uint32_t type) {
    const int64_t e = rfidUtils_CreateEvent(nullptr, 1, 0, nullptr);
    EXPECT_EQ(RFID_RegisterEventNotification(reader, type, e), sim::kSuccess);
    return e;
  }

  // Runs an inventory until its stop trigger ends it.
  void inventory(void* postFilter, void* antennas, Record trigger) {
    const int64_t stopped = eventFor(sim::kInventoryStopEvent);
    ASSERT_EQ(RFID_PerformInventory(reader, postFilter, antennas, trigger.data(), nullptr), sim::kSuccess);
    ASSERT_EQ(rfidUtils_WaitForSingleObject(stopped, kLongWaitMs), 0);
    ASSERT_EQ(RFID_StopInventory(reader), sim::kSuccess);
  }

  // Fetches every buffered read through rfid_GetReadTags and hands the
  // records back.
  std::vector<Read> fetchAll() {
    std::vector<void*> records(100, nullptr);
    uint32_t count = 0;
    EXPECT_EQ(rfid_GetReadTags(reader, 100, records.data(), &count), sim::kSuccess);
    std::vector<Read> reads;
    for (uint32_t i = 0; i < count; ++i) reads.push_back(readOf(records[i]));
    EXPECT_EQ(rfid_DeallocateTags(reader, records.data(), count), sim::kSuccess);
    for (Read& r : reads) r.location = nullptr;  // released with its record
    return reads;
  }

  std::set<std::pair<Bytes, int16_t>> seen(const std::vector<Read>& reads) {
    std::set<std::pair<Bytes, int16_t>> out;
    for (const Read& r : reads) out.insert({r.epc, r.antenna});
    return out;
  }

  int64_t reader = 0;
};

TEST_F(InventoryTest, DurationStopReadsTheSelectedAntennaAndAggregatesReads) {
  const int64_t tagRead = eventFor(sim::kTagReadEvent);
  const std::vector<uint16_t> antennas = {1};
  Record ant = antennaInfo(antennas);
  inventory(nullptr, ant.data(), duration(150));
  EXPECT_EQ(rfidUtils_WaitForSingleObject(tagRead, 0), 0);

  const std::vector<Read> reads = fetchAll();
  EXPECT_EQ(seen(reads), (std::set<std::pair<Bytes, int16_t>>{{epcOf(1), 1}, {epcOf(2), 1}, {epcOf(3), 1}}));
  for (const Read& r : reads) {
    EXPECT_GE(r.seenCount, 2) << "one read per tag and antenna, seen in several rounds";
    const int base = r.epc == epcOf(1) ? -40 : r.epc == epcOf(2) ? -60 : -45;
    EXPECT_LE(std::abs(r.rssi - base), 2);
  }
  EXPECT_EQ(sim::liveTagRecords(reader), 0u);
  EXPECT_EQ(RFID_StopInventory(reader), sim::kNoOperationRunning);
}

TEST_F(InventoryTest, NoAntennaInfoReadsEveryAntenna) {
  inventory(nullptr, nullptr, oneRound());
  const std::vector<Read> reads = fetchAll();
  EXPECT_EQ(seen(reads), (std::set<std::pair<Bytes, int16_t>>{
                             {epcOf(1), 1}, {epcOf(2), 1}, {epcOf(3), 1}, {epcOf(3), 2}, {epcOf(4), 2}}));
  for (const Read& r : reads) EXPECT_EQ(r.seenCount, 1) << "one round";
}

TEST_F(InventoryTest, PostFilterSelectsByPatternMaskAndRssiRange) {
  const Bytes prefix = {0x30, 0x34};
  Record pattern = epcPattern(prefix);
  Record filter = Record(40).ptr(8, pattern.data()).put<uint32_t>(24, 4 /* A */);
  inventory(filter.data(), nullptr, oneRound());
  EXPECT_EQ(seen(fetchAll()), (std::set<std::pair<Bytes, int16_t>>{{epcOf(3), 1}, {epcOf(3), 2}, {epcOf(4), 2}}));

  filter.put<uint32_t>(24, 5 /* not A */);
  inventory(filter.data(), nullptr, oneRound());
  EXPECT_EQ(seen(fetchAll()), (std::set<std::pair<Bytes, int16_t>>{{epcOf(1), 1}, {epcOf(2), 1}}));

  const Bytes masked = {0x30, 0xFF};
  const Bytes mask = {0xFF, 0x00};  // only the first byte counts
  Record a = epcPattern(masked).ptr(24, mask.data()).put<uint16_t>(32, 16);
  Record range = Record(8).put<int8_t>(0, -50).put<int8_t>(1, -30).put<uint32_t>(4, 0 /* within */);
  filter = Record(40).ptr(8, a.data()).put<uint32_t>(24, 4).ptr(32, range.data());
  inventory(filter.data(), nullptr, oneRound());
  EXPECT_EQ(seen(fetchAll()), (std::set<std::pair<Bytes, int16_t>>{{epcOf(1), 1}, {epcOf(3), 1}}));
}

TEST_F(InventoryTest, TagStorageSettingsCapTheBufferAndTheTagId) {
  Record defaults(16);
  ASSERT_EQ(RFID_GetTagStorageSettings(reader, defaults.data()), sim::kSuccess);
  EXPECT_EQ(defaults.bytes, Record(16).put<uint32_t>(0, 4096).put<uint32_t>(4, 64).put<uint32_t>(8, 64)
                                .put<uint16_t>(12, 0xFFFF).bytes);
  Record settings = Record(defaults).put<uint32_t>(0, 2).put<uint32_t>(8, 4);
  ASSERT_EQ(RFID_SetTagStorageSettings(reader, settings.data()), sim::kSuccess);
  const int64_t full = eventFor(sim::kBufferFullEvent);

  inventory(nullptr, nullptr, oneRound());
  EXPECT_EQ(rfidUtils_WaitForSingleObject(full, 0), 0);
  const std::vector<Read> reads = fetchAll();
  ASSERT_EQ(reads.size(), 2u);
  for (const Read& r : reads) EXPECT_EQ(r.epc.size(), 4u);
}

TEST_F(InventoryTest, OneOperationAtATimeAndScriptedFailureStartsNothing) {
  ASSERT_EQ(RFID_PerformInventory(reader, nullptr, nullptr, nullptr, nullptr), sim::kSuccess);
  EXPECT_EQ(RFID_PerformInventory(reader, nullptr, nullptr, nullptr, nullptr), sim::kOperationInProgress);
  EXPECT_EQ(RFID_PerformNXPEASScan(reader, nullptr, nullptr, nullptr), sim::kOperationInProgress);
  EXPECT_EQ(RFID_StopNXPEASScan(reader), sim::kNoOperationRunning);
  EXPECT_EQ(RFID_StopInventory(reader), sim::kSuccess);

  sim::queueScriptedStatus("RFID_PerformInventory", 77);
  EXPECT_EQ(RFID_PerformInventory(reader, nullptr, nullptr, nullptr, nullptr), 77);
  EXPECT_EQ(RFID_StopInventory(reader), sim::kNoOperationRunning);
  EXPECT_EQ(RFID_PerformInventory(reader + 1000, nullptr, nullptr, nullptr, nullptr), sim::kInvalidHandle);
}

TEST_F(InventoryTest, UnreadableRecordsAreRefusedNotFollowed) {
  void* wild = reinterpret_cast<void*>(0x10);
  EXPECT_EQ(RFID_PerformInventory(reader, nullptr, wild, nullptr, nullptr), sim::kInvalidParam);
  EXPECT_EQ(RFID_StopInventory(reader), sim::kNoOperationRunning) << "nothing started";
  const Bytes prefix = {0x30};  // the pattern points at it: it must outlive the call
  Record pattern = epcPattern(prefix).ptr(24, wild).put<uint16_t>(32, 8);
  Record filter = Record(40).ptr(8, pattern.data());
  EXPECT_EQ(RFID_PerformInventory(reader, filter.data(), nullptr, nullptr, nullptr), sim::kInvalidParam);
  Record pre = Record(36).ptr(8, wild).put<uint16_t>(16, 8);
  uint32_t index = 0;
  EXPECT_EQ(RFID_AddPreFilter(reader, 1, pre.data(), &index), sim::kInvalidParam);
  EXPECT_EQ(RFID_AddPreFilter(reader, 1, Record(36).data(), static_cast<uint32_t*>(wild)), sim::kInvalidParam);
  EXPECT_EQ(RFID_GetTagStorageSettings(reader, wild), sim::kInvalidParam);
  EXPECT_EQ(RFID_SetSingulationControl(reader, 1, wild), sim::kInvalidParam);
  EXPECT_EQ(RFID_PerformTagLocationing(reader, static_cast<uint8_t*>(wild), 12, nullptr, nullptr, nullptr),
            sim::kInvalidParam);
  EXPECT_EQ(rfidUtils_WaitForMultipleObjects(2, static_cast<int64_t*>(wild), 0, 0), -1);
  EXPECT_EQ(rfid_DeallocateTags(reader, static_cast<void**>(wild), 1), sim::kInvalidParam);
}

TEST_F(InventoryTest, ClosingTheSessionStopsItsInventory) {
  ASSERT_EQ(RFID_PerformInventory(reader, nullptr, nullptr, nullptr, nullptr), sim::kSuccess);
  std::weak_ptr<sim::Reader> state = sim::findReader(reader);
  EXPECT_TRUE(sim::closeSession(reader));
  EXPECT_TRUE(state.expired()) << "the operation thread ended and let go of the reader";
  EXPECT_EQ(RFID_StopInventory(reader), sim::kInvalidHandle);
}

TEST_F(InventoryTest, PurgeAndDiscardOnStopEmptyTheBuffer) {
  inventory(nullptr, nullptr, oneRound());
  EXPECT_EQ(RFID_PurgeTags(reader, 0), sim::kSuccess);
  void* record = RFID_AllocateTag(reader);
  EXPECT_EQ(RFID_GetReadTag(reader, record), sim::kNoReadTags);
  RFID_DeallocateTag(reader, record);

  Record settings = Record(16).put<uint32_t>(0, 4096).put<uint32_t>(8, 64).put<uint8_t>(15, 1);
  ASSERT_EQ(RFID_SetTagStorageSettings(reader, settings.data()), sim::kSuccess);
  inventory(nullptr, nullptr, oneRound());
  EXPECT_EQ(sim::findReader(reader)->buffer.size(), 0u);
}

TEST_F(InventoryTest, PreFilterSelectsTagsOnItsAntennaOnly) {
  const Bytes prefix = {0x30, 0x00};
  Record pre = Record(36).put<uint32_t>(0, sim::kBankEpc).ptr(8, prefix.data()).put<uint16_t>(16, 16)
                   .put<uint16_t>(18, 32);
  uint32_t index = 0;
  ASSERT_EQ(RFID_AddPreFilter(reader, 1, pre.data(), &index), sim::kSuccess);
  EXPECT_EQ(index, 1u);
  inventory(nullptr, nullptr, oneRound());
  EXPECT_EQ(seen(fetchAll()), (std::set<std::pair<Bytes, int16_t>>{
                                  {epcOf(1), 1}, {epcOf(2), 1}, {epcOf(3), 2}, {epcOf(4), 2}}));

  EXPECT_EQ(RFID_DeletePreFilter(reader, 1, 2), sim::kNotFound);
  EXPECT_EQ(RFID_DeletePreFilter(reader, 2, 1), sim::kNotFound) << "not that antenna's filter";
  EXPECT_EQ(RFID_DeletePreFilter(reader, 1, 1), sim::kSuccess);
  inventory(nullptr, nullptr, oneRound());
  EXPECT_EQ(fetchAll().size(), 5u);
  EXPECT_EQ(RFID_AddPreFilter(reader, 1, nullptr, &index), sim::kInvalidParam);
}

TEST_F(InventoryTest, GpiStartTriggerWaitsForTheMatchingPortAndState) {
  const int64_t tagRead = eventFor(sim::kTagReadEvent);
  Record trigger = oneRound().put<uint32_t>(0, 2).put<uint16_t>(8, 3).put<uint8_t>(10, 1);
  ASSERT_EQ(RFID_PerformInventory(reader, nullptr, nullptr, trigger.data(), nullptr), sim::kSuccess);
  sim::ReaderPtr state = sim::findReader(reader);
  sim::recordGpiChange(*state, 3, false);
  sim::recordGpiChange(*state, 2, true);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(tagRead, 50), kWaitTimeout);
  sim::recordGpiChange(*state, 3, true);
  EXPECT_EQ(rfidUtils_WaitForSingleObject(tagRead, kLongWaitMs), 0);
  EXPECT_EQ(RFID_StopInventory(reader), sim::kSuccess);
}

TEST_F(InventoryTest, GetReadTagPopsOneReadOrWritesTheScriptedRecord) {
  inventory(nullptr, nullptr, oneRound());
  void* record = RFID_AllocateTag(reader);
  sim::queueScriptedStatus("RFID_GetReadTag", 9);
  EXPECT_EQ(RFID_GetReadTag(reader, record), 9);
  EXPECT_EQ(readOf(record).epc, epcOf(1)) << "a failed call still writes its output";
  EXPECT_EQ(sim::findReader(reader)->buffer.size(), 5u) << "but takes nothing";
  ASSERT_EQ(RFID_GetReadTag(reader, record), sim::kSuccess);
  EXPECT_EQ(readOf(record).epc, epcOf(1));
  EXPECT_EQ(sim::findReader(reader)->buffer.size(), 4u);

  std::vector<uint8_t> scripted(192, 0xAB);
  sim::setScriptedOutput("RFID_GetReadTag", scripted);
  ASSERT_EQ(RFID_GetReadTag(reader, record), sim::kSuccess);
  EXPECT_EQ(0, std::memcmp(record, scripted.data(), 192));
  EXPECT_EQ(static_cast<uint8_t*>(record)[192], 0) << "the rest of the record is cleared";
  RFID_DeallocateTag(reader, record);
}

TEST_F(InventoryTest, ScriptedBatchBecomesNewRecords) {
  std::vector<uint8_t> scripted(3 * 192, 0);
  scripted[0] = 1;
  scripted[192] = 2;
  scripted[384] = 3;
  sim::setScriptedOutput("rfid_GetReadTags", scripted);
  std::vector<void*> records(2, nullptr);
  uint32_t count = 0;
  ASSERT_EQ(rfid_GetReadTags(reader, 2, records.data(), &count), sim::kSuccess);
  ASSERT_EQ(count, 2u) << "capped by the maximum";
  EXPECT_EQ(static_cast<uint8_t*>(records[1])[0], 2);
  EXPECT_EQ(sim::liveTagRecords(reader), 2u);
  EXPECT_EQ(rfid_DeallocateTags(reader, records.data(), count), sim::kSuccess);
  EXPECT_EQ(sim::liveTagRecords(reader), 0u);
}

TEST_F(InventoryTest, TriggerTimesAreFollowedOnlyForTheirTypes) {
  const uint16_t startTime[8] = {2026, 11, 6, 20, 12, 30, 0, 0};
  const uint16_t timeOfDay[3] = {7, 45, 0};
  Record extra(256);
  extra.put<uint32_t>(3 * 24, 4).ptr(3 * 24 + 8, timeOfDay);  // start[3]: time-lapse
  extra.put<uint32_t>(5 * 24, 2).ptr(5 * 24 + 8, reinterpret_cast<void*>(0x1));  // GPI: not a pointer
  Record trigger = oneRound().put<uint32_t>(0, 1).put<uint32_t>(8, 1000).ptr(16, startTime).ptr(56, extra.data());
  inventory(nullptr, nullptr, trigger);

  sim::Call call;
  ASSERT_TRUE(sim::findCall("RFID_PerformInventory", -1, &call));
  EXPECT_EQ(call.blobs["triggerInfo.startTrigger.startTime"].bytes.size(), 16u);
  EXPECT_EQ(sim::fieldAt<uint16_t>(call.blobs["triggerInfo.startTrigger.startTime"], 0), 2026);
  EXPECT_EQ(call.blobs["triggerInfo.extraTriggers.start[3].startTime"].bytes.size(), 6u);
  EXPECT_EQ(call.blobs.count("triggerInfo.extraTriggers.start[5].startTime"), 0u);
  EXPECT_FALSE(call.blobs["triggerInfo.tagEventReportInfo"].present);
  EXPECT_EQ(call.blobs["triggerInfo.extraTriggers"].bytes, extra.bytes);
}

TEST_F(InventoryTest, LocateReportsTheTagWithItsDistance) {
  const int64_t tagRead = eventFor(sim::kTagReadEvent);
  const Bytes epc = epcOf(3);
  ASSERT_EQ(RFID_PerformTagLocationing(reader, epc.data(), 12, nullptr, nullptr, nullptr), sim::kSuccess);
  ASSERT_EQ(rfidUtils_WaitForSingleObject(tagRead, kLongWaitMs), 0);
  ASSERT_EQ(RFID_StopTagLocationing(reader), sim::kSuccess);
  void* record = RFID_AllocateTag(reader);
  ASSERT_EQ(RFID_GetReadTag(reader, record), sim::kSuccess);
  const Read r = readOf(record);
  EXPECT_EQ(r.epc, epc);
  EXPECT_EQ(r.antenna, 1) << "the antenna that hears it best";
  ASSERT_NE(r.location, nullptr);
  int16_t distance = 0;
  std::memcpy(&distance, r.location, 2);
  EXPECT_EQ(distance, sim::relativeDistanceFor(r.rssi));
  EXPECT_EQ(RFID_GetReadTag(reader, record), sim::kNoReadTags) << "other tags are not reported";
  RFID_DeallocateTag(reader, record);
}

TEST_F(InventoryTest, EasScanRaisesAlarmsForEasTagsInTheField) {
  const int64_t alarm = eventFor(sim::kNxpEasAlarmEvent);
  ASSERT_EQ(RFID_PerformNXPEASScan(reader, nullptr, nullptr, nullptr), sim::kSuccess);
  ASSERT_EQ(rfidUtils_WaitForSingleObject(alarm, kLongWaitMs), 0);
  ASSERT_EQ(RFID_StopNXPEASScan(reader), sim::kSuccess);
  uint8_t data[16] = {};
  ASSERT_EQ(RFID_GetEventData(reader, sim::kNxpEasAlarmEvent, data), sim::kSuccess);
  int64_t code = 0;
  int16_t antenna = 0;
  std::memcpy(&code, data, 8);
  std::memcpy(&antenna, data + 8, 2);
  EXPECT_EQ(code, 0x0000000000000004) << "the last eight EPC bytes of tag 4";
  EXPECT_EQ(antenna, 2);
  EXPECT_EQ(sim::findReader(reader)->buffer.size(), 0u) << "a scan reads no tags";
}

TEST_F(InventoryTest, SingulationControlIsKeptPerAntenna) {
  Record control(20);
  ASSERT_EQ(RFID_GetSingulationControl(reader, 2, control.data()), sim::kSuccess);
  EXPECT_EQ(control.bytes, Record(20).put<uint16_t>(4, 100).bytes);
  Record set = Record(20).put<uint32_t>(0, 2).put<uint16_t>(4, 32).put<uint16_t>(6, 500).put<uint8_t>(8, 1)
                   .put<uint32_t>(12, 1).put<uint32_t>(16, 3);
  ASSERT_EQ(RFID_SetSingulationControl(reader, 2, set.data()), sim::kSuccess);
  ASSERT_EQ(RFID_GetSingulationControl(reader, 2, control.data()), sim::kSuccess);
  EXPECT_EQ(control.bytes, set.bytes);
  ASSERT_EQ(RFID_GetSingulationControl(reader, 1, control.data()), sim::kSuccess);
  EXPECT_EQ(sim::fieldAt<uint16_t>(sim::Blob{true, control.bytes}, 4), 100) << "other antennas keep defaults";

  sim::queueScriptedStatus("RFID_SetSingulationControl", 8);
  EXPECT_EQ(RFID_SetSingulationControl(reader, 1, set.data()), 8);
  ASSERT_EQ(RFID_GetSingulationControl(reader, 1, control.data()), sim::kSuccess);
  EXPECT_EQ(sim::fieldAt<uint16_t>(sim::Blob{true, control.bytes}, 4), 100) << "a failed set changes nothing";
  EXPECT_EQ(RFID_GetSingulationControl(reader, 9, control.data()), sim::kInvalidParam);
}

}  // namespace
