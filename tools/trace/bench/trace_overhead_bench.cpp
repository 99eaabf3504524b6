// What tracing costs a call: the same C function called directly on the
// simulator and through libhalyard-trace.so (writing its trace to a file),
// in batches; prints the median time a call and the spread (lowest and
// highest batch) of each, and the difference of the medians.
//
//   trace_overhead_bench [trace file, default /tmp/halyard-trace-bench.jsonl]
#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <vector>

#include "reader/sessions.h"

namespace {

constexpr int kBatches = 31;
constexpr int kCallsPerBatch = 2000;

struct Figures {
  double median, low, high;  // nanoseconds a call
};

Figures Measure(const std::function<void()>& call) {
  std::vector<double> batches;
  for (int b = 0; b < kBatches; ++b) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kCallsPerBatch; ++i) call();
    const std::chrono::duration<double, std::nano> took = std::chrono::steady_clock::now() - start;
    batches.push_back(took.count() / kCallsPerBatch);
  }
  std::sort(batches.begin(), batches.end());
  return {batches[batches.size() / 2], batches.front(), batches.back()};
}

void Print(const char* what, const Figures& direct, const Figures& traced) {
  std::printf("%-28s direct %8.0f ns [%.0f..%.0f]   traced %8.0f ns [%.0f..%.0f]   overhead %6.2f us\n", what,
              direct.median, direct.low, direct.high, traced.median, traced.low, traced.high,
              (traced.median - direct.median) / 1000);
}

template <class F>
F Find(void* library, const char* name) {
  F f = reinterpret_cast<F>(dlsym(library, name));
  if (f == nullptr) {
    std::fprintf(stderr, "no %s\n", name);
    std::exit(1);
  }
  return f;
}

}  // namespace

int main(int argc, char** argv) {
  const char* file = argc > 1 ? argv[1] : "/tmp/halyard-trace-bench.jsonl";
  std::remove(file);
  setenv("HALYARD_TRACE_TARGET", SIM_LIBRARY, 1);
  setenv("HALYARD_TRACE_FILE", file, 1);
  void* tracer = dlopen(TRACE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (tracer == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  const int64_t reader = sim::openSession();

  using GetAntennaConfig = int32_t (*)(int64_t, uint16_t, uint16_t*, uint16_t*, uint16_t*);
  using SetEvent = int32_t (*)(int64_t);
  using AddPreFilter = int32_t (*)(int64_t, uint16_t, void*, uint32_t*);
  using DeletePreFilter = int32_t (*)(int64_t, uint16_t, uint32_t);
  uint16_t a = 0, b = 0, c = 0;
  {
    auto direct = Find<GetAntennaConfig>(RTLD_DEFAULT, "RFID_GetAntennaConfig");
    auto traced = Find<GetAntennaConfig>(tracer, "RFID_GetAntennaConfig");
    Print("RFID_GetAntennaConfig", Measure([&] { direct(reader, 1, &a, &b, &c); }),
          Measure([&] { traced(reader, 1, &a, &b, &c); }));
  }
  {
    auto direct = Find<SetEvent>(RTLD_DEFAULT, "rfidUtils_SetEvent");
    auto traced = Find<SetEvent>(tracer, "rfidUtils_SetEvent");
    Print("rfidUtils_SetEvent", Measure([&] { direct(0); }), Measure([&] { traced(0); }));
  }
  {
    // PRE_FILTER: memoryBank at 0, tagPattern at 8, its bit count at 16.
    uint8_t pattern[] = {0x30, 0x34};
    uint8_t preFilter[36] = {};
    preFilter[0] = 1;
    const uint64_t at = reinterpret_cast<uintptr_t>(pattern);
    std::memcpy(preFilter + 8, &at, 8);
    preFilter[16] = 16;
    auto add = Find<AddPreFilter>(RTLD_DEFAULT, "RFID_AddPreFilter");
    auto remove = Find<DeletePreFilter>(RTLD_DEFAULT, "RFID_DeletePreFilter");
    auto traced = Find<AddPreFilter>(tracer, "RFID_AddPreFilter");
    uint32_t index = 0;
    Print("RFID_AddPreFilter (+ delete)", Measure([&] {
            add(reader, 1, preFilter, &index);
            remove(reader, 1, index);
          }),
          Measure([&] {
            traced(reader, 1, preFilter, &index);
            remove(reader, 1, index);
          }));
  }
  return 0;
}
