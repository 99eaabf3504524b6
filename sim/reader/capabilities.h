// What the simulated reader can do, checked against what a call asks of it:
// antenna IDs (1 to kAntennaCount) and indices into the transmit power,
// receive sensitivity, frequency and RF mode tables of its capabilities.
// Each check gives an empty text when the request fits, else the reason,
// which the call reports as kInvalidParam and keeps as the reader's last
// error.
//
// A recording simulator is lenient by default: tests that look at the bytes
// the library sends pass any value through. Without recording the reader
// checks, as a real one does. SimReader.checkCapabilities decides either way
// until the simulator is reset.
#pragma once

#include <cstdint>
#include <string>

#include "record/journal.h"

namespace sim {

enum class CapabilityChecks { kUnlessRecording, kOn, kOff };
void setCapabilityChecks(CapabilityChecks mode);
bool capabilityChecksOn();

std::string antennaProblem(uint16_t antenna);
// A captured antenna list (16-bit IDs, as ANTENNA_INFO points at).
std::string antennaListProblem(const Blob& list);
// The three indices of RFID_SetAntennaConfig: receive sensitivity,
// transmit power, transmit frequency.
std::string antennaIndicesProblem(uint16_t sensitivity, uint16_t power, uint16_t frequency);
// A captured ANTENNA_RF_CONFIG: its power, sensitivity, frequency and RF
// mode indices.
std::string rfConfigProblem(const Blob& config);
std::string rfModeProblem(uint32_t index);

// The antenna selection a call captured under "antennaInfo", if any.
template <class Call>
std::string selectionProblem(const Call& call) {
  return antennaListProblem(call.captured("antennaInfo.antennaList"));
}

}  // namespace sim
