// Tag access operations as the simulated reader performs them: the
// operation's parameter record (as captured when the call arrived) decoded
// and applied to the tag memory of each tag it is meant for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "record/journal.h"
#include "reader/tag_memory.h"
#include "reader/filters.h"
#include "reader/tag_read.h"

namespace sim {

// ACCESS_OPERATION_CODE values, and the three single-field writes, which
// have none of their own.
enum AccessOp : uint32_t {
  kOpRead = 0,
  kOpWrite = 1,
  kOpLock = 2,
  kOpKill = 3,
  kOpBlockWrite = 4,
  kOpBlockErase = 5,
  kOpRecommission = 6,
  kOpBlockPermalock = 7,
  kOpNxpSetEas = 8,
  kOpNxpReadProtect = 9,
  kOpNxpResetReadProtect = 10,
  kOpQtWrite = 20,
  kOpQtRead = 21,
  kOpNxpChangeConfig = 22,
  kOpAuthenticate = 23,
  kOpReadBuffer = 24,
  kOpUntraceable = 25,
  kOpCrypto = 26,
  kOpWriteAccessPassword = 0x100,
  kOpWriteKillPassword = 0x101,
  kOpWriteTagId = 0x102,
};

// An operation with copies of its parameter record and of the buffer the
// record points to (write data or permalock mask).
struct AccessOperation {
  uint32_t op = kOpRead;
  Blob params;
  Blob data;
};

// Applies the operation to the tag. A missing parameter record is
// refused with kInvalidParam; operations the simulated tags do not model
// (authenticate, read buffer, crypto, the EAS alarm and calibrate
// commands) only check the tag and its access password.
TagAnswer applyOperation(SimTag& tag, const AccessOperation& operation);

// The result a read reports for the operation's answer.
AccessResult accessResult(const AccessOperation& operation, const TagAnswer& answer);

// Where an access operation looks for its tags: the tag ID (empty: every
// tag), the antennas (empty: every antenna) and the access filter.
struct AccessTarget {
  Bytes tagId;
  std::vector<uint16_t> antennas;
  std::optional<PostFilterRule> filter;
};

// The antenna whose field holds the tag and that the target selects (the
// first of them); nullopt when the tag is not meant or not in reach.
std::optional<uint16_t> targetAntenna(const SimTag& tag, const AccessTarget& target);

// "EPC 3000ABCD on antennas 1, 3" / "any tag on every antenna", for texts.
std::string describeTarget(const AccessTarget& target);

}  // namespace sim
