// The tag memory model of the simulated reader: lock states against the
// access password, lock changes, permalocked blocks, kill and recommission,
// the EPC bank's PC and CRC after writes, and the tag file's lock keys.
#include <gtest/gtest.h>

#include <string>

#include "reader/tag_memory.h"
#include "reader/status.h"
#include "reader/population.h"

namespace {

using sim::Bytes;
using sim::LockState;

constexpr uint32_t kPassword = 0xA5A5A5A5;
constexpr uint32_t kWrong = 0x12345678;

sim::SimTag tagWith(LockState state, sim::LockField field) {
  sim::SimTag tag;
  tag.epc = {0x30, 0x00, 0x12, 0x34};
  tag.user = {1, 2, 3, 4};
  tag.accessPassword = kPassword;
  tag.killPassword = 0x0BADF00D;
  tag.rssiByAntenna = {{1, -50}};
  tag.locks.fields[field] = state;
  sim::completeProtocolWords(tag);
  return tag;
}

// Reading and writing a field in each lock state, with no password, the
// tag's own and a wrong one.
TEST(TagMemoryTest, LockStatesAgainstTheAccessPassword) {
  using L = LockState;
  enum Op { kReadUser, kWriteUser, kReadAccess, kWriteAccess };
  struct Row {
    L state;
    Op op;
    int32_t none, right, wrong;
  };
  const Row rows[] = {
      // banks read in every state; writes follow the lock
      {L::kUnlocked, kReadUser, 0, 0, sim::kPasswordMismatch},
      {L::kLocked, kReadUser, 0, 0, sim::kPasswordMismatch},
      {L::kPermalocked, kReadUser, 0, 0, sim::kPasswordMismatch},
      {L::kUnlocked, kWriteUser, 0, 0, sim::kPasswordMismatch},
      {L::kLocked, kWriteUser, sim::kPasswordMismatch, 0, sim::kPasswordMismatch},
      {L::kPermalocked, kWriteUser, sim::kMemoryLocked, sim::kMemoryLocked, sim::kPasswordMismatch},
      {L::kPermaUnlocked, kWriteUser, 0, 0, sim::kPasswordMismatch},
      // a password field: reads follow the lock too
      {L::kUnlocked, kReadAccess, 0, 0, sim::kPasswordMismatch},
      {L::kLocked, kReadAccess, sim::kPasswordMismatch, 0, sim::kPasswordMismatch},
      {L::kPermalocked, kReadAccess, sim::kMemoryLocked, sim::kMemoryLocked, sim::kPasswordMismatch},
      {L::kPermaUnlocked, kReadAccess, 0, 0, sim::kPasswordMismatch},
      {L::kLocked, kWriteAccess, sim::kPasswordMismatch, 0, sim::kPasswordMismatch},
      {L::kPermalocked, kWriteAccess, sim::kMemoryLocked, sim::kMemoryLocked, sim::kPasswordMismatch},
  };
  for (const Row& row : rows) {
    const bool user = row.op == kReadUser || row.op == kWriteUser;
    const int32_t expected[] = {row.none, row.right, row.wrong};
    const uint32_t passwords[] = {0, kPassword, kWrong};
    for (int i = 0; i < 3; ++i) {
      sim::SimTag tag = tagWith(row.state, user ? sim::kUserBankField : sim::kAccessPasswordField);
      const uint32_t bank = user ? sim::kBankUser : sim::kBankReserved;
      const size_t at = user ? 0 : 4;
      const bool read = row.op == kReadUser || row.op == kReadAccess;
      const sim::TagAnswer answer = read ? sim::readMemory(tag, bank, at, 4, passwords[i])
                                         : sim::writeMemory(tag, bank, at, {9, 9, 9, 9}, passwords[i]);
      EXPECT_EQ(answer.status, expected[i])
          << "row " << (&row - rows) << ", password " << i << ": " << answer.reason;
      if (!read) {
        EXPECT_EQ(tag.bank(bank)[at] == 9, answer.ok()) << "a write takes exactly when it succeeds";
      }
    }
  }
  sim::SimTag open = tagWith(LockState::kLocked, sim::kUserBankField);
  open.accessPassword = 0;
  EXPECT_TRUE(sim::writeMemory(open, sim::kBankUser, 0, {9, 9}, 0).ok()) << "no access password: always secured";
}

TEST(TagMemoryTest, LockChangesAndTheirLimits) {
  using L = LockState;
  struct Row {
    L from;
    uint32_t privilege;
    uint32_t password;
    int32_t status;
    L to;
  };
  const Row rows[] = {
      {L::kUnlocked, sim::kPrivilegeReadWrite, kPassword, 0, L::kLocked},
      {L::kUnlocked, sim::kPrivilegeReadWrite, 0, sim::kPasswordMismatch, L::kUnlocked},
      {L::kLocked, sim::kPrivilegeUnlock, kPassword, 0, L::kUnlocked},
      {L::kLocked, sim::kPrivilegePermaLock, kPassword, 0, L::kPermalocked},
      {L::kUnlocked, sim::kPrivilegePermaUnlock, kPassword, 0, L::kPermaUnlocked},
      {L::kLocked, sim::kPrivilegeNone, kPassword, 0, L::kLocked},
      {L::kPermalocked, sim::kPrivilegePermaLock, kPassword, 0, L::kPermalocked},
      {L::kPermalocked, sim::kPrivilegeUnlock, kPassword, sim::kMemoryLocked, L::kPermalocked},
      {L::kPermaUnlocked, sim::kPrivilegeReadWrite, kPassword, sim::kMemoryLocked, L::kPermaUnlocked},
      {L::kUnlocked, 5, kPassword, sim::kInvalidParam, L::kUnlocked},
  };
  for (const Row& row : rows) {
    sim::SimTag tag = tagWith(row.from, sim::kEpcBankField);
    std::array<uint32_t, sim::kLockFieldCount> privileges{};
    privileges[sim::kEpcBankField] = row.privilege;
    const sim::TagAnswer answer = sim::lockTag(tag, privileges, row.password);
    EXPECT_EQ(answer.status, row.status) << "row " << (&row - rows) << ": " << answer.reason;
    EXPECT_EQ(tag.locks.of(sim::kEpcBankField), row.to) << "row " << (&row - rows);
  }
}

TEST(TagMemoryTest, RangesWordsAndPermalockedBlocks) {
  sim::SimTag tag = tagWith(LockState::kUnlocked, sim::kUserBankField);
  EXPECT_EQ(sim::readMemory(tag, sim::kBankUser, 2, 0, 0).data, (Bytes{3, 4})) << "count 0: to the end";
  EXPECT_EQ(sim::readMemory(tag, sim::kBankUser, 3, 2, 0).status, sim::kMemoryOverrun);
  EXPECT_EQ(sim::readMemory(tag, sim::kBankUser, 6, 0, 0).status, sim::kMemoryOverrun);
  EXPECT_EQ(sim::readMemory(tag, 4, 0, 2, 0).status, sim::kInvalidParam) << "no bank 4";
  EXPECT_EQ(sim::writeMemory(tag, sim::kBankUser, 1, {0, 0}, 0).status, sim::kInvalidParam) << "odd offset";
  EXPECT_EQ(sim::writeMemory(tag, sim::kBankUser, 0, {}, 0).status, sim::kInvalidParam) << "nothing to write";

  ASSERT_TRUE(sim::blockPermalock(tag, sim::kBankUser, true, 0, 4, {0x40}, kPassword).ok());
  EXPECT_EQ(tag.locks.permalockedBlocks, (std::set<uint16_t>{1})) << "the mask's second bit: block 1";
  EXPECT_EQ(sim::blockPermalock(tag, sim::kBankUser, false, 0, 4, {}, kPassword).data, (Bytes{0x40, 0}));
  EXPECT_EQ(sim::eraseMemory(tag, sim::kBankUser, 0, 0, kPassword).status, sim::kMemoryLocked);
  EXPECT_TRUE(sim::eraseMemory(tag, sim::kBankUser, 0, 2, kPassword).ok());
  EXPECT_EQ(tag.user, (Bytes{0, 0, 3, 4}));
  EXPECT_EQ(sim::blockPermalock(tag, sim::kBankEpc, true, 0, 2, {}, kPassword).status, sim::kInvalidParam);

  ASSERT_TRUE(sim::recommission(tag, 0x0BADF00D, 4).ok()) << "permalocks and passwords";
  EXPECT_TRUE(tag.locks.permalockedBlocks.empty());
  EXPECT_EQ(tag.accessPassword, 0u);
  EXPECT_EQ(sim::blockPermalock(tag, sim::kBankUser, true, 0, 2, {}, 0).status, sim::kMemoryLocked)
      << "block permalocking is off for good";
}

TEST(TagMemoryTest, KillNeedsItsPasswordAndEndsTheTag) {
  sim::SimTag tag = tagWith(LockState::kUnlocked, sim::kUserBankField);
  EXPECT_EQ(sim::killTag(tag, 0).status, sim::kPasswordMismatch);
  EXPECT_EQ(sim::killTag(tag, kPassword).status, sim::kPasswordMismatch) << "the access password is not the kill one";
  ASSERT_TRUE(sim::killTag(tag, 0x0BADF00D).ok());
  EXPECT_FALSE(tag.inFieldOf(1));
  EXPECT_EQ(sim::readMemory(tag, sim::kBankUser, 0, 2, 0).status, sim::kNotFound);
  sim::SimTag noKillPassword = tagWith(LockState::kUnlocked, sim::kUserBankField);
  noKillPassword.killPassword = 0;
  EXPECT_EQ(sim::killTag(noKillPassword, 0).status, sim::kPasswordMismatch) << "a zero kill password kills nothing";
}

TEST(TagMemoryTest, EpcBankWritesKeepPcAndCrcInStep) {
  sim::SimTag tag = tagWith(LockState::kUnlocked, sim::kUserBankField);
  ASSERT_TRUE(sim::writeTagId(tag, {0xE2, 0x00}, kPassword).ok());
  EXPECT_EQ(tag.epc, (Bytes{0xE2, 0x00}));
  EXPECT_EQ(tag.pc, 0x0800);
  const Bytes covered = {0x08, 0x00, 0xE2, 0x00};
  EXPECT_EQ(tag.crc, sim::crc16Genibus(covered.data(), covered.size()));
  EXPECT_EQ(tag.bank(sim::kBankEpc).size(), 8u) << "the bank keeps its size";
  EXPECT_EQ(sim::writeTagId(tag, Bytes(6, 0xAB), kPassword).status, sim::kMemoryOverrun) << "2 words of room";
  EXPECT_EQ(sim::writeMemory(tag, sim::kBankEpc, 2, {0xF8, 0x00}, 0).status, sim::kMemoryOverrun)
      << "a PC length past the bank";
  EXPECT_EQ(tag.pc, 0x0800) << "unchanged";
}

TEST(TagMemoryTest, TagFileLockKeys) {
  const sim::ParsedPopulation parsed = sim::parseTagList(
      "EPC=3000 USER=00000000 LOCK=KILL:permalocked,USER:locked,TID:permaunlocked PERMALOCK=USER:0-1\n"
      "EPC=3001 KILLED=1\n");
  ASSERT_EQ(parsed.error, "");
  const sim::TagLocks& locks = parsed.tags[0].locks;
  EXPECT_EQ(locks.of(sim::kKillPasswordField), LockState::kPermalocked);
  EXPECT_EQ(locks.of(sim::kAccessPasswordField), LockState::kUnlocked);
  EXPECT_EQ(locks.of(sim::kUserBankField), LockState::kLocked);
  EXPECT_EQ(locks.of(sim::kTidBankField), LockState::kPermaUnlocked);
  EXPECT_EQ(locks.permalockedBlocks, (std::set<uint16_t>{0, 1}));
  EXPECT_TRUE(parsed.tags[1].killed);
  EXPECT_TRUE(parsed.tags[1].rssiByAntenna.empty());

  const std::pair<std::string, std::string> cases[] = {
      {"EPC=3000 LOCK=EPC", "line 1: LOCK needs FIELD:state pairs, as EPC:locked"},
      {"EPC=3000 LOCK=PC:locked", "line 1: unknown LOCK field 'PC' (KILL, ACCESS, EPC, TID or USER)"},
      {"EPC=3000 LOCK=EPC:shut", "line 1: unknown lock state 'shut' (unlocked, locked, permalocked or permaunlocked)"},
      {"EPC=3000 LOCK=EPC:locked,EPC:unlocked", "line 1: LOCK names EPC twice"},
      {"EPC=3000 PERMALOCK=TID:0", "line 1: PERMALOCK needs USER:blocks, as USER:0-3,6"},
      {"EPC=3000 PERMALOCK=USER:0", "line 1: PERMALOCK needs USER memory"},
      {"EPC=3000 USER=0000 PERMALOCK=USER:0-1", "line 1: PERMALOCK block must be a number from 0 to 0"},
      {"EPC=3000 KILLED=2", "line 1: KILLED must be a number from 0 to 1"},
  };
  for (const auto& [text, error] : cases) EXPECT_EQ(sim::parseTagList(text).error, error) << text;
}

}  // namespace
