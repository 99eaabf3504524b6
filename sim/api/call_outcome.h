// The common part of the simulated reader calls: after the call is recorded,
// a status the test scripted wins; otherwise an unknown reader handle is
// refused. A scripted failure still lets the call write its outputs (for a
// known reader), but it must change no reader state. Arguments are recorded
// with raw() of record/api_call.h.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/api_call.h"
#include "record/journal.h"
#include "reader/status.h"
#include "reader/state.h"

namespace sim {

struct CallOutcome {
  int32_t status = 0;  // scripted, kInvalidHandle, or 0
  ReaderPtr reader;    // nullptr for an unknown handle

  bool proceeds() const { return status == 0; }
  // The status for unusable arguments: the scripted one, or kInvalidParam.
  int32_t refused() const { return proceeds() ? kInvalidParam : status; }
};

// Finishes the recording and looks the reader up. `readable` false (a
// record whose memory could not be captured) gives kInvalidParam unless a
// status was scripted or the handle is unknown; so does a refusal (a
// request beyond the reader's capabilities, reader/capabilities.h) or an
// antenna selection captured under "antennaInfo" that names an antenna the
// reader does not have. The refusal becomes the reader's last error.
CallOutcome finishCall(Recorder& rec, int64_t handle, bool readable = true, std::string refusal = {});

// Writes fn's scripted output into the caller's n-byte record (zeroing what
// the script does not cover), or else the n bytes the call normally returns.
void writeOutput(const std::string& fn, void* dst, const void* normal, size_t n);
// The scripted output alone; false (nothing written) when there is none.
bool writeScriptedOutput(const std::string& fn, void* dst, size_t n);

}  // namespace sim
