// The state the simulator keeps per connected reader, created on the first
// call that needs it and dropped when the session closes or the simulator
// is reset (which also stops the reader's running operation).
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <vector>

#include "reader/field.h"
#include "reader/tag_buffer.h"
#include "reader/tag_reports.h"
#include "reader/filters.h"
#include "reader/storage_singulation.h"

namespace sim {

class Operation;

struct PreFilterEntry {
  uint32_t index = 0;
  PreFilterRule rule;
};

struct GpiChange {
  uint64_t seq = 0;
  uint16_t port = 0;
  bool state = false;
};

struct Reader {
  explicit Reader(int64_t h);
  ~Reader();

  const int64_t handle;
  const std::chrono::steady_clock::time_point started;

  std::mutex mutex;
  std::condition_variable changed;  // a stop request or a GPI change

  // Guarded by mutex.
  TagBuffer buffer;
  TagStorageSettings storage = TagStorageSettings::defaults();
  std::map<uint16_t, SingulationControl> singulation;
  std::vector<PreFilterEntry> preFilters;
  uint32_t nextPreFilterIndex = 1;
  std::deque<GpiChange> gpiChanges;  // the latest few, oldest first
  uint64_t gpiSeq = 0;
  bool upTimeForm = false;
  std::minstd_rand random;  // seeded from the field settings
  FieldState field;
  TagReporter reports;
  std::unique_ptr<Operation> operation;

  uint64_t upTimeMicros() const;
  // Plays the field again from its start with that seed: the same seed
  // gives the same rounds.
  void replay(uint64_t seed);
  SingulationControl singulationOf(uint16_t antenna) const;
  std::vector<PreFilterRule> preFilterRules() const;
};

using ReaderPtr = std::shared_ptr<Reader>;

// The state of a connected reader; nullptr when the handle is not a session.
ReaderPtr findReader(int64_t handle);
// Drop the state (stopping its operation) of one reader or of all.
void dropReader(int64_t handle);
void dropAllReaders();

// Records a GPI change and wakes operations waiting for one.
void recordGpiChange(Reader& reader, uint16_t port, bool state);

}  // namespace sim
