// The antennas an operation works on: the list of its ANTENNA_INFO, or
// every antenna of the reader when the record is NULL or its list empty.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/captures.h"

namespace sim {

// The list captured under name + ".antennaList"; empty for a NULL record,
// a NULL list or a length of 0.
std::vector<uint16_t> antennaList(const CapturedBlobs& blobs, const std::string& name);

// antennas, or 1 to kAntennaCount when it is empty.
std::vector<uint16_t> orEveryAntenna(std::vector<uint16_t> antennas);

}  // namespace sim
