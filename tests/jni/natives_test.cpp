// Every native, on a scripted success and a scripted failure of the C calls
// it makes: each pinned array and UTF string released in mode 0 or kept as
// the contract keeps it, each block freed (with the matching delete) after
// the C call or kept, nothing written to Java on failure, and the order of
// steps wherever the contract fixes it.
#include <gtest/gtest.h>

#include <set>

#include "native_run.h"
#include "native_table.h"
#include "timeline.h"

namespace jt {
namespace {

constexpr int32_t kFailure = sim::kOutOfMemory;

// Runs the row's native with every C function of `scripted` answering `status`.
NativeRun runRow(const Row& row, const std::vector<std::string>& scripted, int32_t status) {
  FreshReader reader;
  for (const std::string& fn : scripted) sim::setScriptedStatus(fn, status);
  Jvm jvm;
  jvm.nullReferencesExpected = row.nullReads > 0;
  const Native& n = Library::get().native(row.method);
  return runNative(jvm, n, buildArguments(jvm, n, row.args, reader.handle()), reader.handle());
}

std::string keptBlocks(const NativeRun& r) {
  std::string kept;
  for (const Allocation& a : r.allocations)
    if (!a.freed) kept += (kept.empty() ? "" : " ") + std::string(a.array ? "[" : "") + std::to_string(a.size);
  return kept;
}

void expectReleases(const Row& row, const NativeRun& r) {
  int keptPins = 0, keptChars = 0;
  for (const Pin& p : r.pins) {
    if (!p.released) ++(p.get == "GetStringUTFChars" ? keptChars : keptPins);
    if (p.released) {
      EXPECT_EQ(0, p.mode) << p.get << " released in mode " << p.mode;
    }
  }
  EXPECT_EQ(row.keptPins, keptPins) << "arrays left pinned";
  EXPECT_EQ(row.keptChars, keptChars) << "UTF characters not released";
  EXPECT_EQ(row.kept, keptBlocks(r)) << "blocks left allocated";
  int early = 0;
  for (const Allocation& a : r.allocations) {
    if (!a.freed) continue;
    EXPECT_EQ(a.array, a.freedAsArray) << a.size << "-byte block freed with the other delete";
    early += a.madeAt == 0 && a.freedAt == 0 && r.cCalls > 0;  // made for the call, gone before it
  }
  EXPECT_EQ(row.earlyFrees, early) << "blocks freed before the C call";
  int nullReads = 0;
  for (const std::string& line : r.lines) {
    nullReads += line.find(" on null") != std::string::npos;
    EXPECT_EQ(std::string::npos, line.find("unknown block")) << line << ": not a block of the library";
  }
  EXPECT_EQ(row.nullReads, nullReads) << "JNI calls on null references";
}

class NativesTable : public ::testing::TestWithParam<Row> {};

TEST_P(NativesTable, ReleasesOnSuccessAndFailureAndKeepsItsOrder) {
  const Row& row = GetParam();
  std::vector<std::string> called;
  for (const std::string& line : runRow(row, {}, 0).lines)
    if (line.rfind("C ", 0) == 0) called.push_back(line.substr(2));
  const NativeRun ok = runRow(row, called, sim::kSuccess);
  {
    SCOPED_TRACE("success\n" + ok.dump());
    expectReleases(row, ok);
    for (const auto& steps : row.orders) {
      std::string why;
      EXPECT_TRUE(inOrder(ok.lines, steps, &why)) << why;
    }
  }
  const NativeRun failed = runRow(row, called, kFailure);
  SCOPED_TRACE("failure\n" + failed.dump());
  if (row.returnsStatus) {
    EXPECT_EQ(static_cast<uint64_t>(kFailure), failed.result);
  }
  EXPECT_EQ(static_cast<size_t>(row.writesOnFailure), failed.writes) << "Java written on failure";
  expectReleases(row, failed);
}

INSTANTIATE_TEST_SUITE_P(EveryNative, NativesTable, ::testing::ValuesIn(nativeRows()),
                         [](const ::testing::TestParamInfo<Row>& info) { return info.param.method; });

TEST(NativesTableCoverage, OneRowForEachNativeOfOrlaNatives) {
  std::multiset<std::string> rows, declared;
  for (const Row& row : nativeRows()) rows.insert(row.method);
  for (const Native& n : Library::get().natives()) declared.insert(n.name);
  EXPECT_EQ(131u, declared.size());
  EXPECT_EQ(declared, rows);
}

}  // namespace
}  // namespace jt
