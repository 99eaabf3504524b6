// The tag population of the simulated reader (built in, from a file, from a
// test) and the tag records it hands out.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <set>
#include <string>

#include "record/journal.h"
#include "api/c_api.h"
#include "record/captured_fields.h"
#include "reader/sessions.h"
#include "reader/status.h"
#include "reader/population.h"
#include "reader/tag_records.h"

namespace {

using sim::Bytes;

Bytes hex(const std::string& text) {
  Bytes out;
  for (size_t i = 0; i + 1 < text.size(); i += 2) {
    out.push_back(static_cast<uint8_t>(std::stoi(text.substr(i, 2), nullptr, 16)));
  }
  return out;
}

template <class T>
T at(const void* record, size_t offset) {
  T v;
  std::memcpy(&v, static_cast<const uint8_t*>(record) + offset, sizeof v);
  return v;
}

const uint8_t* pointerIn(const void* record, size_t offset) {
  return reinterpret_cast<const uint8_t*>(at<uintptr_t>(record, offset));
}

TEST(TagPopulationTest, CrcIsTheGen2Crc16) {
  const std::string check = "123456789";
  EXPECT_EQ(sim::crc16Genibus(reinterpret_cast<const uint8_t*>(check.data()), check.size()), 0xD64E);
}

TEST(TagPopulationTest, BuiltInTagsAreVariedAndConsistent) {
  const sim::Population tags = sim::builtInPopulation();
  ASSERT_GE(tags.size(), 20u);
  std::set<size_t> epcLengths, userLengths;
  std::set<uint16_t> antennas;
  for (const sim::SimTag& tag : tags) {
    epcLengths.insert(tag.epc.size());
    userLengths.insert(tag.user.size());
    EXPECT_EQ(tag.pc & 0xF800, (tag.epc.size() / 2) << 11);
    for (const auto& field : tag.rssiByAntenna) antennas.insert(field.first);
  }
  EXPECT_EQ(epcLengths, (std::set<size_t>{8, 12, 16, 32}));
  EXPECT_EQ(userLengths, (std::set<size_t>{0, 8, 64}));
  EXPECT_EQ(antennas, (std::set<uint16_t>{1, 2, 3, 4}));
  EXPECT_EQ(tags[0].epc, hex("300833B2DDD9014000000001"));
  EXPECT_EQ(tags[0].crc, 0x299A);
}

TEST(TagPopulationTest, TagLineReadsEveryKey) {
  const sim::ParsedPopulation parsed = sim::parseTagList(
      "# a comment line\n"
      "\n"
      "EPC=3000aabb TID=E280 USER=0102 ACCESS=12345678 KILL=87654321 XPC=1 ANT=2,4 RSSI=-40,-60 EAS=1 # note\n"
      "EPC=1111\n");
  ASSERT_EQ(parsed.error, "");
  ASSERT_EQ(parsed.tags.size(), 2u);
  const sim::SimTag& t = parsed.tags[0];
  EXPECT_EQ(t.epc, hex("3000AABB"));
  EXPECT_EQ(t.tid, hex("E280"));
  EXPECT_EQ(t.user, hex("0102"));
  EXPECT_EQ(t.accessPassword, 0x12345678u);
  EXPECT_EQ(t.killPassword, 0x87654321u);
  EXPECT_EQ(t.xpc, 1u);
  EXPECT_EQ(t.pc, 0x1200) << "two words, XPC indicator";
  EXPECT_EQ(t.crc, 0xA8C7);
  EXPECT_TRUE(t.eas);
  EXPECT_EQ(t.rssiByAntenna, (std::map<uint16_t, int8_t>{{2, -40}, {4, -60}}));
  sim::Bytes epcBank = hex("A8C712003000AABB");
  epcBank.resize(2 * 0x21);
  epcBank.push_back(0x00);
  epcBank.push_back(0x01);
  EXPECT_EQ(t.bank(sim::kBankEpc), epcBank) << "CRC, PC, EPC, the XPC word at word 0x21";
  EXPECT_EQ(t.bank(sim::kBankReserved), hex("8765432112345678"));
  const sim::SimTag& plain = parsed.tags[1];
  EXPECT_EQ(plain.rssiByAntenna, (std::map<uint16_t, int8_t>{{1, -50}})) << "defaults";
  EXPECT_FALSE(plain.eas);
}

TEST(TagPopulationTest, MalformedLinesNameTheLineAndTheProblem) {
  const std::pair<std::string, std::string> cases[] = {
      {"EPC=30ZZ", "line 1: bad hex digit in EPC"},
      {"EPC=3000\nEPC=300", "line 2: odd number of hex digits in EPC"},
      {"EPC=300011", "line 1: EPC must be 1 to 31 whole words"},
      {"EPC=3000 COLOR=red", "line 1: unknown key COLOR"},
      {"TID=E280", "line 1: no EPC"},
      {"EPC=3000 ACCESS=1234", "line 1: ACCESS needs exactly 8 hex digits"},
      {"EPC=3000 ANT=5", "line 1: ANT must be a number from 1 to 4"},
      {"EPC=3000 ANT=1,2 RSSI=-40,-50,-60", "line 1: RSSI needs one value or one per antenna"},
      {"EPC=3000 EPC=3001", "line 1: key EPC given twice"},
      {"EPC=3000 loose", "line 1: 'loose' is not KEY=value"},
      {"# only comments\n", "no tags"},
  };
  for (const auto& c : cases) {
    const sim::ParsedPopulation parsed = sim::parseTagList(c.first);
    EXPECT_EQ(parsed.error.rfind(c.second, 0), 0u) << c.first << " -> " << parsed.error;
    EXPECT_TRUE(parsed.tags.empty());
  }
}

TEST(TagPopulationTest, LoadingKeepsThePopulationWhenTheTextIsBad) {
  ASSERT_EQ(sim::loadPopulation("EPC=3000\nEPC=3001\n"), "");
  EXPECT_EQ(sim::currentPopulation()->size(), 2u);
  EXPECT_EQ(sim::loadPopulation("EPC=3000\nEPC=xx\n"), "line 2: bad hex digit in EPC");
  EXPECT_EQ(sim::currentPopulation()->size(), 2u);
  sim::useBuiltInPopulation();
  EXPECT_EQ(sim::currentPopulation()->size(), sim::builtInPopulation().size());
}

// The start-up population is read once per process, so each case runs in a
// fresh one.
class TagFileTest : public ::testing::Test {
 protected:
  void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  static std::string writeFile(const std::string& name, const std::string& text) {
    const std::string path = ::testing::TempDir() + name;
    std::ofstream(path) << text;
    return path;
  }

  // In the child: loads the start-up population twice (reset does so) and
  // exits 0 when it is the built-in one.
  static void startUpWith(const std::string& path) {
    setenv("HALYARD_SIM_TAGS", path.c_str(), 1);
    sim::restoreDefaultPopulation();
    sim::restoreDefaultPopulation();
    std::exit(sim::currentPopulation()->size() == sim::builtInPopulation().size() ? 0 : 1);
  }
};

TEST_F(TagFileTest, MalformedFileGivesOneMessageAndTheBuiltInTags) {
  const std::string path = writeFile("bad_tags.txt", "EPC=3000\nEPC=30ZZ ANT=1\n");
  EXPECT_EXIT(startUpWith(path), ::testing::ExitedWithCode(0),
              "^halyard-sim: [^\n]*bad_tags.txt: line 2: bad hex digit in EPC; using the built-in tags\n$");
}

TEST_F(TagFileTest, MissingFileGivesOneMessageAndTheBuiltInTags) {
  EXPECT_EXIT(startUpWith(::testing::TempDir() + "no_such_tags.txt"), ::testing::ExitedWithCode(0),
              "^halyard-sim: [^\n]*no_such_tags.txt: cannot read the tag file; using the built-in tags\n$");
}

TEST_F(TagFileTest, GoodFileIsThePopulation) {
  const std::string path = writeFile("good_tags.txt", "EPC=3000 ANT=2\n");
  EXPECT_EXIT(startUpWith(path), ::testing::ExitedWithCode(1), "^$");
}

class TagRecordTest : public ::testing::Test {
 protected:
  void SetUp() override {
    sim::resetSimulator();
    reader = sim::openSession();
  }
  void TearDown() override { sim::resetSimulator(); }

  int64_t reader = 0;
};

TEST_F(TagRecordTest, RecordsAreZeroedAndCountedUntilReleased) {
  void* tag = RFID_AllocateTag(reader);
  ASSERT_NE(tag, nullptr);
  const std::vector<uint8_t> zeros(sim::kTagRecordSize, 0);
  EXPECT_EQ(0, std::memcmp(tag, zeros.data(), zeros.size()));
  EXPECT_EQ(sim::liveTagRecords(reader), 1u);

  sim::setScriptedStatus("RFID_DeallocateTag", 9);
  EXPECT_EQ(RFID_DeallocateTag(reader, tag), 9);
  EXPECT_EQ(sim::liveTagRecords(reader), 1u) << "a failed release keeps the record";
  sim::setScriptedStatus("RFID_DeallocateTag", 0);

  EXPECT_EQ(RFID_DeallocateTag(reader, tag), sim::kSuccess);
  EXPECT_EQ(sim::liveTagRecords(reader), 0u);
  EXPECT_EQ(RFID_DeallocateTag(reader, tag), sim::kInvalidParam) << "released twice";
  EXPECT_EQ(RFID_DeallocateTag(reader, nullptr), sim::kInvalidParam);
}

TEST_F(TagRecordTest, UnknownReaderGetsNoRecord) {
  EXPECT_EQ(RFID_AllocateTag(reader + 1000), nullptr);
  void* tag = RFID_AllocateTag(reader);
  EXPECT_EQ(RFID_DeallocateTag(reader + 1000, tag), sim::kInvalidHandle);
  EXPECT_EQ(sim::liveTagRecords(reader), 1u);
  uint32_t count = 0;
  void* none = nullptr;
  EXPECT_EQ(rfid_DeallocateTags(reader, &none, 1), sim::kInvalidParam) << "not a record of ours";
  EXPECT_EQ(rfid_DeallocateTags(reader, &tag, 1), sim::kSuccess);
  EXPECT_EQ(sim::liveTagRecords(reader), 0u);
  EXPECT_EQ(rfid_GetReadTags(reader + 1000, 1, &none, &count), sim::kInvalidHandle);
}

TEST_F(TagRecordTest, ReadIsWrittenAtTheRecordOffsets) {
  sim::TagRead read;
  read.epc = hex("300833B2DDD9014000000001");
  read.pc = 0x3000;
  read.xpc = 0x12345678;
  read.crc = 0x299A;
  read.antenna = 3;
  read.peakRssi = -60;
  read.channelIndex = 17;
  read.phase = -1234;
  read.seenCount = 5;
  read.firstSeen = {{2026, 11, 6, 20, 23, 59, 58, 999}, 1000};
  read.lastSeen = {{2026, 11, 6, 20, 23, 59, 59, 1}, 2000};
  void* tag = RFID_AllocateTag(reader);
  ASSERT_TRUE(sim::fillTagRecord(tag, read, {}));

  EXPECT_EQ(Bytes(pointerIn(tag, 8), pointerIn(tag, 8) + at<uint32_t>(tag, 16)), read.epc);
  EXPECT_EQ(at<uint32_t>(tag, 20), sim::kTagIdCapacity);
  EXPECT_EQ((std::vector<uint32_t>{0x3000, 0x12345678, 0x299A, 3, 2026, 999, 59, 0xC4, 17, 5, 0xFB2E}),
            (std::vector<uint32_t>{at<uint16_t>(tag, 24), at<uint32_t>(tag, 28), at<uint16_t>(tag, 32),
                                   at<uint16_t>(tag, 34), at<uint16_t>(tag, 40), at<uint16_t>(tag, 54),
                                   at<uint16_t>(tag, 68), at<uint8_t>(tag, 72), at<uint16_t>(tag, 74),
                                   at<uint16_t>(tag, 76), at<uint16_t>(tag, 168)}))
      << "PC, XPC, CRC, antenna, first seen year and milliseconds, last seen second, RSSI, channel, count, phase";
  EXPECT_NE(pointerIn(tag, 96), nullptr);
  EXPECT_EQ(at<uint32_t>(tag, 108), 0u) << "no memory bank data";
  EXPECT_EQ(at<uint32_t>(tag, 112), sim::kMemoryBankCapacity);
  for (size_t optional : {136, 144, 184}) EXPECT_EQ(pointerIn(tag, optional), nullptr) << optional;

  read.hasLocation = true;
  read.relativeDistance = 42;
  ASSERT_TRUE(sim::fillTagRecord(tag, read, {4, 64, true}));
  EXPECT_EQ(at<uint32_t>(tag, 16), 4u) << "capped tag ID";
  EXPECT_EQ(at<uint64_t>(tag, 40), 1000u) << "up-time form";
  EXPECT_EQ(at<uint64_t>(tag, 48), 2000u);
  ASSERT_NE(pointerIn(tag, 136), nullptr);
  EXPECT_EQ(at<int16_t>(pointerIn(tag, 136), 0), 42);
  RFID_DeallocateTag(reader, tag);
}

}  // namespace
