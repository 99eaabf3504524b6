// The common part of the simulated reader calls: after the call is recorded,
// a status the test scripted wins; otherwise an unknown reader handle is
// refused. A scripted failure still lets the call write its outputs, but it
// must change no reader state.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "journal.h"
#include "status.h"
#include "reader_state.h"

namespace sim {

struct CallOutcome {
  int32_t status = 0;  // scripted, kInvalidHandle, or 0
  ReaderPtr reader;    // nullptr for an unknown handle

  bool proceeds() const { return status == 0; }
  // The status for unusable arguments: the scripted one, or kInvalidParam.
  int32_t refused() const { return proceeds() ? kInvalidParam : status; }
};

// Raw argument values as the journal keeps them.
inline uint64_t raw(const void* p) { return reinterpret_cast<uintptr_t>(p); }
inline uint64_t raw(int64_t v) { return static_cast<uint64_t>(v); }

// Finishes the recording and looks the reader up.
CallOutcome finishCall(Recorder& rec, int64_t handle);

bool hasScriptedOutput(const std::string& fn);
// The whole output scripted for fn, at most max bytes; false when none.
bool scriptedOutputBytes(const std::string& fn, size_t max, std::vector<uint8_t>* bytes);

// Writes fn's scripted output into the caller's record, or else the n
// bytes the call normally returns.
void writeOutput(const std::string& fn, void* dst, const void* normal, size_t n);

}  // namespace sim
