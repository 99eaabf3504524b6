// The capabilities a simulated reader reports when no test scripted them:
// a four-port reader with one RF mode table, one hopping table and no duty
// cycles, laid out as the capabilities record of the C API. The
// tables the record points at live as long as the process.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sim {

std::vector<uint8_t> defaultReaderCaps();

// How many entries each table of the default capabilities holds; the
// indices a call may use run from 0 to one less.
struct CapsTableSizes {
  size_t transmitPowers;
  size_t receiveSensitivities;
  size_t hopFrequencies;
  size_t rfModes;
};
CapsTableSizes defaultTableSizes();

}  // namespace sim
