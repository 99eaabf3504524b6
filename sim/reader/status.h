// Status codes the simulated reader answers with. 0 is success; the others
// are what a real reader would say for the same mistake.
#pragma once

#include <cstdint>

namespace sim {

constexpr int32_t kSuccess = 0;
constexpr int32_t kInvalidHandle = 1;       // unknown reader handle
constexpr int32_t kInvalidParam = 2;        // a NULL or malformed argument
constexpr int32_t kNoReadTags = 3;          // the tag buffer is empty
constexpr int32_t kOperationInProgress = 4; // an inventory/locate/scan already runs
constexpr int32_t kNoOperationRunning = 5;  // stop without a start
constexpr int32_t kNotFound = 6;            // unknown index, tag or event type
constexpr int32_t kOutOfMemory = 7;
// Tag access: what the tag itself refuses.
constexpr int32_t kMemoryOverrun = 8;      // a range past the end of a memory bank
constexpr int32_t kMemoryLocked = 9;       // a permalocked bank, block or password, or protected memory
constexpr int32_t kPasswordMismatch = 10;  // a wrong or missing access or kill password

}  // namespace sim
