#include "api/call_outcome.h"

#include <cstring>

#include "reader/capabilities.h"
#include "reader/last_error.h"
#include "reader/status.h"

namespace sim {

CallOutcome finishCall(Recorder& rec, int64_t handle, bool readable, std::string refusal) {
  if (refusal.empty()) refusal = selectionProblem(rec);
  CallOutcome outcome;
  outcome.status = rec.finish();
  outcome.reader = findReader(handle);
  if (outcome.status == kSuccess && !outcome.reader) outcome.status = kInvalidHandle;
  if (outcome.status == kSuccess && !readable) outcome.status = kInvalidParam;
  if (outcome.status == kSuccess && !refusal.empty()) {
    outcome.status = kInvalidParam;
    rememberFailure(handle, outcome.status, rec.fn().c_str(), refusal);
    return outcome;
  }
  rememberFailure(handle, outcome.status, rec.fn().c_str());
  return outcome;
}

void writeOutput(const std::string& fn, void* dst, const void* normal, size_t n) {
  std::vector<uint8_t> scripted;
  if (scriptedOutput(fn, &scripted)) {
    writeOuts({{dst, n}}, scripted);
  } else {
    std::memcpy(dst, normal, n);
  }
}

bool writeScriptedOutput(const std::string& fn, void* dst, size_t n) {
  std::vector<uint8_t> scripted;
  if (!scriptedOutput(fn, &scripted)) return false;
  writeOuts({{dst, n}}, scripted);
  return true;
}

}  // namespace sim
