// How the simulated field behaves, for every reader: how many tags a reader
// reads per second at most, whether rounds wait for the clock (25 ms apart)
// or follow one another at once (the fast mode of tests), and the seed of
// the readers' random choices (RSSI, which tags answer, channels, phases).
//
// Start-up values come from the environment when the library loads:
// HALYARD_SIM_RATE (reads per second, 0 for no limit), HALYARD_SIM_FAST=1,
// HALYARD_SIM_SEED (a number; without it every run differs). A reset of the
// simulator returns to them. A reader takes the seed when its state is
// created (its first call); SimReader.seed replays a reader from a seed.
#pragma once

#include <cstdint>

namespace sim {

// A few hundred reads per second, as a UHF reader in a busy field manages.
constexpr uint32_t kDefaultReadRate = 800;
// A round covers this much of the field's time, in either mode.
constexpr uint32_t kRoundMs = 25;

struct FieldSettings {
  uint32_t readRate = kDefaultReadRate;  // reads per second; 0: no limit
  bool fast = false;
  uint64_t seed = 0;
};

FieldSettings fieldSettings();
void setReadRate(uint32_t readsPerSecond);
void setFastMode(bool fast);
void setFieldSeed(uint64_t seed);

}  // namespace sim
