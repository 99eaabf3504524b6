#include "reader/state.h"

#include "reader/field_settings.h"
#include "reader/operation.h"
#include "reader/sessions.h"

namespace sim {
namespace {

constexpr size_t kGpiChangesKept = 64;

struct Readers {
  std::mutex mutex;
  std::map<int64_t, ReaderPtr> byHandle;
};

Readers& readers() {
  static Readers r;
  return r;
}

}  // namespace

Reader::Reader(int64_t h) : handle(h), started(std::chrono::steady_clock::now()) {
  replay(fieldSettings().seed);
}

void Reader::replay(uint64_t seed) {
  random.seed(static_cast<uint32_t>(seed ^ (seed >> 32)));
  field = FieldState();
}

Reader::~Reader() = default;

uint64_t Reader::upTimeMicros() const {
  const auto elapsed = std::chrono::steady_clock::now() - started;
  return static_cast<uint64_t>(std::chrono::duration_cast<std::chrono::microseconds>(elapsed).count());
}

SingulationControl Reader::singulationOf(uint16_t antenna) const {
  auto it = singulation.find(antenna);
  return it == singulation.end() ? SingulationControl::defaults() : it->second;
}

std::vector<PreFilterRule> Reader::preFilterRules() const {
  std::vector<PreFilterRule> rules;
  for (const PreFilterEntry& entry : preFilters) rules.push_back(entry.rule);
  return rules;
}

ReaderPtr findReader(int64_t handle) {
  if (!sessionExists(handle)) return nullptr;
  std::lock_guard<std::mutex> lock(readers().mutex);
  ReaderPtr& reader = readers().byHandle[handle];
  if (!reader) reader = std::make_shared<Reader>(handle);
  return reader;
}

void dropReader(int64_t handle) {
  ReaderPtr reader;
  {
    std::lock_guard<std::mutex> lock(readers().mutex);
    auto it = readers().byHandle.find(handle);
    if (it == readers().byHandle.end()) return;
    reader = it->second;
    readers().byHandle.erase(it);
  }
  stopAnyOperation(*reader);
}

void dropAllReaders() {
  std::map<int64_t, ReaderPtr> dropped;
  {
    std::lock_guard<std::mutex> lock(readers().mutex);
    dropped.swap(readers().byHandle);
  }
  for (auto& entry : dropped) stopAnyOperation(*entry.second);
}

void recordGpiChange(Reader& reader, uint16_t port, bool state) {
  {
    std::lock_guard<std::mutex> lock(reader.mutex);
    reader.gpiChanges.push_back({++reader.gpiSeq, port, state});
    if (reader.gpiChanges.size() > kGpiChangesKept) reader.gpiChanges.pop_front();
  }
  reader.changed.notify_all();
}

}  // namespace sim
