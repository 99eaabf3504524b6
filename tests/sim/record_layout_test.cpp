// Field offsets by name, the way the simulator composes and reads records.
#include <gtest/gtest.h>

#include "record/record_layout.h"
#include "record/blob_set.h"
#include "record/capture_record.h"
#include "record/record_layouts.h"
#include "record/trace_line.h"

namespace {

using sim::layout::OffsetOf;

TEST(RecordLayoutTest, NamesAndPathsReachTheOffsetsOfTheCApi) {
  struct Case {
    const sim::layout::Record& record;
    const char* path;
    size_t width;
    size_t offset;
  } cases[] = {
      {sim::layout::TagData(), "PC", 2, 24},
      {sim::layout::TagData(), "pMemoryBankData", 8, 96},
      {sim::layout::TriggerInfo(), "stopTrigger.type", 4, 24},
      {sim::layout::ExtraTriggers(), "start[3].type", 4, 3 * 24},
      {sim::layout::ExtraTriggers(), "stop[1]", 0, 168 + 12},
  };
  for (const Case& c : cases) EXPECT_EQ(OffsetOf(c.record, c.path, c.width), c.offset) << c.path;
}

TEST(RecordLayoutDeathTest, AnUndescribedNameOrAWrongWidthStopsTheSimulatorAtOnce) {
  EXPECT_DEATH(OffsetOf(sim::layout::TagData(), "pc", 2), "TAG_DATA: field pc is not described");
  EXPECT_DEATH(OffsetOf(sim::layout::TagData(), "PC", 4), "field PC is not of that width");
  EXPECT_DEATH(OffsetOf(sim::layout::ExtraTriggers(), "start[7].type", 4), "is not described");
  EXPECT_DEATH(OffsetOf(sim::layout::TagData(), "PC.x", 2), "holds no record");
}

}  // namespace

namespace {

using sim::layout::Field;
using sim::layout::Kind;
using sim::layout::Record;

// A table record pointing to an array of entries that each point to bytes,
// as the reader's capability tables do.
const Record& Entry() {
  static const Record r{"ENTRY", 16, {
      Field{"id", 0, Kind::U32},
      Field{"data", 8, Kind::Pointer, nullptr, sim::layout::Fixed(2)},
  }};
  return r;
}

const Record& Table() {
  static const Record r{"TABLE", 16, {
      Field{"count", 0, Kind::U16},
      Field{"entries", 8, Kind::Pointer, &Entry(), sim::layout::CountOf(0, 2, 16)},
  }};
  return r;
}

TEST(RecordLayoutTest, AnArrayOfRecordsPointedToIsCapturedAndDecodedEntryByEntry) {
  const uint8_t first[2] = {0xA1, 0xA2};
  const uint8_t second[2] = {0xB1, 0xB2};
  struct { uint32_t id; const uint8_t* data; } entries[2] = {{7, first}, {9, second}};
  struct { uint16_t count; const void* entries; } table{2, entries};

  sim::BlobSet blobs;
  ASSERT_TRUE(sim::layout::captureRecord(blobs, "table", &table, Table()));
  EXPECT_EQ(blobs.captured("table.entries").bytes.size(), 32u);
  EXPECT_EQ(blobs.captured("table.entries[1].data").bytes, (std::vector<uint8_t>{0xB1, 0xB2}));
  EXPECT_EQ(sim::trace::DecodeRecord(Table(), blobs, "table"),
            "{\"count\":2,\"entries\":[{\"id\":7,\"data\":\"a1a2\"},{\"id\":9,\"data\":\"b1b2\"}]}");
}

}  // namespace
