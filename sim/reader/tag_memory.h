// EPC Gen2 memory operations on one simulated tag, as the tag answers them:
// word-addressed banks (the records give byte offsets and counts), lock
// states checked against the access password, permalocked USER blocks,
// kill and recommission checked against the kill password.
//
// Passwords: an access password of 0 in the request means "none given". A
// tag whose access password is 0 is always in the secured state; otherwise
// a given password must match (a wrong one fails every operation, as the
// tag leaves the access sequence), and only the matching one opens what is
// locked. A killed tag answers nothing.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "reader/population.h"

namespace sim {

// What the tag answered: kSuccess or the status, why (for the last error),
// and the data of a read (or the permalock bits, or a chip's reply word).
struct TagAnswer {
  int32_t status = 0;
  std::string reason;
  Bytes data;
  uint16_t word = 0;  // a QT control word or a configuration word read back

  bool ok() const { return status == 0; }
};

// byteCount 0 reads to the end of the bank.
TagAnswer readMemory(const SimTag& tag, uint32_t bank, size_t byteOffset, size_t byteCount, uint32_t password);
// Whole words only: an odd offset or length is refused.
TagAnswer writeMemory(SimTag& tag, uint32_t bank, size_t byteOffset, const Bytes& data, uint32_t password);
TagAnswer eraseMemory(SimTag& tag, uint32_t bank, size_t byteOffset, size_t byteCount, uint32_t password);
// privileges: one LockPrivilege per LockField, in that order.
TagAnswer lockTag(SimTag& tag, const std::array<uint32_t, kLockFieldCount>& privileges, uint32_t password);
TagAnswer killTag(SimTag& tag, uint32_t killPassword);
// lock false: reads the permalock bits of the blocks of the range (one bit
// per word, the first block in the top bit); true: permalocks the blocks of
// the range whose mask bit is set (every block of it without a mask).
TagAnswer blockPermalock(SimTag& tag, uint32_t bank, bool lock, size_t byteOffset, size_t byteCount,
                         const Bytes& mask, uint32_t password);
// opCode: the RECOMMISSION_OPERATION_CODE ordinal.
TagAnswer recommission(SimTag& tag, uint32_t killPassword, uint32_t opCode);
// The tag ID becomes epc: written from word 2 of the EPC bank, with the
// PC word's length bits following it.
TagAnswer writeTagId(SimTag& tag, const Bytes& epc, uint32_t password);

// The chip commands.
TagAnswer setEas(SimTag& tag, bool on, uint32_t password);
TagAnswer setReadProtect(SimTag& tag, bool on, uint32_t password);
TagAnswer changeConfig(SimTag& tag, uint16_t toggled, uint32_t password);
TagAnswer writeQtControl(SimTag& tag, uint16_t control, uint32_t password);
TagAnswer readQtControl(const SimTag& tag, uint32_t password);
// Gen2v2 untraceable: hideTid 0 shows TID, 1 hides all but its first two
// words, 2 hides it all; hideUser hides USER. Hidden memory reads as locked.
TagAnswer makeUntraceable(SimTag& tag, uint32_t hideTid, bool hideUser, uint32_t password);

// The QT control bit that shows the public memory view: TID and USER
// memory are then out of reach.
constexpr uint16_t kQtPublicView = 0x8000;

// "RESERVED", "EPC", "TID", "USER", or "bank N".
std::string bankName(uint32_t bank);

}  // namespace sim
