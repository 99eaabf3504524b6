// What the simulated reader costs: per read it delivers (a round that reads
// the tags, then rfid_GetReadTags and rfid_DeallocateTags hand them over),
// with recording off, and the time of one round over 5,000 and 50,000 tags.
// Prints each as a median with its spread (the 10th and 90th percentiles).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "api/c_api.h"
#include "reader/field_settings.h"
#include "reader/population.h"
#include "reader/rounds.h"
#include "reader/sessions.h"
#include "reader/state.h"
#include "record/journal.h"

namespace {

using Clock = std::chrono::steady_clock;

std::string tagsOnAntennaOne(size_t count) {
  std::string text;
  char line[64];
  for (size_t n = 0; n < count; ++n) {
    std::snprintf(line, sizeof line, "EPC=30%022zX ANT=1 RSSI=-50\n", n);
    text += line;
  }
  return text;
}

void report(const char* what, const char* unit, std::vector<double> samples) {
  std::sort(samples.begin(), samples.end());
  auto at = [&](double q) { return samples[static_cast<size_t>(q * static_cast<double>(samples.size() - 1))]; };
  std::printf("%-44s median %9.3f %s  (p10 %9.3f, p90 %9.3f, %zu runs)\n", what, at(0.5), unit, at(0.1), at(0.9),
              samples.size());
}

double microsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

// A reader whose buffer holds every tag of the population, no rate limit.
sim::ReaderPtr openReader(size_t tags) {
  sim::resetSimulator();
  sim::record(false);
  sim::setReadRate(0);
  if (!sim::loadPopulation(tagsOnAntennaOne(tags)).empty()) std::abort();
  sim::ReaderPtr reader = sim::findReader(sim::openSession());
  sim::store<uint32_t>(reader->storage.raw.data(), 0, static_cast<uint32_t>(tags));
  return reader;
}

std::vector<double> roundTimes(size_t tags, int runs) {
  sim::ReaderPtr reader = openReader(tags);
  const auto population = sim::currentPopulation();
  std::vector<double> micros;
  for (int i = 0; i < runs; ++i) {
    std::lock_guard<std::mutex> lock(reader->mutex);
    const Clock::time_point start = Clock::now();
    sim::inventoryRound(*reader, population, {1}, std::nullopt);
    micros.push_back(microsSince(start));
    reader->buffer.clear();
  }
  return micros;
}

std::vector<double> costPerDeliveredRead(size_t tags, int runs) {
  sim::ReaderPtr reader = openReader(tags);
  const auto population = sim::currentPopulation();
  std::vector<void*> records(tags, nullptr);
  std::vector<double> micros;
  for (int i = 0; i < runs; ++i) {
    const Clock::time_point start = Clock::now();
    {
      std::lock_guard<std::mutex> lock(reader->mutex);
      sim::inventoryRound(*reader, population, {1}, std::nullopt);
    }
    uint32_t delivered = 0;
    rfid_GetReadTags(reader->handle, static_cast<uint32_t>(tags), records.data(), &delivered);
    rfid_DeallocateTags(reader->handle, records.data(), delivered);
    if (delivered == 0) std::abort();
    micros.push_back(microsSince(start) / delivered);
  }
  return micros;
}

}  // namespace

int main() {
  report("simulator cost per delivered read (4,000 tags)", "us", costPerDeliveredRead(4000, 200));
  report("round over 5,000 tags", "ms", [] {
    std::vector<double> ms = roundTimes(5000, 60);
    for (double& m : ms) m /= 1000;
    return ms;
  }());
  report("round over 50,000 tags", "ms", [] {
    std::vector<double> ms = roundTimes(50000, 30);
    for (double& m : ms) m /= 1000;
    return ms;
  }());
  sim::resetSimulator();
  return 0;
}
