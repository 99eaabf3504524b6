#include "reader/tag_locks.h"

namespace sim {

const char* lockFieldName(LockField field) {
  static const char* const kNames[kLockFieldCount] = {"kill password", "access password", "EPC bank", "TID bank",
                                                      "USER bank"};
  return kNames[field];
}

const char* lockFieldKey(LockField field) {
  static const char* const kKeys[kLockFieldCount] = {"KILL", "ACCESS", "EPC", "TID", "USER"};
  return kKeys[field];
}

const char* lockStateName(LockState state) {
  switch (state) {
    case LockState::kLocked: return "locked";
    case LockState::kPermalocked: return "permalocked";
    case LockState::kPermaUnlocked: return "permaunlocked";
    default: return "unlocked";
  }
}

}  // namespace sim
