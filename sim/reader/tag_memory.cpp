#include "reader/tag_memory.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "reader/status.h"

namespace sim {
namespace {

constexpr size_t kPasswordBytes = 4;
constexpr size_t kKillPasswordAt = 0;
constexpr size_t kAccessPasswordAt = 4;
constexpr uint32_t kLastBank = kBankUser;
constexpr uint32_t kLastRecommission = 6;
constexpr uint32_t kHideAllTid = 2;
constexpr size_t kShownTidBytes = 4;  // an untraceable tag that hides some TID shows its class words

TagAnswer fail(int32_t status, std::string reason) {
  TagAnswer answer;
  answer.status = status;
  answer.reason = std::move(reason);
  return answer;
}

std::string range(size_t from, size_t count) {
  return "bytes " + std::to_string(from) + " to " + std::to_string(from + count - 1);
}

// Tag access passwords of 0 leave the tag secured at once.
bool secured(const SimTag& tag, uint32_t password) {
  return tag.accessPassword == 0 || password == tag.accessPassword;
}

// What ends an access before the tag looks at the request: a killed tag,
// a wrong access password.
std::optional<TagAnswer> refusedAccess(const SimTag& tag, uint32_t password, const std::string& what) {
  if (tag.killed) return fail(kNotFound, "the tag was killed");
  if (password != 0 && password != tag.accessPassword) {
    return fail(kPasswordMismatch, "access password does not match for " + what);
  }
  return std::nullopt;
}

std::optional<TagAnswer> refusedUnlessSecured(const SimTag& tag, uint32_t password, const std::string& what) {
  if (auto refused = refusedAccess(tag, password, what)) return refused;
  if (!secured(tag, password)) return fail(kPasswordMismatch, what + " needs the access password");
  return std::nullopt;
}

std::string theBank(uint32_t bank) { return "the " + bankName(bank) + " bank"; }

LockField bankField(uint32_t bank) {
  return bank == kBankEpc ? kEpcBankField : bank == kBankTid ? kTidBankField : kUserBankField;
}

// The password fields of the RESERVED bank that bytes [from, from + count) touch.
std::vector<LockField> passwordFieldsIn(size_t from, size_t count) {
  std::vector<LockField> fields;
  if (from < kKillPasswordAt + kPasswordBytes) fields.push_back(kKillPasswordField);
  if (from + count > kAccessPasswordAt) fields.push_back(kAccessPasswordField);
  return fields;
}

std::vector<LockField> fieldsOf(uint32_t bank, size_t from, size_t count) {
  if (bank == kBankReserved) return passwordFieldsIn(from, count);
  return {bankField(bank)};
}

// Reading: permalocked password fields never, locked ones with the access
// password; banks always, but for a read-protected tag or one in the QT
// public view.
std::optional<TagAnswer> readRefused(const SimTag& tag, uint32_t bank, size_t from, size_t count,
                                     uint32_t password) {
  if (tag.readProtected) return fail(kMemoryLocked, "the tag is read-protected");
  if ((tag.qtControl & kQtPublicView) != 0 && (bank == kBankTid || bank == kBankUser)) {
    return fail(kMemoryLocked, theBank(bank) + " is hidden in the tag's public memory view");
  }
  const size_t shownTid = tag.hiddenTid == 0 ? SIZE_MAX : tag.hiddenTid == 1 ? kShownTidBytes : 0;
  if ((bank == kBankTid && from + count > shownTid) || (bank == kBankUser && tag.hiddenUser)) {
    return fail(kMemoryLocked, theBank(bank) + " is hidden: the tag is untraceable");
  }
  if (bank != kBankReserved) return std::nullopt;
  for (LockField field : passwordFieldsIn(from, count)) {
    const LockState state = tag.locks.of(field);
    if (state == LockState::kPermalocked) {
      return fail(kMemoryLocked, std::string("the ") + lockFieldName(field) + " is permalocked");
    }
    if (state == LockState::kLocked && !secured(tag, password)) {
      return fail(kPasswordMismatch,
                  std::string("the ") + lockFieldName(field) + " is locked: the access password is needed");
    }
  }
  return std::nullopt;
}

std::optional<TagAnswer> writeRefused(const SimTag& tag, uint32_t bank, size_t from, size_t count,
                                      uint32_t password) {
  for (LockField field : fieldsOf(bank, from, count)) {
    const LockState state = tag.locks.of(field);
    const std::string name = std::string("the ") + lockFieldName(field);
    if (state == LockState::kPermalocked) return fail(kMemoryLocked, name + " is permalocked");
    if (state == LockState::kLocked && !secured(tag, password)) {
      return fail(kPasswordMismatch, name + " is locked: the access password is needed");
    }
  }
  if (bank == kBankUser) {
    for (size_t word = from / 2; word < (from + count + 1) / 2; ++word) {
      if (tag.locks.permalockedBlocks.count(static_cast<uint16_t>(word)) > 0) {
        return fail(kMemoryLocked, "USER block " + std::to_string(word) + " is permalocked");
      }
    }
  }
  return std::nullopt;
}

// Bank number, then the range within the bank's size; count 0 means to the
// end of the bank.
std::optional<TagAnswer> outOfBank(const SimTag& tag, uint32_t bank, size_t from, size_t* count) {
  if (bank > kLastBank) return fail(kInvalidParam, "there is no memory bank " + std::to_string(bank));
  const size_t size = tag.bank(bank).size();
  if (*count == 0 && from <= size) *count = size - from;
  if (from + *count > size || (*count == 0 && from > size)) {
    return fail(kMemoryOverrun, range(from, std::max<size_t>(*count, 1)) + " are past the end of " + theBank(bank) +
                                    " (" + std::to_string(size) + " bytes)");
  }
  return std::nullopt;
}

std::optional<TagAnswer> notWholeWords(size_t from, size_t count) {
  if (from % 2 == 0 && count % 2 == 0 && count > 0) return std::nullopt;
  return fail(kInvalidParam, "memory is written in whole words: byte offset " + std::to_string(from) +
                                 " and length " + std::to_string(count) + " must be even, the length not 0");
}

uint32_t passwordAt(const Bytes& bank, size_t at) {
  return static_cast<uint32_t>(bank[at]) << 24 | static_cast<uint32_t>(bank[at + 1]) << 16 |
         static_cast<uint32_t>(bank[at + 2]) << 8 | bank[at + 3];
}

// Puts a bank's new contents in place; the EPC bank's PC word decides the EPC.
TagAnswer storeBank(SimTag& tag, uint32_t bank, const Bytes& contents) {
  switch (bank) {
    case kBankReserved:
      tag.killPassword = passwordAt(contents, kKillPasswordAt);
      tag.accessPassword = passwordAt(contents, kAccessPasswordAt);
      break;
    case kBankEpc:
      if (!protocolWordsFromEpcBank(tag, contents)) {
        return fail(kMemoryOverrun, "the PC word asks for more EPC words than the EPC bank holds");
      }
      break;
    case kBankTid:
      tag.tid = contents;
      break;
    default:
      tag.user = contents;
      break;
  }
  return {};
}

LockState stateFor(uint32_t privilege, LockState now) {
  switch (privilege) {
    case kPrivilegeReadWrite: return LockState::kLocked;
    case kPrivilegePermaLock: return LockState::kPermalocked;
    case kPrivilegePermaUnlock: return LockState::kPermaUnlocked;
    case kPrivilegeUnlock: return LockState::kUnlocked;
    default: return now;
  }
}

bool permanent(LockState state) {
  return state == LockState::kPermalocked || state == LockState::kPermaUnlocked;
}

std::optional<TagAnswer> refusedKill(const SimTag& tag, uint32_t killPassword, const char* what) {
  if (tag.killed) return fail(kNotFound, "the tag was killed");
  if (tag.killPassword == 0) {
    return fail(kPasswordMismatch, std::string("the tag's kill password is 0: it cannot be ") + what);
  }
  if (killPassword != tag.killPassword) return fail(kPasswordMismatch, "kill password does not match");
  return std::nullopt;
}

bool maskBit(const Bytes& mask, size_t i) {
  return i / 8 < mask.size() && (mask[i / 8] & (0x80 >> (i % 8))) != 0;
}

}  // namespace

std::string bankName(uint32_t bank) {
  switch (bank) {
    case kBankReserved: return "RESERVED";
    case kBankEpc: return "EPC";
    case kBankTid: return "TID";
    case kBankUser: return "USER";
    default: return "bank " + std::to_string(bank);
  }
}

TagAnswer readMemory(const SimTag& tag, uint32_t bank, size_t byteOffset, size_t byteCount, uint32_t password) {
  if (auto refused = refusedAccess(tag, password, theBank(bank))) return *refused;
  if (auto refused = outOfBank(tag, bank, byteOffset, &byteCount)) return *refused;
  if (auto refused = readRefused(tag, bank, byteOffset, byteCount, password)) return *refused;
  const Bytes contents = tag.bank(bank);
  TagAnswer answer;
  answer.data.assign(contents.begin() + static_cast<std::ptrdiff_t>(byteOffset),
                     contents.begin() + static_cast<std::ptrdiff_t>(byteOffset + byteCount));
  return answer;
}

TagAnswer writeMemory(SimTag& tag, uint32_t bank, size_t byteOffset, const Bytes& data, uint32_t password) {
  if (auto refused = refusedAccess(tag, password, theBank(bank))) return *refused;
  if (auto refused = notWholeWords(byteOffset, data.size())) return *refused;
  size_t count = data.size();
  if (auto refused = outOfBank(tag, bank, byteOffset, &count)) return *refused;
  if (auto refused = writeRefused(tag, bank, byteOffset, count, password)) return *refused;
  Bytes contents = tag.bank(bank);
  std::copy(data.begin(), data.end(), contents.begin() + static_cast<std::ptrdiff_t>(byteOffset));
  return storeBank(tag, bank, contents);
}

TagAnswer eraseMemory(SimTag& tag, uint32_t bank, size_t byteOffset, size_t byteCount, uint32_t password) {
  if (auto refused = refusedAccess(tag, password, theBank(bank))) return *refused;
  if (auto refused = outOfBank(tag, bank, byteOffset, &byteCount)) return *refused;
  return writeMemory(tag, bank, byteOffset, Bytes(byteCount, 0), password);
}

TagAnswer lockTag(SimTag& tag, const std::array<uint32_t, kLockFieldCount>& privileges, uint32_t password) {
  if (auto refused = refusedUnlessSecured(tag, password, "the lock")) return *refused;
  TagLocks changed = tag.locks;
  for (size_t i = 0; i < kLockFieldCount; ++i) {
    const auto field = static_cast<LockField>(i);
    const std::string name = std::string("the ") + lockFieldName(field);
    if (privileges[i] > kPrivilegeUnlock) {
      return fail(kInvalidParam, "lock privilege " + std::to_string(privileges[i]) + " for " + name + " is unknown");
    }
    const LockState now = tag.locks.of(field);
    const LockState next = stateFor(privileges[i], now);
    if (permanent(now) && next != now) {
      return fail(kMemoryLocked, name + " is " + lockStateName(now) + " for good");
    }
    changed.fields[i] = next;
  }
  tag.locks = changed;
  return {};
}

TagAnswer killTag(SimTag& tag, uint32_t killPassword) {
  if (auto refused = refusedKill(tag, killPassword, "killed")) return *refused;
  tag.killed = true;
  tag.rssiByAntenna.clear();
  return {};
}

TagAnswer blockPermalock(SimTag& tag, uint32_t bank, bool lock, size_t byteOffset, size_t byteCount,
                         const Bytes& mask, uint32_t password) {
  if (auto refused = refusedUnlessSecured(tag, password, "a block permalock")) return *refused;
  if (bank != kBankUser) return fail(kInvalidParam, "blocks are permalocked in the USER bank only");
  if (auto refused = notWholeWords(byteOffset, byteCount)) return *refused;
  if (auto refused = outOfBank(tag, bank, byteOffset, &byteCount)) return *refused;
  const size_t first = byteOffset / 2;
  const size_t blocks = byteCount / 2;
  TagAnswer answer;
  if (!lock) {
    answer.data.assign((blocks + 15) / 16 * 2, 0);
    for (size_t i = 0; i < blocks; ++i) {
      if (tag.locks.permalockedBlocks.count(static_cast<uint16_t>(first + i)) > 0) {
        answer.data[i / 8] = static_cast<uint8_t>(answer.data[i / 8] | (0x80 >> (i % 8)));
      }
    }
    return answer;
  }
  if (tag.locks.blockPermalockDisabled) return fail(kMemoryLocked, "block permalocking was disabled by a recommission");
  for (size_t i = 0; i < blocks; ++i) {
    if (mask.empty() || maskBit(mask, i)) tag.locks.permalockedBlocks.insert(static_cast<uint16_t>(first + i));
  }
  return answer;
}

TagAnswer recommission(SimTag& tag, uint32_t killPassword, uint32_t opCode) {
  if (opCode > kLastRecommission) {
    return fail(kInvalidParam, "recommission code " + std::to_string(opCode) + " is unknown");
  }
  if (auto refused = refusedKill(tag, killPassword, "recommissioned")) return *refused;
  const bool permalocks = opCode == 0 || opCode == 4;
  const bool userMemory = opCode == 1 || opCode == 2 || opCode == 5 || opCode == 6;
  const bool passwords = opCode >= 3;
  if (permalocks) {
    tag.locks.permalockedBlocks.clear();
    tag.locks.blockPermalockDisabled = true;
  }
  if (userMemory) {
    tag.user.clear();
    tag.locks.permalockedBlocks.clear();
  }
  if (passwords) {
    tag.accessPassword = 0;
    tag.killPassword = 0;
    tag.locks.fields.fill(LockState::kUnlocked);
  }
  return {};
}

TagAnswer writeTagId(SimTag& tag, const Bytes& epc, uint32_t password) {
  if (epc.empty() || epc.size() % 2 != 0 || epc.size() > 62) {
    return fail(kInvalidParam, "a tag ID is 1 to 31 whole words, not " + std::to_string(epc.size()) + " bytes");
  }
  const uint16_t pc = static_cast<uint16_t>((tag.pc & 0x07FF) | pcForEpcLength(epc.size()));
  Bytes words(2 + epc.size());
  words[0] = static_cast<uint8_t>(pc >> 8);
  words[1] = static_cast<uint8_t>(pc);
  std::copy(epc.begin(), epc.end(), words.begin() + 2);
  return writeMemory(tag, kBankEpc, 2, words, password);
}

TagAnswer setEas(SimTag& tag, bool on, uint32_t password) {
  if (auto refused = refusedUnlessSecured(tag, password, "the EAS bit")) return *refused;
  tag.eas = on;
  return {};
}

TagAnswer setReadProtect(SimTag& tag, bool on, uint32_t password) {
  if (auto refused = refusedUnlessSecured(tag, password, "read protection")) return *refused;
  tag.readProtected = on;
  return {};
}

TagAnswer changeConfig(SimTag& tag, uint16_t toggled, uint32_t password) {
  if (auto refused = refusedUnlessSecured(tag, password, "the configuration word")) return *refused;
  tag.configWord = static_cast<uint16_t>(tag.configWord ^ toggled);
  TagAnswer answer;
  answer.word = tag.configWord;
  return answer;
}

TagAnswer writeQtControl(SimTag& tag, uint16_t control, uint32_t password) {
  if (auto refused = refusedUnlessSecured(tag, password, "the QT control word")) return *refused;
  tag.qtControl = control;
  return {};
}

TagAnswer makeUntraceable(SimTag& tag, uint32_t hideTid, bool hideUser, uint32_t password) {
  if (auto refused = refusedUnlessSecured(tag, password, "untraceable")) return *refused;
  if (hideTid > kHideAllTid) return fail(kInvalidParam, "TID hide state " + std::to_string(hideTid) + " is unknown");
  tag.hiddenTid = hideTid;
  tag.hiddenUser = hideUser;
  return {};
}

TagAnswer readQtControl(const SimTag& tag, uint32_t password) {
  if (auto refused = refusedUnlessSecured(tag, password, "the QT control word")) return *refused;
  TagAnswer answer;
  answer.word = tag.qtControl;
  return answer;
}

}  // namespace sim
