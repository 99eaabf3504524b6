#include "reader/tag_access.h"

#include <cstdio>

#include "record/captured_fields.h"
#include "reader/status.h"

namespace sim {
namespace {

// Parameter records by byte offset and size.
namespace read_params {  // READ_ACCESS_PARAMS and BLOCK_ERASE_ACCESS_PARAMS
constexpr size_t kBank = 0, kOffset = 4, kCount = 6, kPassword = 8;
}
namespace write_params {  // WRITE_ACCESS_PARAMS
constexpr size_t kBank = 0, kOffset = 4, kPassword = 20;
}
namespace lock_params {  // LOCK_ACCESS_PARAMS
constexpr size_t kPrivileges = 0, kPassword = 20;
}
namespace kill_params {  // KILL_ACCESS_PARAMS and RECOMMISSION_ACCESS_PARAMS
constexpr size_t kPassword = 0, kRecommissionCode = 4;
}
namespace permalock_params {  // BLOCK_PERMALOCK_ACCESS_PARAMS
constexpr size_t kBank = 0, kReadLock = 4, kOffset = 6, kCount = 8, kPassword = 12;
}
namespace field_params {  // WRITE_FIELD_ACCESS_PARAMS
constexpr size_t kPassword = 12;
}
namespace chip_params {  // the NXP and QT records: the password first
constexpr size_t kPassword = 0, kFlag = 4, kConfigWord = 4, kQtControl = 8;
}
namespace untraceable_params {  // UNTRACEABLE_PARAMS
constexpr size_t kHideTid = 4, kHideUser = 8, kPassword = 16;
}
// The other Gen2v2 records' access passwords.
constexpr size_t kAuthenticatePassword = 16;
constexpr size_t kReadBufferPassword = 4;
constexpr size_t kCryptoPassword = 24;

constexpr size_t kPasswordBytes = 4;
constexpr size_t kAccessPasswordAt = 4;

TagAnswer refused(const std::string& reason) {
  TagAnswer answer;
  answer.status = kInvalidParam;
  answer.reason = reason;
  return answer;
}

size_t gen2v2PasswordAt(uint32_t op) {
  switch (op) {
    case kOpAuthenticate: return kAuthenticatePassword;
    case kOpReadBuffer: return kReadBufferPassword;
    default: return kCryptoPassword;
  }
}

// Checks the tag and its access password only: a read of no bytes.
TagAnswer touch(const SimTag& tag, uint32_t password) {
  TagAnswer answer = readMemory(tag, kBankEpc, 0, 2, password);
  answer.data.clear();
  return answer;
}

TagAnswer writeField(SimTag& tag, size_t at, const AccessOperation& o) {
  const uint32_t password = fieldAt<uint32_t>(o.params, field_params::kPassword);
  if (o.data.bytes.size() != kPasswordBytes) {
    return refused("a password is 4 bytes, not " + std::to_string(o.data.bytes.size()));
  }
  return writeMemory(tag, kBankReserved, at, o.data.bytes, password);
}

}  // namespace

TagAnswer applyOperation(SimTag& tag, const AccessOperation& o) {
  const Blob& p = o.params;
  const bool takesRecord = o.op <= kOpNxpResetReadProtect || (o.op >= kOpQtWrite && o.op <= kOpCrypto) ||
                           o.op >= kOpWriteAccessPassword;
  if (!takesRecord) return touch(tag, 0);  // the EAS alarm, calibrate and reserved codes
  if (!p.present || p.faulted) return refused("no parameter record");
  switch (o.op) {
    case kOpRead:
      return readMemory(tag, fieldAt<uint32_t>(p, read_params::kBank), fieldAt<uint16_t>(p, read_params::kOffset),
                        fieldAt<uint16_t>(p, read_params::kCount), fieldAt<uint32_t>(p, read_params::kPassword));
    case kOpWrite:
    case kOpBlockWrite:
      return writeMemory(tag, fieldAt<uint32_t>(p, write_params::kBank), fieldAt<uint16_t>(p, write_params::kOffset),
                         o.data.bytes, fieldAt<uint32_t>(p, write_params::kPassword));
    case kOpBlockErase:
      return eraseMemory(tag, fieldAt<uint32_t>(p, read_params::kBank), fieldAt<uint16_t>(p, read_params::kOffset),
                         fieldAt<uint16_t>(p, read_params::kCount), fieldAt<uint32_t>(p, read_params::kPassword));
    case kOpLock: {
      std::array<uint32_t, kLockFieldCount> privileges{};
      for (size_t i = 0; i < kLockFieldCount; ++i) {
        privileges[i] = fieldAt<uint32_t>(p, lock_params::kPrivileges + 4 * i);
      }
      return lockTag(tag, privileges, fieldAt<uint32_t>(p, lock_params::kPassword));
    }
    case kOpKill:
      return killTag(tag, fieldAt<uint32_t>(p, kill_params::kPassword));
    case kOpRecommission:
      return recommission(tag, fieldAt<uint32_t>(p, kill_params::kPassword),
                          fieldAt<uint32_t>(p, kill_params::kRecommissionCode));
    case kOpBlockPermalock:
      return blockPermalock(tag, fieldAt<uint32_t>(p, permalock_params::kBank),
                            fieldAt<uint8_t>(p, permalock_params::kReadLock) != 0,
                            fieldAt<uint16_t>(p, permalock_params::kOffset),
                            fieldAt<uint16_t>(p, permalock_params::kCount), o.data.bytes,
                            fieldAt<uint32_t>(p, permalock_params::kPassword));
    case kOpWriteAccessPassword:
      return writeField(tag, kAccessPasswordAt, o);
    case kOpWriteKillPassword:
      return writeField(tag, 0, o);
    case kOpWriteTagId:
      return writeTagId(tag, o.data.bytes, fieldAt<uint32_t>(p, field_params::kPassword));
    case kOpNxpSetEas:
      return setEas(tag, fieldAt<uint8_t>(p, chip_params::kFlag) != 0, fieldAt<uint32_t>(p, chip_params::kPassword));
    case kOpNxpReadProtect:
      return setReadProtect(tag, true, fieldAt<uint32_t>(p, chip_params::kPassword));
    case kOpNxpResetReadProtect:
      return setReadProtect(tag, false, fieldAt<uint32_t>(p, chip_params::kPassword));
    case kOpNxpChangeConfig:
      return changeConfig(tag, fieldAt<uint16_t>(p, chip_params::kConfigWord),
                          fieldAt<uint32_t>(p, chip_params::kPassword));
    case kOpQtWrite:
      return writeQtControl(tag, fieldAt<uint16_t>(p, chip_params::kQtControl),
                            fieldAt<uint32_t>(p, chip_params::kPassword));
    case kOpQtRead:
      return readQtControl(tag, fieldAt<uint32_t>(p, chip_params::kPassword));
    case kOpUntraceable:
      return makeUntraceable(tag, fieldAt<uint32_t>(p, untraceable_params::kHideTid),
                             fieldAt<uint8_t>(p, untraceable_params::kHideUser) != 0,
                             fieldAt<uint32_t>(p, untraceable_params::kPassword));
    case kOpAuthenticate:
    case kOpReadBuffer:
    case kOpCrypto:
    default:
      return touch(tag, fieldAt<uint32_t>(p, gen2v2PasswordAt(o.op)));
  }
}

AccessResult accessResult(const AccessOperation& o, const TagAnswer& answer) {
  AccessResult result;
  result.opCode = o.op;
  result.opStatus = answer.status;
  switch (o.op) {
    case kOpRead:
    case kOpBlockErase:
      result.memoryBank = fieldAt<uint32_t>(o.params, read_params::kBank);
      result.byteOffset = fieldAt<uint16_t>(o.params, read_params::kOffset);
      break;
    case kOpWrite:
    case kOpBlockWrite:
      result.memoryBank = fieldAt<uint32_t>(o.params, write_params::kBank);
      result.byteOffset = fieldAt<uint16_t>(o.params, write_params::kOffset);
      break;
    case kOpBlockPermalock:
      result.memoryBank = fieldAt<uint32_t>(o.params, permalock_params::kBank);
      result.byteOffset = fieldAt<uint16_t>(o.params, permalock_params::kOffset);
      break;
    case kOpQtRead:
    case kOpNxpChangeConfig:
      result.hasWord = answer.ok();
      result.word = static_cast<int16_t>(answer.word);
      break;
    default:
      break;
  }
  return result;
}

std::optional<uint16_t> targetAntenna(const SimTag& tag, const AccessTarget& target) {
  if (tag.killed) return std::nullopt;
  if (!target.tagId.empty() && tag.epc != target.tagId) return std::nullopt;
  for (uint16_t antenna : target.antennas) {
    if (!tag.inFieldOf(antenna)) continue;
    if (target.filter && !target.filter->admits(tag, tag.rssiByAntenna.at(antenna))) return std::nullopt;
    return antenna;
  }
  return std::nullopt;
}

std::string describeTarget(const AccessTarget& target) {
  std::string text;
  if (target.tagId.empty()) {
    text = "any tag";
  } else {
    text = "EPC ";
    char digits[3];
    for (uint8_t b : target.tagId) {
      std::snprintf(digits, sizeof digits, "%02X", b);
      text += digits;
    }
  }
  if (target.filter) text += " that the access filter admits";
  text += " on antenna";
  if (target.antennas.size() != 1) text += "s";
  for (size_t i = 0; i < target.antennas.size(); ++i) {
    text += (i == 0 ? " " : ", ") + std::to_string(target.antennas[i]);
  }
  return text;
}

}  // namespace sim
