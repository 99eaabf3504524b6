// The call tracer in front of the simulator, and the simulator replaying
// what it traced. A session (events, an inventory with antennas and
// triggers, fetching tags, a read access with a filter, a pre-filter, an
// antenna configuration) is run through libhalyard-trace.so's exports,
// which forward to the simulator this test links; records are built byte by
// byte at their documented offsets.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "reader/event_signals.h"
#include "reader/population.h"
#include "reader/sessions.h"
#include "reader/status.h"
#include "record/journal.h"
#include "record/json.h"
#include "record/trace_line.h"
#include "replay/replay.h"
#include "trace_fixture.h"

namespace {

using trace_test::Bind;
using trace_test::Bytes;
using trace_test::Tracer;
using trace_test::ReadTrace;
using trace_test::TracePath;

const char* const kTags =
    "EPC=300000000000000000000001 ANT=1 RSSI=-40\n"
    "EPC=303400000000000000000003 ANT=1,2 RSSI=-45,-70\n"
    "EPC=303400000000000000000004 ANT=2 RSSI=-55\n";

// The C functions the session calls, as the tracer or the simulator exports them.
struct Api {
  int64_t (*CreateEvent)(void*, int32_t, int32_t, void*);
  int32_t (*RegisterEventNotification)(int64_t, uint32_t, int64_t);
  int32_t (*WaitForSingleObject)(int64_t, int64_t);
  int32_t (*PerformInventory)(int64_t, void*, void*, void*, void*);
  int32_t (*StopInventory)(int64_t);
  int32_t (*GetReadTags)(int64_t, uint32_t, void**, uint32_t*);
  int32_t (*DeallocateTags)(int64_t, void**, uint32_t);
  void* (*AllocateTag)(int64_t);
  int32_t (*DeallocateTag)(int64_t, void*);
  int32_t (*Read)(int64_t, const uint8_t*, uint32_t, void*, void*, void*, void*, void*);
  int32_t (*AddPreFilter)(int64_t, uint16_t, void*, uint32_t*);
  int32_t (*GetAntennaConfig)(int64_t, uint16_t, uint16_t*, uint16_t*, uint16_t*);
};

void BindAll(void* library, Api* api) {
  Bind(library, "rfidUtils_CreateEvent", &api->CreateEvent);
  Bind(library, "RFID_RegisterEventNotification", &api->RegisterEventNotification);
  Bind(library, "rfidUtils_WaitForSingleObject", &api->WaitForSingleObject);
  Bind(library, "RFID_PerformInventory", &api->PerformInventory);
  Bind(library, "RFID_StopInventory", &api->StopInventory);
  Bind(library, "rfid_GetReadTags", &api->GetReadTags);
  Bind(library, "rfid_DeallocateTags", &api->DeallocateTags);
  Bind(library, "RFID_AllocateTag", &api->AllocateTag);
  Bind(library, "RFID_DeallocateTag", &api->DeallocateTag);
  Bind(library, "RFID_Read", &api->Read);
  Bind(library, "RFID_AddPreFilter", &api->AddPreFilter);
  Bind(library, "RFID_GetAntennaConfig", &api->GetAntennaConfig);
}

struct TagSeen {
  std::vector<uint8_t> epc;
  int16_t antenna;
  int8_t rssi;
  bool operator<(const TagSeen& o) const {
    return std::tie(epc, antenna, rssi) < std::tie(o.epc, o.antenna, o.rssi);
  }
  bool operator==(const TagSeen& o) const { return epc == o.epc && antenna == o.antenna && rssi == o.rssi; }
};

struct Outcome {
  std::multiset<TagSeen> tags;
  int32_t readStatus = -1;
  std::vector<uint8_t> readData;
  uint16_t antennaConfig[3] = {};
  int32_t lastStatus = -1;
};

// TAG_DATA: pTagID at 8, tagIDLength at 16, antennaID at 34, peakRSSI at 72,
// pMemoryBankData at 96, memoryBankDataLength at 108.
TagSeen SeenIn(const void* record) {
  const auto* p = static_cast<const uint8_t*>(record);
  uint64_t id = 0;
  uint32_t length = 0;
  TagSeen seen{};
  std::memcpy(&id, p + 8, 8);
  std::memcpy(&length, p + 16, 4);
  std::memcpy(&seen.antenna, p + 34, 2);
  std::memcpy(&seen.rssi, p + 72, 1);
  const auto* epc = reinterpret_cast<const uint8_t*>(id);
  seen.epc.assign(epc, epc + length);
  return seen;
}

// The session; `byteOffset` is the read's offset, so a second run can differ;
// `idlePolls` more fetches find no tag once the reader's buffer is empty, as
// an application polling on a timer makes.
Outcome RunSession(const Api& api, int64_t reader, uint16_t byteOffset, int idlePolls = 0) {
  Outcome o;
  const int64_t stopped = api.CreateEvent(nullptr, 1, 0, nullptr);
  api.RegisterEventNotification(reader, sim::kInventoryStopEvent, stopped);

  // ANTENNA_INFO: antennaList at 0, length at 8, antennaOpList at 16.
  uint16_t antennas[] = {1, 2};
  uint32_t qualifiers[] = {0, 0};
  Bytes antennaInfo(24);
  antennaInfo.ptr(0, antennas).put<uint32_t>(8, 2).ptr(16, qualifiers);
  // TRIGGER_INFO: a duration stop trigger (type 1 at 24, 40 ms at 28), the
  // report triggers at 48 and the extra block at 56.
  Bytes reportTriggers(40);
  Bytes extra(256);
  Bytes trigger(64);
  trigger.put<uint32_t>(24, 1).put<uint32_t>(28, 40).ptr(48, reportTriggers.data()).ptr(56, extra.data());
  // POST_FILTER: tagPatternA at 8, a TAG_PATTERN on EPC (bank 1) from bit 32
  // matching 0x30 in 8 bits.
  uint8_t pattern[] = {0x30};
  Bytes tagPattern(40);
  tagPattern.put<uint32_t>(0, 1).put<uint16_t>(4, 32).ptr(8, pattern).put<uint16_t>(16, 8);
  Bytes postFilter(40);
  postFilter.ptr(8, tagPattern.data());
  api.PerformInventory(reader, postFilter.data(), antennaInfo.data(), trigger.data(), nullptr);
  api.WaitForSingleObject(stopped, 3000);
  api.StopInventory(reader);

  std::vector<void*> records(64, nullptr);
  uint32_t count = 0;
  while (api.GetReadTags(reader, 64, records.data(), &count) == 0 && count > 0) {
    for (uint32_t i = 0; i < count; ++i) o.tags.insert(SeenIn(records[i]));
    api.DeallocateTags(reader, records.data(), count);
  }
  for (int i = 0; i < idlePolls; ++i) api.GetReadTags(reader, 64, records.data(), &count);

  // READ_ACCESS_PARAMS: memoryBank at 0, byteOffset at 4, byteCount at 6,
  // accessPassword at 8.
  const uint8_t tagID[] = {0x30, 0x34, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x03};
  Bytes params(48);
  params.put<uint32_t>(0, 1).put<uint16_t>(4, byteOffset).put<uint16_t>(6, 4).put<uint32_t>(8, 0);
  void* tag = api.AllocateTag(reader);
  o.readStatus = api.Read(reader, tagID, sizeof tagID, params.data(), nullptr, antennaInfo.data(), tag, nullptr);
  if (tag != nullptr) {
    uint64_t data = 0;
    uint32_t length = 0;
    std::memcpy(&data, static_cast<uint8_t*>(tag) + 96, 8);
    std::memcpy(&length, static_cast<uint8_t*>(tag) + 108, 4);
    if (data != 0) o.readData.assign(reinterpret_cast<uint8_t*>(data), reinterpret_cast<uint8_t*>(data) + length);
    api.DeallocateTag(reader, tag);
  }

  // PRE_FILTER: memoryBank at 0, tagPattern at 8, its bit count at 16.
  uint8_t prePattern[] = {0x30, 0x34};
  Bytes preFilter(36);
  preFilter.put<uint32_t>(0, 1).ptr(8, prePattern).put<uint16_t>(16, 16).put<uint16_t>(18, 32);
  uint32_t index = 0xFFFFFFFF;
  api.AddPreFilter(reader, 1, preFilter.data(), &index);
  o.lastStatus = api.GetAntennaConfig(reader, 1, &o.antennaConfig[0], &o.antennaConfig[1], &o.antennaConfig[2]);
  return o;
}

class TraceReplayTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { ASSERT_NE(Tracer(), nullptr); }

  void SetUp() override {
    sim::replay::stop();
    sim::resetSimulator();
    sim::record(true);
    ASSERT_EQ(sim::loadPopulation(kTags), "");
  }
  void TearDown() override {
    sim::replay::stop();
    sim::resetSimulator();
  }

  // Runs the session through the tracer, once for the whole suite; its
  // calls are the trace's from skip_ on, and session_ holds them alone.
  static const Outcome& Traced() {
    static Outcome* outcome = nullptr;
    if (outcome == nullptr) {
      Api api{};
      BindAll(Tracer(), &api);
      skip_ = trace_test::TracedCount();
      outcome = new Outcome(RunSession(api, sim::openSession(), 4));
      session_ = new std::string(trace_test::TracePath() + ".session");
      trace_test::CopyTrace(skip_, *session_);
    }
    return *outcome;
  }

  static Api Direct() {
    Api api{};
    BindAll(RTLD_DEFAULT, &api);
    return api;
  }

  static void TearDownTestSuite() {
    if (session_ != nullptr) std::remove(session_->c_str());
  }

  static size_t skip_;
  static std::string* session_;
};

size_t TraceReplayTest::skip_ = 0;
std::string* TraceReplayTest::session_ = nullptr;

TEST_F(TraceReplayTest, TraceHoldsTheBytesTheSimulatorCaptured) {
  const Outcome& traced = Traced();
  ASSERT_EQ(traced.tags.size(), 4u) << "three tags, one of them on both antennas";
  const std::vector<sim::trace::TracedCall> calls = ReadTrace(skip_);
  ASSERT_EQ(calls.size(), sim::journalSnapshot().size());

  std::map<std::string, int64_t> seen;  // calls of each function so far
  std::set<std::string> compared;
  for (const sim::trace::TracedCall& call : calls) {
    sim::Call journaled;
    ASSERT_TRUE(sim::findCall(call.function, seen[call.function]++, &journaled)) << call.function;
    for (const auto& [name, blob] : journaled.blobs) {
      auto traced = call.in.find(name);
      if (traced == call.in.end()) continue;
      compared.insert(call.function + " " + name);
      EXPECT_EQ(traced->second.present, blob.present) << call.function << " " << name;
      EXPECT_EQ(traced->second.bytes, blob.bytes) << call.function << " " << name;
    }
  }
  // What the session sent, record by record and what the records point to.
  for (const char* name :
       {"RFID_PerformInventory triggerInfo", "RFID_PerformInventory triggerInfo.extraTriggers",
        "RFID_PerformInventory triggerInfo.reportTriggers", "RFID_PerformInventory antennaInfo.antennaList",
        "RFID_PerformInventory antennaInfo.antennaOpList", "RFID_PerformInventory postFilter.tagPatternA",
        "RFID_PerformInventory postFilter.tagPatternA.tagPattern", "RFID_Read params", "RFID_Read tagID",
        "RFID_Read antennaInfo", "RFID_AddPreFilter preFilter", "RFID_AddPreFilter preFilter.tagPattern",
        "rfid_DeallocateTags records"}) {
    EXPECT_EQ(compared.count(name), 1u) << name << " was not compared";
  }
}

TEST_F(TraceReplayTest, TraceHoldsWhatTheSimulatorWroteBack) {
  const Outcome& traced = Traced();
  const std::vector<sim::trace::TracedCall> calls = ReadTrace(skip_);
  std::multiset<TagSeen> tags;
  for (const sim::trace::TracedCall& call : calls) {
    if (call.function == "RFID_GetAntennaConfig") {
      // first, second, third: three u16 out-parameters.
      for (int i = 0; i < 3; ++i) {
        const sim::Blob& out = call.out.at(i == 0 ? "first" : i == 1 ? "second" : "third");
        ASSERT_EQ(out.bytes.size(), 2u);
        EXPECT_EQ(out.bytes[0] | out.bytes[1] << 8, traced.antennaConfig[i]);
      }
    }
    if (call.function != "rfid_GetReadTags") continue;
    for (size_t i = 0; call.out.count("records[" + std::to_string(i) + "]"); ++i) {
      const std::string name = "records[" + std::to_string(i) + "]";
      std::vector<uint8_t> record = call.out.at(name).bytes;
      const std::vector<uint8_t>& epc = call.out.at(name + ".pTagID").bytes;
      TagSeen seen{epc, 0, 0};
      std::memcpy(&seen.antenna, record.data() + 34, 2);
      std::memcpy(&seen.rssi, record.data() + 72, 1);
      tags.insert(seen);
    }
  }
  EXPECT_EQ(tags, traced.tags);
}

TEST_F(TraceReplayTest, ReplayGivesTheSameTagsAndOutputs) {
  const Outcome traced = Traced();
  ASSERT_EQ(traced.readStatus, sim::kSuccess);
  ASSERT_EQ(traced.readData.size(), 4u) << "the read returned the four bytes asked for";
  sim::resetSimulator();
  sim::loadPopulation("");  // no tag of the reader model can leak into the replay
  std::string error;
  ASSERT_TRUE(sim::replay::start(*session_, &error)) << error;
  const Outcome replayed = RunSession(Direct(), sim::openSession(), 4);
  EXPECT_EQ(sim::replay::divergence(), "");
  EXPECT_EQ(replayed.tags, traced.tags);
  EXPECT_EQ(replayed.readStatus, traced.readStatus);
  EXPECT_EQ(replayed.readData, traced.readData);
  EXPECT_EQ(replayed.lastStatus, traced.lastStatus);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(replayed.antennaConfig[i], traced.antennaConfig[i]);
}

// Polls that found nothing depend on the application's clock: the replayed
// application may make more of them (answered as the trace answered one) or
// fewer (the trace's are passed over), and still gets the same tags.
TEST_F(TraceReplayTest, ReplayLetsIdlePollsBeRepeatedOrLeftOut) {
  const Outcome traced = Traced();
  // The session's trace with each fetch that found nothing made three times.
  const std::string polled = *session_ + ".polled";
  {
    std::ifstream in(*session_);
    std::ofstream out(polled);
    for (std::string line; std::getline(in, line);) {
      sim::trace::TracedCall call;
      std::string why;
      ASSERT_TRUE(sim::trace::FromJson(*sim::json::Parse(line).value, &call, &why)) << why;
      const bool idle = call.function == "rfid_GetReadTags" && call.out.at("count").bytes == std::vector<uint8_t>(4, 0);
      for (int i = 0; i < (idle ? 3 : 1); ++i) out << line << '\n';
    }
  }
  const struct { const std::string* trace; int idlePolls; } cases[] = {{session_, 4}, {&polled, 0}};
  for (const auto& c : cases) {
    sim::resetSimulator();
    sim::loadPopulation("");
    std::string error;
    ASSERT_TRUE(sim::replay::start(*c.trace, &error)) << error;
    const Outcome replayed = RunSession(Direct(), sim::openSession(), 4, c.idlePolls);
    EXPECT_EQ(sim::replay::divergence(), "") << *c.trace;
    EXPECT_EQ(replayed.tags, traced.tags) << *c.trace;
    EXPECT_EQ(replayed.lastStatus, traced.lastStatus) << *c.trace;
  }
  std::remove(polled.c_str());
}

TEST_F(TraceReplayTest, ReplayReportsTheFirstCallThatDiffers) {
  Traced();
  std::string error;
  ASSERT_TRUE(sim::replay::start(*session_, &error)) << error;
  const Outcome replayed = RunSession(Direct(), sim::openSession(), 6);
  EXPECT_EQ(replayed.readStatus, sim::replay::kReplayDiverged);
  EXPECT_EQ(replayed.lastStatus, sim::replay::kReplayDiverged) << "every later call too";
  const std::string divergence = sim::replay::divergence();
  EXPECT_NE(divergence.find("(RFID_Read) differs from the trace: params byte 4 (field params.byteOffset) is 06, "
                            "the trace has 04"),
            std::string::npos)
      << divergence;
}

TEST_F(TraceReplayTest, ReplayOfAnUnreadableTraceIsRefused) {
  const std::string bad = testing::TempDir() + "halyard-bad-trace.jsonl";
  std::ofstream(bad) << "{\"seq\":1,\"function\":\"RFID_StopInventory\",\"args\":[]}\n{not json\n";
  std::string error;
  EXPECT_FALSE(sim::replay::start(bad, &error));
  EXPECT_NE(error.find("halyard-bad-trace.jsonl:2:"), std::string::npos) << error;
  std::remove(bad.c_str());
  EXPECT_FALSE(sim::replay::start("/nonexistent/trace.jsonl", &error));
  EXPECT_NE(error.find("cannot open"), std::string::npos) << error;
}

}  // namespace
