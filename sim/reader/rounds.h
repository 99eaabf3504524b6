// One round of reading on the selected antennas: what an inventory, a tag
// locationing or an EAS scan does in each of its rounds. Called under the
// reader's lock.
#pragma once

#include <optional>
#include <vector>

#include "reader/filters.h"
#include "reader/state.h"
#include "reader/population.h"

namespace sim {

// Every tag in the field of each antenna that the antenna's pre-filters
// select and the post filter admits goes into the buffer. Signals TAG_READ
// after a round with reads, BUFFER_FULL when new tags were dropped and
// BUFFER_FULL_WARNING when the buffer passed 90 %. Returns the EPCs read.
std::vector<Bytes> inventoryRound(Reader& reader, const Population& tags,
                                  const std::vector<uint16_t>& antennas,
                                  const std::optional<PostFilterRule>& postFilter);

// Reads the tag with that EPC on the selected antenna that hears it best,
// with a location record, and signals TAG_READ. Returns the EPCs read.
std::vector<Bytes> locateRound(Reader& reader, const Population& tags,
                               const std::vector<uint16_t>& antennas, const Bytes& epc);

// Raises NXP_EAS_ALARM for each EAS tag in the field of each antenna.
void easRound(Reader& reader, const Population& tags, const std::vector<uint16_t>& antennas);

// 0 right at the antenna (-30 dBm or stronger) to 100 (-80 dBm or weaker).
int16_t relativeDistanceFor(int8_t rssi);
// The alarm code an EAS tag answers with: its last eight EPC bytes, big-endian.
int64_t easAlarmCode(const SimTag& tag);

}  // namespace sim
