#include "reader/field_settings.h"

#include <cstdlib>
#include <random>
#include <string>

#include "reader/in_force.h"
#include "reader/sessions.h"

namespace sim {
namespace {

// A number from the environment; fallback when unset or not a number.
uint64_t fromEnvironment(const char* name, uint64_t fallback) {
  const char* text = std::getenv(name);
  if (text == nullptr || *text == '\0') return fallback;
  char* end = nullptr;
  const unsigned long long value = std::strtoull(text, &end, 10);
  return *end == '\0' ? value : fallback;
}

FieldSettings startUpSettings() {
  static const FieldSettings settings = [] {
    FieldSettings s;
    s.readRate = static_cast<uint32_t>(fromEnvironment("HALYARD_SIM_RATE", kDefaultReadRate));
    s.fast = fromEnvironment("HALYARD_SIM_FAST", 0) != 0;
    s.seed = fromEnvironment("HALYARD_SIM_SEED", std::random_device{}());
    return s;
  }();
  return settings;
}

InForce<FieldSettings>& current() {
  static InForce<FieldSettings> settings(startUpSettings);
  return settings;
}

const bool kResetHookAdded = [] {
  addResetHook([] { current().restore(); });
  return true;
}();

}  // namespace

FieldSettings fieldSettings() { return current().get(); }

void setReadRate(uint32_t readsPerSecond) {
  current().change([&](FieldSettings& s) { s.readRate = readsPerSecond; });
}

void setFastMode(bool fast) {
  current().change([&](FieldSettings& s) { s.fast = fast; });
}

void setFieldSeed(uint64_t seed) {
  current().change([&](FieldSettings& s) { s.seed = seed; });
}

}  // namespace sim
