// A running reader operation (inventory, tag locationing, EAS scan or access
// sequence): one
// background thread per operation that waits for the start trigger, reads
// in rounds of about 25 ms until the stop trigger, and repeats for periodic
// and GPI start triggers. The operation stays active, even after its stop
// trigger ended the reading, until the matching stop call, a reset or the
// end of the session.
#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <set>
#include <thread>
#include <vector>

#include "reader/access_sequence.h"
#include "reader/filters.h"
#include "reader/state.h"
#include "reader/triggers.h"

namespace sim {

enum class OperationKind { kInventory, kLocate, kEasScan, kAccessSequence };

struct OperationPlan {
  OperationKind kind = OperationKind::kInventory;
  std::vector<uint16_t> antennas;  // empty: every antenna
  std::optional<PostFilterRule> postFilter;  // the access filter of an access sequence
  Triggers triggers;
  Bytes locateEpc;
  std::vector<SequencedOperation> accessOperations;
};

class Operation {
 public:
  Operation(ReaderPtr reader, OperationPlan plan);
  Operation(const Operation&) = delete;
  Operation& operator=(const Operation&) = delete;
  ~Operation();  // joins the thread; request the stop first

  OperationKind kind() const { return plan_.kind; }
  void requestStop();  // under the reader's lock

 private:
  using Lock = std::unique_lock<std::mutex>;
  struct Run;

  void run();
  bool waitForStart(Lock& lock, uint64_t* gpiSeen);
  void readUntilStopTrigger(Lock& lock, uint64_t* gpiSeen);
  bool stopTriggerReached(const Run& run) const;
  void waitForNextRound(Lock& lock, Run& run);
  std::vector<Bytes> round();
  std::vector<uint16_t> antennas() const;

  ReaderPtr reader_;
  OperationPlan plan_;
  bool stopRequested_ = false;  // guarded by the reader's lock
  std::chrono::steady_clock::time_point nextPeriod_;
  std::thread thread_;
};

// kOperationInProgress when the reader already runs an operation.
int32_t startOperation(const ReaderPtr& reader, OperationPlan plan);
// kNoOperationRunning when no operation of that kind is active.
int32_t stopOperation(Reader& reader, OperationKind kind);
void stopAnyOperation(Reader& reader);

}  // namespace sim
