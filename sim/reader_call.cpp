#include "reader_call.h"

#include <cstring>

#include "status.h"

namespace sim {

CallOutcome finishCall(Recorder& rec, int64_t handle) {
  CallOutcome outcome;
  outcome.status = rec.finish();
  outcome.reader = findReader(handle);
  if (outcome.status == kSuccess && !outcome.reader) outcome.status = kInvalidHandle;
  return outcome;
}

bool hasScriptedOutput(const std::string& fn) {
  uint8_t none = 0;
  return scriptedOutput(fn, &none, 0);
}

// The journal copies min(n, scripted size) bytes; copying into two buffers of
// different fill shows where the scripted bytes end: they agree, the rest not.
bool scriptedOutputBytes(const std::string& fn, size_t max, std::vector<uint8_t>* bytes) {
  std::vector<uint8_t> zeros(max, 0x00);
  std::vector<uint8_t> ones(max, 0xFF);
  if (!scriptedOutput(fn, zeros.data(), max)) return false;
  scriptedOutput(fn, ones.data(), max);
  size_t n = 0;
  while (n < max && zeros[n] == ones[n]) ++n;
  zeros.resize(n);
  *bytes = std::move(zeros);
  return true;
}

void writeOutput(const std::string& fn, void* dst, const void* normal, size_t n) {
  if (!scriptedOutput(fn, dst, n)) std::memcpy(dst, normal, n);
}

}  // namespace sim
