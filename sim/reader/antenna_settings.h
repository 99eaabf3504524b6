// Antenna settings a simulated reader keeps as the application set them, so
// that its getters answer with what was set: per antenna the three indices,
// the RF configuration, the cable loss and whether the read point is
// enabled; reader-wide the antenna mode. Records are kept raw, so a getter
// returns exactly the bytes its setter got. Only successful sets are kept;
// a session's settings go when it closes, everybody's on reset.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sim {

void keepAntennaIndices(int64_t handle, uint16_t antenna, uint16_t first, uint16_t second, uint16_t third);
// The three indices, 2 bytes each; zeros for an antenna never set.
std::vector<uint8_t> antennaIndicesOf(int64_t handle, uint16_t antenna);

void keepAntennaRfConfig(int64_t handle, uint16_t antenna, const std::vector<uint8_t>& config);
// What the reader keeps of an antenna's RF configuration (the record up to
// and including the stop trigger, layout::AntennaRfConfig()); zeros for an
// antenna never set.
std::vector<uint8_t> antennaRfConfigOf(int64_t handle, uint16_t antenna);

// record: one cable-loss record, its antenna identifier at offset 0.
void keepCableLoss(int64_t handle, const std::vector<uint8_t>& record);
// The record kept for the antenna; zero values (under that antenna) if none.
std::vector<uint8_t> cableLossOf(int64_t handle, uint16_t antenna);

void keepReadPointEnabled(int64_t handle, uint16_t antenna, bool enabled);
// One byte: 1 unless the read point was disabled.
std::vector<uint8_t> readPointStatusOf(int64_t handle, uint16_t antenna);

void keepAntennaMode(int64_t handle, uint32_t mode);
// Four bytes: the mode set last, 0 before.
std::vector<uint8_t> antennaModeOf(int64_t handle);

}  // namespace sim
