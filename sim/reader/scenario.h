// When tags enter and leave the field, and which antennas see them then:
// the scenario text, one window a line, '#' starting a comment:
//
//   EPC=hex AT=from-to [EVERY=period] [ANT=1,3] [RSSI=-55 or one per antenna]
//
// Times are milliseconds of the field's time, which advances kRoundMs with
// each round of the reader (so a scenario plays alike in fast mode). A
// window holds from `from` up to `to` (open when `to` is left out:
// AT=2000-); with EVERY it comes back every period. ANT and RSSI default to
// the tag's own. A tag named in the scenario is in the field only during its
// windows; every other tag is always there. Lines for EPCs that are not in
// the population are ignored.
//
// The scenario in force: the file named by HALYARD_SIM_SCENARIO, else the
// built-in one when the built-in tags are in use (some of them come and go
// and one moves between antennas), else none. SimReader.loadScenario
// replaces it; a reset returns to it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace sim {

struct ScenarioWindow {
  std::string epcHex;  // upper case
  uint64_t fromMs = 0;
  uint64_t toMs = UINT64_MAX;
  uint64_t everyMs = 0;                 // 0: once
  std::vector<uint16_t> antennas;       // empty: the tag's own
  std::vector<int8_t> rssi;             // empty, one, or one per antenna

  bool holds(uint64_t fieldMs) const;
};

using Scenario = std::vector<ScenarioWindow>;

struct ParsedScenario {
  Scenario windows;
  std::string error;  // "line N: problem", empty on success
};
ParsedScenario parseScenario(const std::string& text);

// The scenario in force (possibly empty), shared with running operations.
std::shared_ptr<const Scenario> currentScenario();
// Empty on success; otherwise the problem, and the scenario stays as it was.
std::string loadScenario(const std::string& text);

// The built-in tags' scenario.
const char* builtInScenarioText();

}  // namespace sim
