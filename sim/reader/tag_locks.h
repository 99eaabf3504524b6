// The lock state of a Gen2 tag: one state for each of the five lockable
// fields (the two passwords of the RESERVED bank, the EPC, TID and USER
// banks), the USER blocks permalocked one by one, and the lock privileges
// a Lock operation asks for.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

namespace sim {

enum class LockState : uint8_t {
  kUnlocked,       // readable and writable (a password field: also without the password)
  kLocked,         // a bank: writable with the access password; a password field: readable and writable with it
  kPermalocked,    // a bank: never writable again; a password field: never readable or writable again
  kPermaUnlocked,  // always readable and writable, and never lockable again
};

// The lockable fields, in the order of the lock record's five privileges.
enum LockField : size_t {
  kKillPasswordField = 0,
  kAccessPasswordField = 1,
  kEpcBankField = 2,
  kTidBankField = 3,
  kUserBankField = 4,
  kLockFieldCount = 5,
};

// A Lock operation's privilege for one field.
enum LockPrivilege : uint32_t {
  kPrivilegeNone = 0,         // the field stays as it is
  kPrivilegeReadWrite = 1,    // lock: behind the access password
  kPrivilegePermaLock = 2,    // lock for good
  kPrivilegePermaUnlock = 3,  // unlock for good
  kPrivilegeUnlock = 4,       // unlock
};

struct TagLocks {
  std::array<LockState, kLockFieldCount> fields{};
  std::set<uint16_t> permalockedBlocks;  // USER blocks of one word each
  bool blockPermalockDisabled = false;   // by a Recommission

  LockState of(LockField field) const { return fields[field]; }
};

// "kill password", "access password", "EPC bank", "TID bank", "USER bank".
const char* lockFieldName(LockField field);
// The field the tag file and the docs call it by: "KILL", "ACCESS", "EPC", "TID", "USER".
const char* lockFieldKey(LockField field);
// "unlocked", "locked", "permalocked", "permaunlocked".
const char* lockStateName(LockState state);

}  // namespace sim
