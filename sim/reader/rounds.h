// One round of reading on the selected antennas: what an inventory, a tag
// locationing or an EAS scan does in each of its rounds. Called under the
// reader's lock.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "reader/filters.h"
#include "reader/state.h"
#include "reader/population.h"
#include "reader/tag_read.h"

namespace sim {

// The tags the field gives this round (reader/field.h) on each antenna,
// selected by its pre-filters and admitted by the post filter, go into the
// buffer as the reader reports them (reader/tag_reports.h). Returns the
// EPCs read.
std::vector<Bytes> inventoryRound(Reader& reader, const std::shared_ptr<const Population>& tags,
                                  const std::vector<uint16_t>& antennas,
                                  const std::optional<PostFilterRule>& postFilter);

// Puts the records into the buffer, signalling TAG_READ when the reader's
// report settings say so (reader/tag_reports.h), BUFFER_FULL when new ones
// were dropped and BUFFER_FULL_WARNING when the buffer passed 90 %. Returns
// the EPCs buffered.
std::vector<Bytes> bufferReads(Reader& reader, const std::vector<TagRead>& reads);

// One sighting of the tag on the antenna with that RSSI, channel and phase
// drawn by the reader, seen at the stamp. Without RSSI and stamp: its own
// RSSI on that antenna with jitter, seen now. Under the reader's lock.
TagRead makeRead(Reader& reader, const SimTag& tag, uint16_t antenna, int8_t rssi, const SeenStamp& stamp);
TagRead makeRead(Reader& reader, const SimTag& tag, uint16_t antenna);
int8_t jitteredRssi(Reader& reader, int8_t base);
SeenStamp stampNow(const Reader& reader);

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
