#include "reader/field_settings.h"

#include <cstdlib>
#include <mutex>
#include <random>
#include <string>

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

struct Current {
  std::mutex mutex;
  FieldSettings settings = startUpSettings();
};

Current& current() {
  static Current c;
  return c;
}

const bool kResetHookAdded = [] {
  addResetHook([] {
    std::lock_guard<std::mutex> lock(current().mutex);
    current().settings = startUpSettings();
  });
  return true;
}();

}  // namespace

FieldSettings fieldSettings() {
  std::lock_guard<std::mutex> lock(current().mutex);
  return current().settings;
}

void setReadRate(uint32_t readsPerSecond) {
  std::lock_guard<std::mutex> lock(current().mutex);
  current().settings.readRate = readsPerSecond;
}

void setFastMode(bool fast) {
  std::lock_guard<std::mutex> lock(current().mutex);
  current().settings.fast = fast;
}

void setFieldSeed(uint64_t seed) {
  std::lock_guard<std::mutex> lock(current().mutex);
  current().settings.seed = seed;
}

}  // namespace sim
