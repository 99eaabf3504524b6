// A reader's access sequence: the operations added to it (with copies of
// their parameter records), the rounds that perform them on every tag the
// reader singulates while the sequence runs, and the counts of the last run.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "reader/tag_access.h"
#include "reader/filters.h"
#include "reader/state.h"

namespace sim {

struct SequencedOperation {
  uint32_t index = 0;
  AccessOperation operation;
};

// The index the next added operation gets: indices are not reused until
// the sequence is initialised or discarded.
uint32_t nextOperationIndex(int64_t handle);
void addOperation(int64_t handle, AccessOperation operation);
// False when the sequence holds no operation of that index.
bool removeOperation(int64_t handle, uint32_t index);
// Initialising or discarding a sequence empties it and starts its indices over.
void clearSequence(int64_t handle);
// The operations in the order they were added.
std::vector<SequencedOperation> sequenceOperations(int64_t handle);

// Operations performed during the last run: those the tag carried out and
// those it refused. Each run of the sequence starts them at 0.
struct AccessCounts {
  uint32_t succeeded = 0;
  uint32_t failed = 0;
};
AccessCounts accessCounts(int64_t handle);
void resetAccessCounts(int64_t handle);

// One round: on each antenna, every tag in its field that the antenna's
// pre-filters select and the access filter admits carries out each
// operation in turn; each result goes into the tag buffer as a read with
// its op code, op status and memory data, and TAG_READ is signalled (with
// the buffer's warnings, as an inventory round does). Under the reader's
// lock. Returns the EPCs of the tags that took part.
std::vector<Bytes> accessRound(Reader& reader, const std::vector<uint16_t>& antennas,
                               const std::optional<PostFilterRule>& filter,
                               const std::vector<SequencedOperation>& operations);

}  // namespace sim
