// The pieces of the living field: the scenario text, when a window holds,
// where a tag is at a given field time, and the read chance by signal.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "reader/field.h"
#include "reader/population.h"
#include "reader/scenario.h"

namespace {

TEST(ScenarioTest, MalformedLinesSayWhereAndWhy) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"EPC=30G0 AT=0-10", "line 1: bad hex digit in EPC"},
      {"EPC=300 AT=0-10", "line 1: EPC must be whole 16-bit words"},
      {"EPC=3000 AT=10", "line 1: AT needs from-to, in milliseconds"},
      {"EPC=3000 AT=10-10", "line 1: AT must end after it starts"},
      {"EPC=3000 AT=x-10", "line 1: AT needs a number of milliseconds"},
      {"EPC=3000 AT=0-700 EVERY=600", "line 1: AT must end within EVERY"},
      {"EPC=3000 AT=0- EVERY=600", "line 1: AT must end within EVERY"},
      {"# fine\n\nEPC=3000 AT=0-10 ANT=5", "line 3: ANT must be a number from 1 to 4"},
      {"EPC=3000 AT=0-10 ANT=1,2 RSSI=-50,-60,-70", "line 1: RSSI needs one value or one per antenna of ANT"},
      {"EPC=3000 AT=0-10 SPEED=3", "line 1: unknown key SPEED"},
      {"EPC=3000 AT=0-10 oops", "line 1: 'oops' is not KEY=value"},
      {"AT=0-10", "line 1: no EPC"},
      {"EPC=3000", "line 1: no AT"},
  };
  for (const auto& [text, error] : cases) EXPECT_EQ(sim::parseScenario(text).error, error) << text;
  EXPECT_EQ(sim::parseScenario(sim::builtInScenarioText()).error, "");
}

TEST(ScenarioTest, WindowsHoldFromTheirStartUpToTheirEndAndRepeat) {
  const sim::Scenario s = sim::parseScenario("EPC=3000 AT=100-200 EVERY=1000\nEPC=3001 AT=50-").windows;
  const std::vector<std::tuple<size_t, uint64_t, bool>> cases = {
      {0, 99, false}, {0, 100, true}, {0, 199, true}, {0, 200, false}, {0, 1150, true}, {0, 1250, false},
      {1, 49, false}, {1, 50, true},  {1, 1u << 30, true},
  };
  for (const auto& [window, ms, holds] : cases) EXPECT_EQ(s[window].holds(ms), holds) << window << " at " << ms;
}

TEST(FieldPlanTest, ATagIsWhereItsWindowsPutItAndOtherTagsStay) {
  auto tags = std::make_shared<const sim::Population>(
      sim::parseTagList("EPC=30000001 ANT=1,2 RSSI=-40,-60\nEPC=30000002 ANT=3 RSSI=-45").tags);
  auto scenario = std::make_shared<const sim::Scenario>(
      sim::parseScenario("EPC=30000001 AT=0-100 ANT=2\nEPC=30000001 AT=100-200 ANT=4 RSSI=-70").windows);
  const sim::FieldPlan plan = sim::makeFieldPlan(tags, scenario);
  EXPECT_EQ(plan.candidates.at(2), std::vector<uint32_t>{0});
  EXPECT_EQ(plan.candidates.at(3), std::vector<uint32_t>{1});
  EXPECT_EQ(plan.candidates.at(4), std::vector<uint32_t>{0});
  EXPECT_EQ(plan.candidates.count(1), 0u) << "its windows name antennas 2 and 4 only";
  const std::vector<std::tuple<uint32_t, uint16_t, uint64_t, std::optional<int8_t>>> cases = {
      {0, 2, 50, -60}, {0, 4, 50, std::nullopt}, {0, 4, 150, -70}, {0, 2, 150, std::nullopt},
      {0, 2, 250, std::nullopt}, {1, 3, 0, -45}, {1, 3, 99999, -45}, {1, 1, 0, std::nullopt},
  };
  for (const auto& [tag, antenna, ms, rssi] : cases) {
    EXPECT_EQ(plan.presence(tag, antenna, ms), rssi) << "tag " << tag << " antenna " << antenna << " at " << ms;
  }
}

TEST(FieldTest, ReadChanceFallsWithTheSignal) {
  EXPECT_EQ(sim::readChance(-30), 1.0);
  EXPECT_EQ(sim::readChance(-72), 1.0);
  EXPECT_LT(sim::readChance(-80), 1.0);
  EXPECT_GT(sim::readChance(-80), sim::readChance(-90));
  EXPECT_EQ(sim::readChance(-95), 0.05);
  EXPECT_EQ(sim::readChance(-128), 0.05);
}

}  // namespace
