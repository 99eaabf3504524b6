#include "reader/access_sequence.h"

#include <map>

#include "reader/rounds.h"
#include "reader/session_store.h"

namespace sim {
namespace {

struct AccessSequence {
  uint32_t next = 0;
  std::map<uint32_t, AccessOperation> operations;
};

using Sequences = SessionStore<AccessSequence>;
using Counts = SessionStore<AccessCounts>;

}  // namespace

uint32_t nextOperationIndex(int64_t handle) {
  AccessSequence sequence;
  Sequences::instance().get(handle, &sequence);
  return sequence.next;
}

void addOperation(int64_t handle, AccessOperation operation) {
  Sequences::instance().update(handle, [&](AccessSequence& s) { s.operations[s.next++] = std::move(operation); });
}

bool removeOperation(int64_t handle, uint32_t index) {
  bool removed = false;
  Sequences::instance().update(handle, [&](AccessSequence& s) { removed = s.operations.erase(index) > 0; });
  return removed;
}

void clearSequence(int64_t handle) { Sequences::instance().put(handle, AccessSequence()); }

std::vector<SequencedOperation> sequenceOperations(int64_t handle) {
  AccessSequence sequence;
  Sequences::instance().get(handle, &sequence);
  std::vector<SequencedOperation> operations;
  for (auto& [index, operation] : sequence.operations) operations.push_back({index, operation});
  return operations;
}

AccessCounts accessCounts(int64_t handle) {
  AccessCounts counts;
  Counts::instance().get(handle, &counts);
  return counts;
}

void resetAccessCounts(int64_t handle) { Counts::instance().put(handle, AccessCounts()); }

std::vector<Bytes> accessRound(Reader& reader, const std::vector<uint16_t>& antennas,
                               const std::optional<PostFilterRule>& filter,
                               const std::vector<SequencedOperation>& operations) {
  const std::vector<PreFilterRule> rules = reader.preFilterRules();
  std::vector<TagRead> reads;
  AccessCounts round;
  changePopulation([&](Population& tags) {
    for (uint16_t antenna : antennas) {
      for (SimTag& tag : tags) {
        if (!tag.inFieldOf(antenna) || !selectedByPreFilters(rules, tag, antenna)) continue;
        const TagRead seen = makeRead(reader, tag, antenna);
        if (filter && !filter->admits(tag, seen.peakRssi)) continue;
        for (const SequencedOperation& s : operations) {
          const TagAnswer answer = applyOperation(tag, s.operation);
          TagRead read = seen;
          read.memoryBankData = answer.data;
          read.access = accessResult(s.operation, answer);
          read.access->sequenceIndex = s.index;
          reads.push_back(std::move(read));
          ++(answer.ok() ? round.succeeded : round.failed);
        }
      }
    }
  });
  Counts::instance().update(reader.handle, [&](AccessCounts& c) {
    c.succeeded += round.succeeded;
    c.failed += round.failed;
  });
  return bufferReads(reader, reads);
}

}  // namespace sim
