#include "reader/capabilities.h"

#include <atomic>

#include "reader/default_caps.h"
#include "reader/sessions.h"
#include "reader/population.h"
#include "record/captured_fields.h"
#include "record/config_layouts.h"
#include "record/named_fields.h"

namespace sim {
namespace {

std::atomic<CapabilityChecks> checks{CapabilityChecks::kUnlessRecording};

const bool kResetHookAdded = [] {
  addResetHook([] { checks = CapabilityChecks::kUnlessRecording; });
  return true;
}();

std::string indexProblem(const char* table, uint32_t index, size_t entries) {
  if (index < entries || !capabilityChecksOn()) return {};
  return std::string(table) + " index " + std::to_string(index) + " is outside the reader's table of " +
         std::to_string(entries) + " entries";
}

std::string firstOf(std::initializer_list<std::string> problems) {
  for (const std::string& p : problems) {
    if (!p.empty()) return p;
  }
  return {};
}

}  // namespace

void setCapabilityChecks(CapabilityChecks mode) { checks = mode; }

bool capabilityChecksOn() {
  const CapabilityChecks mode = checks;
  return mode == CapabilityChecks::kOn || (mode == CapabilityChecks::kUnlessRecording && !recording());
}

std::string antennaProblem(uint16_t antenna) {
  if ((antenna >= 1 && antenna <= kAntennaCount) || !capabilityChecksOn()) return {};
  return "antenna " + std::to_string(antenna) + " does not exist: the reader has antennas 1 to " +
         std::to_string(kAntennaCount);
}

std::string antennaListProblem(const Blob& list) {
  for (size_t at = 0; at + 2 <= list.bytes.size(); at += 2) {
    std::string problem = antennaProblem(fieldAt<uint16_t>(list, at));
    if (!problem.empty()) return problem;
  }
  return {};
}

std::string antennaIndicesProblem(uint16_t sensitivity, uint16_t power, uint16_t frequency) {
  const CapsTableSizes sizes = defaultTableSizes();
  return firstOf({indexProblem("receive sensitivity", sensitivity, sizes.receiveSensitivities),
                  indexProblem("transmit power", power, sizes.transmitPowers),
                  indexProblem("transmit frequency", frequency, sizes.hopFrequencies)});
}

std::string rfConfigProblem(const Blob& config) {
  const layout::Record& r = layout::AntennaRfConfig();
  if (config.bytes.size() < offsetOf<uint32_t>(r, "rfModeTableIndex") + sizeof(uint32_t)) return {};
  const CapsTableSizes sizes = defaultTableSizes();
  return firstOf({indexProblem("transmit power", namedField<uint16_t>(config, r, "transmitPowerIndex"),
                               sizes.transmitPowers),
                  indexProblem("receive sensitivity", namedField<uint16_t>(config, r, "receiveSensitivityIndex"),
                               sizes.receiveSensitivities),
                  indexProblem("transmit frequency", namedField<uint16_t>(config, r, "transmitFrequencyIndex"),
                               sizes.hopFrequencies),
                  rfModeProblem(namedField<uint32_t>(config, r, "rfModeTableIndex"))});
}

std::string rfModeProblem(uint32_t index) { return indexProblem("RF mode", index, defaultTableSizes().rfModes); }

}  // namespace sim
