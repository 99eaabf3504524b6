#include "reader/antenna_selection.h"

#include "reader/population.h"

namespace sim {

std::vector<uint16_t> antennaList(const CapturedBlobs& blobs, const std::string& name) {
  const Blob& list = blobs(name + ".antennaList");
  std::vector<uint16_t> antennas;
  for (size_t at = 0; at + 2 <= list.bytes.size(); at += 2) antennas.push_back(fieldAt<uint16_t>(list, at));
  return antennas;
}

std::vector<uint16_t> orEveryAntenna(std::vector<uint16_t> antennas) {
  if (!antennas.empty()) return antennas;
  for (uint16_t a = 1; a <= kAntennaCount; ++a) antennas.push_back(a);
  return antennas;
}

}  // namespace sim
