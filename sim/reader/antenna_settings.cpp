#include "reader/antenna_settings.h"

#include <algorithm>
#include <array>
#include <map>

#include "reader/memory_fields.h"
#include "reader/session_store.h"
#include "record/config_layouts.h"
#include "record/named_fields.h"

namespace sim {
namespace {

size_t rfConfigBytes() { return layout::AntennaRfConfig().size; }
size_t cableLossBytes() { return layout::CableLossCompensation().size; }
size_t cableLossAntennaAt() { return offsetOf<uint16_t>(layout::CableLossCompensation(), "antennaID"); }

struct AntennaPort {
  std::array<uint16_t, 3> indices{};
  std::vector<uint8_t> rfConfig = std::vector<uint8_t>(rfConfigBytes(), 0);
  std::vector<uint8_t> cableLoss;  // empty until set
  bool readPointEnabled = true;
};

struct AntennaSettings {
  std::map<uint16_t, AntennaPort> ports;
  uint32_t mode = 0;
};

using Store = SessionStore<AntennaSettings>;

template <class F>
void updatePort(int64_t handle, uint16_t antenna, F f) {
  Store::instance().update(handle, [&](AntennaSettings& settings) { f(settings.ports[antenna]); });
}

AntennaPort portOf(int64_t handle, uint16_t antenna) {
  AntennaSettings settings;
  Store::instance().get(handle, &settings);
  auto it = settings.ports.find(antenna);
  return it == settings.ports.end() ? AntennaPort{} : it->second;
}

}  // namespace

void keepAntennaIndices(int64_t handle, uint16_t antenna, uint16_t first, uint16_t second, uint16_t third) {
  updatePort(handle, antenna, [&](AntennaPort& port) { port.indices = {first, second, third}; });
}

std::vector<uint8_t> antennaIndicesOf(int64_t handle, uint16_t antenna) {
  const AntennaPort port = portOf(handle, antenna);
  std::vector<uint8_t> bytes(6);
  for (size_t i = 0; i < port.indices.size(); ++i) store<uint16_t>(bytes.data(), 2 * i, port.indices[i]);
  return bytes;
}

void keepAntennaRfConfig(int64_t handle, uint16_t antenna, const std::vector<uint8_t>& config) {
  std::vector<uint8_t> kept(rfConfigBytes(), 0);
  std::copy_n(config.begin(), std::min(config.size(), kept.size()), kept.begin());
  updatePort(handle, antenna, [&](AntennaPort& port) { port.rfConfig = kept; });
}

std::vector<uint8_t> antennaRfConfigOf(int64_t handle, uint16_t antenna) {
  return portOf(handle, antenna).rfConfig;
}

void keepCableLoss(int64_t handle, const std::vector<uint8_t>& record) {
  if (record.size() < cableLossBytes()) return;
  const uint16_t antenna = load<uint16_t>(record.data(), cableLossAntennaAt());
  updatePort(handle, antenna, [&](AntennaPort& port) {
    port.cableLoss.assign(record.begin(), record.begin() + cableLossBytes());
  });
}

std::vector<uint8_t> cableLossOf(int64_t handle, uint16_t antenna) {
  std::vector<uint8_t> record = portOf(handle, antenna).cableLoss;
  if (record.empty()) {
    record.assign(cableLossBytes(), 0);
    store<uint16_t>(record.data(), cableLossAntennaAt(), antenna);
  }
  return record;
}

void keepReadPointEnabled(int64_t handle, uint16_t antenna, bool enabled) {
  updatePort(handle, antenna, [&](AntennaPort& port) { port.readPointEnabled = enabled; });
}

std::vector<uint8_t> readPointStatusOf(int64_t handle, uint16_t antenna) {
  return {static_cast<uint8_t>(portOf(handle, antenna).readPointEnabled ? 1 : 0)};
}

void keepAntennaMode(int64_t handle, uint32_t mode) {
  Store::instance().update(handle, [&](AntennaSettings& settings) { settings.mode = mode; });
}

std::vector<uint8_t> antennaModeOf(int64_t handle) {
  AntennaSettings settings;
  Store::instance().get(handle, &settings);
  std::vector<uint8_t> bytes(4);
  store<uint32_t>(bytes.data(), 0, settings.mode);
  return bytes;
}

}  // namespace sim
