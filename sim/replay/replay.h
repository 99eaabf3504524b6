// Replay: the simulator answers from a call trace (HALYARD_SIM_REPLAY=file,
// a trace of libhalyard-trace.so) instead of from its reader model. Each
// call gets the status the trace recorded for the call at its place, and
// what the traced library wrote back (out-parameters, tag records), matched
// by function and order. The first call that differs from the trace (its
// function, an argument value, or a byte of a record it was given, pointer
// fields aside) is reported on stderr naming the call and the field or
// byte, and it and every later call get kReplayDiverged.
//
// Values the reader hands out (reader and event handles) may differ from
// run to run and are not compared, nor are addresses.
#pragma once

#include <cstdint>
#include <string>

#include "record/journal.h"

namespace sim::replay {

constexpr int32_t kReplayDiverged = 0x7E;

// Whether calls are answered from a trace: HALYARD_SIM_REPLAY names one (read
// at the first call), or start() was called.
bool active();

// Replays the trace in path from its first call; false with a reason when it
// cannot be read (a malformed line is named by its number).
bool start(const std::string& path, std::string* error);
void stop();

// Answers a recorded call from the trace: compares it, writes the traced
// outputs through its out-parameters and sets the traced status. False
// when not replaying.
bool answer(const Call& call, int32_t* status);

// The divergence reported, empty while the replay follows the trace.
std::string divergence();

}  // namespace sim::replay
