// What the tracer's tests share: the tracer loaded in front of the
// simulator this test links, records built byte by byte at their documented
// offsets, and the trace read back.
#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "record/json.h"
#include "record/trace_line.h"

namespace trace_test {

// The trace file of this test process.
inline const std::string& TracePath() {
  static const std::string path = testing::TempDir() + "halyard-trace-" + std::to_string(getpid()) + ".jsonl";
  return path;
}

// libhalyard-trace.so, forwarding to the simulator and tracing into
// TracePath(); nullptr when it cannot be loaded. The tracer reads its
// settings once, so the process loads it once; the trace goes with the
// process.
inline void* Tracer() {
  static void* tracer = [] {
    std::remove(TracePath().c_str());
    std::atexit([] { std::remove(TracePath().c_str()); });
    setenv("HALYARD_TRACE_TARGET", SIM_LIBRARY, 1);
    setenv("HALYARD_TRACE_FILE", TracePath().c_str(), 1);
    void* loaded = dlopen(TRACE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (loaded == nullptr) ADD_FAILURE() << dlerror();
    return loaded;
  }();
  return tracer;
}

template <class F>
void Bind(void* library, const char* name, F* f) {
  *f = reinterpret_cast<F>(dlsym(library, name));
  ASSERT_NE(*f, nullptr) << name;
}

// A record under construction, zero-filled to its size.
struct Bytes {
  explicit Bytes(size_t n) : b(n, 0) {}
  template <class T>
  Bytes& put(size_t at, T v) {
    std::memcpy(b.data() + at, &v, sizeof v);
    return *this;
  }
  Bytes& ptr(size_t at, const void* p) { return put<uint64_t>(at, reinterpret_cast<uintptr_t>(p)); }
  void* data() { return b.data(); }
  std::vector<uint8_t> b;
};

// How many calls have been traced so far.
inline size_t TracedCount() {
  std::ifstream in(TracePath());
  size_t lines = 0;
  for (std::string line; std::getline(in, line);) ++lines;
  return lines;
}

// The lines of the calls traced from the skip-th on, as a trace file of
// their own (for a replay that starts with them).
inline void CopyTrace(size_t skip, const std::string& to) {
  std::ifstream in(TracePath());
  std::ofstream out(to, std::ios::trunc);
  size_t number = 0;
  for (std::string line; std::getline(in, line);) {
    if (number++ >= skip) out << line << '\n';
  }
}

// The lines traced from the skip-th on, parsed.
inline std::vector<sim::json::Value> TracedLines(size_t skip = 0) {
  std::vector<sim::json::Value> lines;
  std::ifstream in(TracePath());
  size_t number = 0;
  for (std::string line; std::getline(in, line);) {
    if (number++ < skip) continue;
    sim::json::ParseResult parsed = sim::json::Parse(line);
    EXPECT_TRUE(parsed.value) << parsed.error;
    if (parsed.value) lines.push_back(std::move(*parsed.value));
  }
  return lines;
}

// The calls traced so far, from the skip-th on.
inline std::vector<sim::trace::TracedCall> ReadTrace(size_t skip = 0) {
  std::vector<sim::trace::TracedCall> calls;
  for (const sim::json::Value& line : TracedLines(skip)) {
    sim::trace::TracedCall call;
    std::string error;
    EXPECT_TRUE(sim::trace::FromJson(line, &call, &error)) << error;
    calls.push_back(std::move(call));
  }
  return calls;
}

// A value of a line's decoded view by its path, "out/caps/numAntennas" (an
// array entry by its index: "in/cableLoss/1/cableLossPer100Ft"); "(none)"
// when there is no such value.
inline std::string Decoded(const sim::json::Value& line, const std::string& path) {
  const sim::json::Value* v = line.find("decoded");
  for (size_t at = 0; v != nullptr && at <= path.size();) {
    const size_t slash = std::min(path.find('/', at), path.size());
    const std::string step = path.substr(at, slash - at);
    at = slash + 1;
    if (v->type != sim::json::Value::Type::Array) {
      v = v->find(step);
    } else {
      v = std::stoul(step) < v->items.size() ? &v->items[std::stoul(step)] : nullptr;
    }
  }
  return v == nullptr ? "(none)" : v->text;
}

}  // namespace trace_test
