// What a row of the natives table says about one native: the Java arguments
// that differ from the model's defaults, and what the contract lets it keep
// or fixes about its order.
#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "native_run.h"

namespace jt {

struct Row {
  std::string method;
  Overrides args;
  std::string kept;                               // blocks never freed, by size: "[1" array of 1 byte, "40" record
  int keptPins = 0;                               // arrays pinned and never released
  int keptChars = 0;                              // UTF characters got and never released
  int writesOnFailure = 0;                        // Java writes made whatever the status
  int nullReads = 0;                              // JNI calls on a null reference, as the contract has them
  int earlyFrees = 0;                             // blocks not given to the C call, freed before it
  bool returnsStatus = true;                      // the result is the C status
  std::vector<std::vector<std::string>> orders;   // each: timeline steps that occur in this order

  explicit Row(const char* m) : method(m) {}
  Row& arg(const std::string& path, const Val& v) { args.emplace_back(path, v); return *this; }
  Row& keeps(const std::string& blocks) { kept = blocks; return *this; }
  Row& keepsPins(int n) { keptPins = n; return *this; }
  Row& keepsChars(int n) { keptChars = n; return *this; }
  Row& writesAnyway(int n) { writesOnFailure = n; return *this; }
  Row& readsNull(int n) { nullReads = n; return *this; }
  Row& freesEarly(int n) { earlyFrees = n; return *this; }
  Row& noStatus() { returnsStatus = false; return *this; }
  Row& order(std::vector<std::string> steps) { orders.push_back(std::move(steps)); return *this; }
};

const std::vector<Row>& nativeRows();

inline void PrintTo(const Row& row, std::ostream* os) { *os << row.method; }

}  // namespace jt
