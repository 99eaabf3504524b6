#include "reader/scenario.h"

#include <cctype>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "reader/in_force.h"
#include "reader/population.h"
#include "reader/sessions.h"
#include "reader/text_file.h"

namespace sim {
namespace {

const char* const kBuiltInScenario = R"(
# Tags 13 to 24 come and go; tag 5 moves from antenna 1 to antenna 3 and back.
EPC=E200001722010005 AT=0-6000 EVERY=12000 ANT=1 RSSI=-56
EPC=E200001722010005 AT=6000-12000 EVERY=12000 ANT=3 RSSI=-62
EPC=E20000172201000D AT=0-4000 EVERY=9000
EPC=300833B2DDD901400000000E AT=1500-7500 EVERY=10000
EPC=303425B4C00000000000000F AT=3000-9000 EVERY=11000
EPC=300833B2DDD9014000000010 AT=0-2500 EVERY=7000
EPC=AD000000000000000000000000000011 AT=4000-10000 EVERY=13000
EPC=303425B4C000000000000012 AT=2000-5000 EVERY=8000
EPC=300833B2DDD9014000000013 AT=5000-12000 EVERY=14000
EPC=300833B2DDD9014000000014 AT=0-3500 EVERY=6000
EPC=340093A0ADBAC7D4E1EEFB0815222F3C495663707D8A97A4B1BECBD8E5F2FF15 AT=6000-15000 EVERY=18000
EPC=300833B2DDD9014000000016 AT=1000-4000 EVERY=9500
EPC=300833B2DDD9014000000017 AT=2500-8500 EVERY=12500
EPC=303425B4C000000000000018 AT=0-5000 EVERY=10000
)";

struct ScenarioError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

uint64_t number(const std::string& key, const std::string& text) {
  uint64_t value = 0;
  const char* end = text.data() + text.size();
  auto [next, problem] = std::from_chars(text.data(), end, value);
  if (problem != std::errc() || next != end) throw ScenarioError(key + " needs a number of milliseconds");
  return value;
}

long signedNumber(const std::string& key, const std::string& text, long low, long high) {
  long value = 0;
  const char* end = text.data() + text.size();
  auto [next, problem] = std::from_chars(text.data(), end, value);
  if (problem != std::errc() || next != end || value < low || value > high) {
    throw ScenarioError(key + " must be a number from " + std::to_string(low) + " to " + std::to_string(high));
  }
  return value;
}

std::vector<long> numberList(const std::string& key, const std::string& text, long low, long high) {
  std::vector<long> values;
  std::string item;
  std::istringstream items(text);
  while (std::getline(items, item, ',')) values.push_back(signedNumber(key, item, low, high));
  if (values.empty()) throw ScenarioError(key + " needs a value");
  return values;
}

std::string epcHex(const std::string& text) {
  std::string upper;
  for (char c : text) {
    if (!std::isxdigit(static_cast<unsigned char>(c))) throw ScenarioError("bad hex digit in EPC");
    upper.push_back(static_cast<char>(std::toupper(static_cast<unsigned char>(c))));
  }
  if (upper.empty() || upper.size() % 4 != 0) throw ScenarioError("EPC must be whole 16-bit words");
  return upper;
}

void readTimes(const std::string& text, ScenarioWindow* window) {
  const size_t dash = text.find('-');
  if (dash == std::string::npos) throw ScenarioError("AT needs from-to, in milliseconds");
  window->fromMs = number("AT", text.substr(0, dash));
  const std::string to = text.substr(dash + 1);
  window->toMs = to.empty() ? UINT64_MAX : number("AT", to);
  if (window->toMs <= window->fromMs) throw ScenarioError("AT must end after it starts");
}

ScenarioWindow parseLine(const std::string& line) {
  ScenarioWindow window;
  bool hasEpc = false;
  bool hasTimes = false;
  std::istringstream tokens(line);
  std::string token;
  while (tokens >> token) {
    const size_t eq = token.find('=');
    if (eq == std::string::npos) throw ScenarioError("'" + token + "' is not KEY=value");
    const std::string key = token.substr(0, eq);
    const std::string value = token.substr(eq + 1);
    if (key == "EPC") {
      window.epcHex = epcHex(value);
      hasEpc = true;
    } else if (key == "AT") {
      readTimes(value, &window);
      hasTimes = true;
    } else if (key == "EVERY") {
      window.everyMs = number(key, value);
    } else if (key == "ANT") {
      for (long a : numberList(key, value, 1, kAntennaCount)) window.antennas.push_back(static_cast<uint16_t>(a));
    } else if (key == "RSSI") {
      for (long r : numberList(key, value, -128, 127)) window.rssi.push_back(static_cast<int8_t>(r));
    } else {
      throw ScenarioError("unknown key " + key);
    }
  }
  if (!hasEpc) throw ScenarioError("no EPC");
  if (!hasTimes) throw ScenarioError("no AT");
  if (window.everyMs != 0 && window.toMs > window.everyMs) throw ScenarioError("AT must end within EVERY");
  if (window.rssi.size() > 1 && window.rssi.size() != window.antennas.size()) {
    throw ScenarioError("RSSI needs one value or one per antenna of ANT");
  }
  return window;
}

std::shared_ptr<const Scenario> parsedOrNone(const char* origin, const std::string& text) {
  ParsedScenario parsed = parseScenario(text);
  if (parsed.error.empty()) return std::make_shared<const Scenario>(std::move(parsed.windows));
  std::fprintf(stderr, "halyard-sim: %s: %s; no scenario\n", origin, parsed.error.c_str());
  return std::make_shared<const Scenario>();
}

// The start-up scenario, worked out once (a bad file is reported once).
std::shared_ptr<const Scenario> defaultScenario() {
  static const std::shared_ptr<const Scenario> scenario = [] {
    const char* path = std::getenv("HALYARD_SIM_SCENARIO");
    if (path != nullptr && *path != '\0') {
      std::string text;
      if (!readTextFile(path, &text)) {
        std::fprintf(stderr, "halyard-sim: %s: cannot read the scenario file; no scenario\n", path);
        return std::make_shared<const Scenario>();
      }
      return parsedOrNone(path, text);
    }
    const char* tags = std::getenv("HALYARD_SIM_TAGS");
    if (tags != nullptr && *tags != '\0') return std::make_shared<const Scenario>();
    return parsedOrNone("built-in scenario", kBuiltInScenario);
  }();
  return scenario;
}

InForce<std::shared_ptr<const Scenario>>& current() {
  static InForce<std::shared_ptr<const Scenario>> scenario(defaultScenario);
  return scenario;
}

const bool kResetHookAdded = [] {
  addResetHook([] { current().restore(); });
  return true;
}();

}  // namespace

bool ScenarioWindow::holds(uint64_t fieldMs) const {
  const uint64_t t = everyMs == 0 ? fieldMs : fieldMs % everyMs;
  return t >= fromMs && t < toMs;
}

ParsedScenario parseScenario(const std::string& text) {
  ParsedScenario parsed;
  std::istringstream lines(text);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    const size_t hash = line.find('#');
    if (hash != std::string::npos) line.erase(hash);
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    try {
      parsed.windows.push_back(parseLine(line));
    } catch (const ScenarioError& e) {
      return {{}, "line " + std::to_string(number) + ": " + e.what()};
    }
  }
  return parsed;
}

std::shared_ptr<const Scenario> currentScenario() { return current().get(); }

std::string loadScenario(const std::string& text) {
  ParsedScenario parsed = parseScenario(text);
  if (!parsed.error.empty()) return parsed.error;
  current().set(std::make_shared<const Scenario>(std::move(parsed.windows)));
  return {};
}

const char* builtInScenarioText() { return kBuiltInScenario; }

}  // namespace sim
