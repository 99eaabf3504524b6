// Configuration calls through the tracer: what it captured before each call
// is what the simulator journaled, what it captured after is what the
// reader wrote back (with the capability tables the reader points to), and
// the decoded view names the fields. Records are built byte by byte at
// their documented offsets.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "reader/sessions.h"
#include "record/journal.h"
#include "record/json.h"
#include "replay/replay.h"
#include "trace_fixture.h"

namespace {

using trace_test::Bytes;
using trace_test::Tracer;

using RecordCall = int32_t (*)(int64_t, void*);
using AntennaCall = int32_t (*)(int64_t, uint16_t, void*);

std::vector<uint8_t> Pointee(const std::vector<uint8_t>& record, size_t at, size_t n) {
  uint64_t address = 0;
  std::memcpy(&address, record.data() + at, 8);
  const auto* p = reinterpret_cast<const uint8_t*>(address);
  return p == nullptr ? std::vector<uint8_t>{} : std::vector<uint8_t>(p, p + n);
}

template <class T>
T At(const std::vector<uint8_t>& record, size_t at) {
  T value;
  std::memcpy(&value, record.data() + at, sizeof value);
  return value;
}

// What the calls sent and got back, and where they start in the trace.
struct Session {
  size_t skip = 0;
  Bytes caps{3768}, config{32}, info{4160}, stats{192}, profiles{24};
  std::map<std::string, std::vector<uint8_t>> wroteBack;  // "<function> <blob>"
};

// The calls, through the library's exports (the tracer's, or the simulator's).
void RunCalls(void* library, Session* s) {
    auto bind = [&](const char* name) { return dlsym(library, name); };
    const int64_t reader = sim::openSession();
    // ANTENNA_RF_CONFIG in its 320-byte block: indices 1, 2, 3 at 0, 2, 4,
    // RF mode 1 at 8, tari 6250 at 12, ports at 16 and 18, stop trigger
    // type 1 at 24 and value 500 at 28.
    Bytes block(320);
    block.put<uint16_t>(0, 1).put<uint16_t>(2, 2).put<uint16_t>(4, 3).put<uint32_t>(8, 1).put<uint32_t>(12, 6250);
    block.put<uint16_t>(16, 1).put<uint16_t>(18, 1).put<int32_t>(24, 1).put<uint16_t>(28, 500);
    // Two CABLE_LOSS_COMPENSATION records: antenna at 0, floats at 4 and 8.
    Bytes loss1(12), loss2(12);
    loss1.put<uint16_t>(0, 1).put<float>(4, 10.5f).put<float>(8, 2.25f);
    loss2.put<uint16_t>(0, 2).put<float>(4, 30.0f).put<float>(8, 1.5f);
    void* losses[] = {loss1.data(), loss2.data()};
    // SINGULATION_CONTROL: session 2, population 300 at 4, transit 0 at 6,
    // perform 1 at 8, inventory state 1 at 12, SL flag 2 at 16.
    Bytes singulation(20);
    singulation.put<uint32_t>(0, 2).put<uint16_t>(4, 300).put<uint8_t>(8, 1).put<uint32_t>(12, 1).put<uint32_t>(16, 2);
    // SYSTEMTIME: 2026-11-24 (a Tuesday) 10:20:30.400.
    Bytes time(16);
    const uint16_t fields[] = {2026, 11, 2, 24, 10, 20, 30, 400};
    for (size_t i = 0; i < 8; ++i) time.put<uint16_t>(2 * i, fields[i]);

    reinterpret_cast<RecordCall>(bind("RFID_GetReaderCapsW"))(reader, s->caps.data());
    reinterpret_cast<AntennaCall>(bind("RFID_SetAntennaRfConfig"))(reader, 1, block.data());
    reinterpret_cast<AntennaCall>(bind("RFID_GetAntennaRfConfig"))(reader, 1, s->config.data());
    reinterpret_cast<AntennaCall>(bind("RFID_SetCableLossCompensation"))(reader, 2, losses);
    reinterpret_cast<AntennaCall>(bind("RFID_SetSingulationControl"))(reader, 1, singulation.data());
    reinterpret_cast<RecordCall>(bind("RFID_GetReaderInfoW"))(reader, s->info.data());
    reinterpret_cast<RecordCall>(bind("RFID_SetLocalTime"))(reader, time.data());
    reinterpret_cast<AntennaCall>(bind("RFID_GetReaderStats"))(reader, 1, s->stats.data());
    reinterpret_cast<RecordCall>(bind("RFID_GetProfileListW"))(reader, s->profiles.data());
}

// What the reader wrote back, by the blob names the trace gives it.
void Collect(Session* s) {

    // READER_CAPS: the sensitivities at 3144/3152, the RF mode tables at
    // 3432/3440 (UHF_RF_MODE_TABLE: entries at 2/8, 80 bytes each), power
    // levels at 3456/3464, hop tables at 3480/3488 (frequencies at 2/8).
    const std::vector<uint8_t>& caps = s->caps.b;
    const std::vector<uint8_t> uhf = Pointee(caps, 3440, 16 * At<uint16_t>(caps, 3432));
    const std::vector<uint8_t> hop = Pointee(caps, 3488, 16);
    const std::vector<uint8_t>& list = s->profiles.b;  // PROFILE_LIST: count at 0, names at 8
    s->wroteBack = {
        {"RFID_GetReaderCapsW caps", caps},
        {"RFID_GetReaderCapsW caps.receiveSensitivtyTable.receiveSensitivityValueList",
         Pointee(caps, 3152, 4 * At<uint16_t>(caps, 3144))},
        {"RFID_GetReaderCapsW caps.rfModes.uhfTables", uhf},
        {"RFID_GetReaderCapsW caps.rfModes.uhfTables[0].tablesEntries", Pointee(uhf, 8, 80 * At<uint16_t>(uhf, 2))},
        {"RFID_GetReaderCapsW caps.transmitPowerLevelTable.powerValueList",
         Pointee(caps, 3464, 2 * At<uint16_t>(caps, 3456))},
        {"RFID_GetReaderCapsW caps.freqHopInfo.freqTables", hop},
        {"RFID_GetReaderCapsW caps.freqHopInfo.freqTables[0].freqList", Pointee(hop, 8, 4 * At<uint16_t>(hop, 2))},
        {"RFID_GetAntennaRfConfig config", s->config.b},
        {"RFID_GetReaderInfoW info", s->info.b},
        {"RFID_GetReaderStats stats", s->stats.b},
        {"RFID_GetProfileListW list", list},
        {"RFID_GetProfileListW list.profileNames", Pointee(list, 8, 8 * At<uint16_t>(list, 0))},
    };
}

const Session& Traced() {
  static Session* s = [] {
    auto* s = new Session;
    s->skip = trace_test::TracedCount();
    RunCalls(Tracer(), s);
    Collect(s);
    return s;
  }();
  return *s;
}

class TraceConfigTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    ASSERT_NE(Tracer(), nullptr);
    sim::resetSimulator();
    sim::record(true);
    Traced();
  }
  static void TearDownTestSuite() { sim::resetSimulator(); }
};

TEST_F(TraceConfigTest, TraceHoldsWhatWasSentAndWhatTheReaderWroteBack) {
  const Session& s = Traced();
  std::map<std::string, int64_t> seen;
  std::set<std::string> sent, got;
  for (const sim::trace::TracedCall& call : trace_test::ReadTrace(s.skip)) {
    sim::Call journaled;
    ASSERT_TRUE(sim::findCall(call.function, seen[call.function]++, &journaled)) << call.function;
    for (const auto& [name, blob] : journaled.blobs) {
      auto traced = call.in.find(name);
      ASSERT_NE(traced, call.in.end()) << call.function << " " << name << " was not traced";
      EXPECT_EQ(traced->second.present, blob.present) << call.function << " " << name;
      EXPECT_EQ(traced->second.bytes, blob.bytes) << call.function << " " << name;
      sent.insert(call.function + " " + name);
    }
    for (const auto& [name, blob] : call.out) {
      auto wrote = s.wroteBack.find(call.function + " " + name);
      if (wrote == s.wroteBack.end()) continue;
      EXPECT_EQ(blob.bytes, wrote->second) << call.function << " " << name;
      got.insert(wrote->first);
    }
  }
  for (const char* name : {"RFID_SetAntennaRfConfig config", "RFID_SetCableLossCompensation cableLoss",
                           "RFID_SetCableLossCompensation cableLoss[1]", "RFID_SetSingulationControl singulationControl",
                           "RFID_SetLocalTime time", "RFID_GetReaderCapsW caps"}) {
    EXPECT_EQ(sent.count(name), 1u) << name << " was not compared";
  }
  for (const auto& [name, bytes] : s.wroteBack) {
    EXPECT_EQ(got.count(name), 1u) << name << " was not traced";
    EXPECT_FALSE(bytes.empty()) << name;
  }
}

// Replayed, the same calls get what the reader wrote back: records, and the
// tables and lists they point to, in memory the simulator keeps.
TEST_F(TraceConfigTest, ReplayWritesBackEveryTracedRecordAndWhatItPointsTo) {
  const Session& traced = Traced();
  const std::string trace = trace_test::TracePath() + ".config";
  trace_test::CopyTrace(traced.skip, trace);
  sim::resetSimulator();
  std::string error;
  ASSERT_TRUE(sim::replay::start(trace, &error)) << error;
  Session replayed;
  RunCalls(RTLD_DEFAULT, &replayed);
  Collect(&replayed);
  EXPECT_EQ(sim::replay::divergence(), "");
  sim::replay::stop();
  std::remove(trace.c_str());
  for (const auto& [name, bytes] : traced.wroteBack) {
    // Records holding pointers point elsewhere now; what they point to is compared.
    if (name == "RFID_GetReaderCapsW caps" || name == "RFID_GetProfileListW list") continue;
    EXPECT_EQ(replayed.wroteBack.at(name), bytes) << name;
  }
  EXPECT_EQ(At<uint16_t>(replayed.caps.b, 3132), At<uint16_t>(traced.caps.b, 3132)) << "numAntennas";
}

TEST_F(TraceConfigTest, DecodedViewNamesTheFields) {
  const struct {
    const char* function;
    const char* path;
    const char* value;
  } kCases[] = {
      {"RFID_GetReaderCapsW", "out/caps/numAntennas", "4"},
      {"RFID_GetReaderCapsW", "out/caps/readerID/value", "SIM-0001"},
      {"RFID_GetReaderCapsW", "out/caps/rfModes/uhfTables/0/tablesEntries/1/bdrValue", "320000"},
      {"RFID_GetReaderCapsW", "out/caps/freqHopInfo/freqTables/0/hopTableID", "1"},
      {"RFID_SetAntennaRfConfig", "in/config/antennaStopTrigger/stopTriggerValue", "500"},
      {"RFID_SetCableLossCompensation", "in/cableLoss/0/cableLengthInFt", "10.5"},
      {"RFID_SetCableLossCompensation", "in/cableLoss/1/cableLossPer100Ft", "1.5"},
      {"RFID_SetSingulationControl", "in/singulationControl/tagPopulation", "300"},
      {"RFID_GetReaderInfoW", "out/info/name", "Simulated reader"},
      {"RFID_SetLocalTime", "in/time/Year", "2026"},
      {"RFID_GetProfileListW", "out/list/activeProfileIndex", "0"},
  };
  std::map<std::string, sim::json::Value> lines;
  for (sim::json::Value& line : trace_test::TracedLines(Traced().skip)) lines[line.string("function")] = std::move(line);
  for (const auto& c : kCases) {
    ASSERT_EQ(lines.count(c.function), 1u) << c.function;
    EXPECT_EQ(trace_test::Decoded(lines[c.function], c.path), c.value) << c.function << " " << c.path;
  }
}

}  // namespace
