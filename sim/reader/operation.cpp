#include "reader/operation.h"

#include <algorithm>

#include "reader/antenna_selection.h"
#include "reader/event_signals.h"
#include "reader/field_settings.h"
#include "reader/rounds.h"
#include "reader/status.h"
#include "reader/population.h"

namespace sim {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kRoundInterval(kRoundMs);

// The sequence number of the first GPI change after `seen` that matches.
std::optional<uint64_t> matchingGpiChange(const Reader& reader, const GpiCondition& wanted,
                                          uint64_t seen) {
  for (const GpiChange& change : reader.gpiChanges) {
    if (change.seq > seen && change.port == wanted.port && change.state == wanted.state) {
      return change.seq;
    }
  }
  return std::nullopt;
}

std::optional<Clock::time_point> deadlineOf(const StopTrigger& stop, Clock::time_point from) {
  if (stop.kind == StopTrigger::Kind::kDuration) return from + milliseconds(stop.durationMs);
  if (stop.kind == StopTrigger::Kind::kNone || stop.timeoutMs == 0) return std::nullopt;
  return from + milliseconds(stop.timeoutMs);
}

}  // namespace

struct Operation::Run {
  std::optional<Clock::time_point> deadline;
  uint64_t* gpiSeen = nullptr;
  uint32_t rounds = 0;
  std::set<Bytes> uniqueTags;
  bool gpiStop = false;
};

Operation::Operation(ReaderPtr reader, OperationPlan plan)
    : reader_(std::move(reader)),
      plan_(std::move(plan)),
      nextPeriod_(Clock::now()),
      thread_([this, startedAt = nextPeriod_, gpiSeen = reader_->gpiSeq] { run(startedAt, gpiSeen); }) {}

Operation::~Operation() {
  if (thread_.joinable()) thread_.join();
}

void Operation::requestStop() { stopRequested_ = true; }

// Taken by the call, not by the thread, which may start much later under
// load: GPI changes after the call count, and a duration runs from the call.
void Operation::run(Clock::time_point startedAt, uint64_t gpiSeen) {
  Lock lock(reader_->mutex);
  Clock::time_point from = startedAt;
  while (waitForStart(lock, &gpiSeen, &from)) {
    readUntilStopTrigger(lock, &gpiSeen, from);
    if (plan_.triggers.start.kind == StartTrigger::Kind::kImmediate) break;
  }
}

bool Operation::waitForStart(Lock& lock, uint64_t* gpiSeen, Clock::time_point* from) {
  const StartTrigger& start = plan_.triggers.start;
  if (start.kind == StartTrigger::Kind::kPeriodic) {
    reader_->changed.wait_until(lock, nextPeriod_, [this] { return stopRequested_; });
    *from = nextPeriod_;
    nextPeriod_ += std::max(milliseconds(start.periodMs), kRoundInterval);
  } else if (start.kind == StartTrigger::Kind::kGpi) {
    std::optional<uint64_t> match;
    auto woken = [&] {
      match = matchingGpiChange(*reader_, start.gpi, *gpiSeen);
      return stopRequested_ || match.has_value();
    };
    if (start.timeoutMs == 0) {
      reader_->changed.wait(lock, woken);
    } else {
      reader_->changed.wait_for(lock, milliseconds(start.timeoutMs), woken);
    }
    *gpiSeen = match ? *match : reader_->gpiSeq;
    *from = Clock::now();
  }
  return !stopRequested_;
}

void Operation::readUntilStopTrigger(Lock& lock, uint64_t* gpiSeen, Clock::time_point from) {
  Run run;
  run.deadline = deadlineOf(plan_.triggers.stop, from);
  run.gpiSeen = gpiSeen;
  const bool access = plan_.kind == OperationKind::kAccessSequence;
  if (access) resetAccessCounts(reader_->handle);
  reader_->reports.start(plan_.triggers.reports, reader_->field.fieldMs);
  raiseEvent(reader_->handle, access ? kAccessStartEvent : kInventoryStartEvent, {});
  while (!stopRequested_) {
    for (Bytes& epc : round()) run.uniqueTags.insert(std::move(epc));
    ++run.rounds;
    if (stopTriggerReached(run)) break;
    waitForNextRound(lock, run);
  }
  raiseEvent(reader_->handle, access ? kAccessStopEvent : kInventoryStopEvent, {});
  if (reader_->storage.discardTagsOnInventoryStop()) reader_->buffer.clear();
}

bool Operation::stopTriggerReached(const Run& run) const {
  const StopTrigger& stop = plan_.triggers.stop;
  if (run.gpiStop || (run.deadline && Clock::now() >= *run.deadline)) return true;
  if (stop.n == 0) return false;
  if (stop.kind == StopTrigger::Kind::kAttempts) return run.rounds >= stop.n;
  if (stop.kind == StopTrigger::Kind::kTagObservation) return run.uniqueTags.size() >= stop.n;
  return false;
}

void Operation::waitForNextRound(Lock& lock, Run& run) {
  const StopTrigger& stop = plan_.triggers.stop;
  auto stopping = [&] {
    if (stop.kind == StopTrigger::Kind::kGpi) {
      run.gpiStop = matchingGpiChange(*reader_, stop.gpi, *run.gpiSeen).has_value();
    }
    return stopRequested_ || run.gpiStop;
  };
  if (fieldSettings().fast) {  // the next round at once, but let callers in first
    lock.unlock();
    std::this_thread::yield();
    lock.lock();
    stopping();
    return;
  }
  Clock::time_point wake = Clock::now() + kRoundInterval;
  if (run.deadline) wake = std::min(wake, *run.deadline);
  reader_->changed.wait_until(lock, wake, stopping);
}

std::vector<Bytes> Operation::round() {
  const std::shared_ptr<const Population> tags = currentPopulation();
  switch (plan_.kind) {
    case OperationKind::kInventory:
      return inventoryRound(*reader_, tags, antennas(), plan_.postFilter);
    case OperationKind::kLocate:
      return locateRound(*reader_, *tags, antennas(), plan_.locateEpc);
    case OperationKind::kEasScan:
      easRound(*reader_, *tags, antennas());
      return {};
    case OperationKind::kAccessSequence:
      return accessRound(*reader_, antennas(), plan_.postFilter, plan_.accessOperations);
  }
  return {};
}

std::vector<uint16_t> Operation::antennas() const { return orEveryAntenna(plan_.antennas); }

int32_t startOperation(const ReaderPtr& reader, OperationPlan plan) {
  std::lock_guard<std::mutex> lock(reader->mutex);
  if (reader->operation) return kOperationInProgress;
  reader->operation = std::make_unique<Operation>(reader, std::move(plan));
  return kSuccess;
}

int32_t stopOperation(Reader& reader, OperationKind kind) {
  std::unique_ptr<Operation> stopped;
  {
    std::lock_guard<std::mutex> lock(reader.mutex);
    if (!reader.operation || reader.operation->kind() != kind) return kNoOperationRunning;
    stopped = std::move(reader.operation);
    stopped->requestStop();
  }
  reader.changed.notify_all();
  stopped.reset();  // joins the thread
  return kSuccess;
}

void stopAnyOperation(Reader& reader) {
  std::unique_ptr<Operation> stopped;
  {
    std::lock_guard<std::mutex> lock(reader.mutex);
    stopped = std::move(reader.operation);
    if (stopped) stopped->requestStop();
  }
  reader.changed.notify_all();
}

}  // namespace sim
