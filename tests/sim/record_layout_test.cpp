// Field offsets by name, the way the simulator composes and reads records.
#include <gtest/gtest.h>

#include "record/record_layout.h"
#include "record/record_layouts.h"

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
