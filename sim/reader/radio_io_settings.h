// Radio and GPIO settings that a simulated reader keeps as the application
// set them, so that its getters answer with them when a test scripted no
// output: RF mode per antenna, duty cycle, radio power, idle time-out, power
// negotiation, USB operation mode and the state of each output port. Kept
// per reader handle, forgotten when the session closes and on reset.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <vector>

#include "record/captured_fields.h"
#include "record/config_layouts.h"
#include "reader/sessions.h"
#include "reader/session_store.h"
#include "reader/status.h"

namespace sim {

struct RadioIoSettings {
  std::map<uint16_t, std::array<uint32_t, 2>> rfMode;  // by antenna
  uint16_t dutyCycleIndex = 0;
  uint8_t radioOn = 1;
  uint32_t idleTimeoutMilliseconds = 0;
  uint8_t powerNegotiation = 0;
  // As the setter got them.
  std::vector<uint8_t> usbSettings = std::vector<uint8_t>(layout::UsbOperationModeSettings().size, 0);
  std::map<int32_t, uint8_t> gpoState;                            // by port

  std::vector<uint8_t> rfModeAnswer(uint16_t antennaID) const;
  uint8_t gpoAnswer(int32_t port) const;
};

// The little-endian bytes of a scalar answer.
template <class T>
std::vector<uint8_t> answerBytes(T value) {
  std::vector<uint8_t> bytes;
  putField(&bytes, 0, value);
  return bytes;
}

inline std::vector<uint8_t> RadioIoSettings::rfModeAnswer(uint16_t antennaID) const {
  std::vector<uint8_t> bytes(8, 0);
  auto it = rfMode.find(antennaID);
  if (it == rfMode.end()) return bytes;
  putField(&bytes, 0, it->second[0]);
  putField(&bytes, 4, it->second[1]);
  return bytes;
}

inline uint8_t RadioIoSettings::gpoAnswer(int32_t port) const {
  auto it = gpoState.find(port);
  return it == gpoState.end() ? 0 : it->second;
}

// What the reader of handle keeps; the defaults when nothing was set.
inline RadioIoSettings keptRadioIo(int64_t handle) {
  RadioIoSettings kept;
  SessionStore<RadioIoSettings>::instance().get(handle, &kept);
  return kept;
}

// Applies change to what the reader of handle keeps, but only after a
// successful call on an open session; returns status.
template <class Change>
int32_t keepRadioIo(int64_t handle, int32_t status, Change change) {
  if (status == kSuccess && sessionExists(handle)) SessionStore<RadioIoSettings>::instance().update(handle, change);
  return status;
}

}  // namespace sim
