// What a simulated reader says about itself and keeps on itself: its
// identity, clock and time zone, the progress of a software update, its
// configuration profiles, its user applications and whether its LLRP
// configuration was saved. Kept per reader handle, dropped when the session
// closes and on reset; an unknown handle gets zeroed answers and changes
// nothing.
//
// The *Answer functions give the bytes a getter writes when no test
// scripted its output. The changes are made only for calls that succeeded
// so far (no scripted failure, a known handle) and return the status the
// reader gives. Names arrive as the captured 260-character wide buffers.
// The texts behind the pointers of an answer stay valid until the session
// closes or the simulator is reset.
#pragma once

#include <cstdint>
#include <vector>

#include "record/journal.h"

namespace sim {

std::vector<uint8_t> systemInfoAnswer(int64_t handle);

std::vector<uint8_t> readerInfoAnswer(int64_t handle);
int32_t keepReaderInfo(int64_t handle, const Blob& info);

// The host's UTC clock, moved by what the reader was last set to.
std::vector<uint8_t> localTimeAnswer(int64_t handle);
int32_t setLocalTime(int64_t handle, const Blob& time);

std::vector<uint8_t> timeZoneListAnswer(int64_t handle);
int32_t selectTimeZone(int64_t handle, uint16_t index);

std::vector<uint8_t> updateStatusAnswer(int64_t handle);
int32_t updateSoftware(int64_t handle, const Blob& updateInfo);

std::vector<uint8_t> profileListAnswer(int64_t handle);
int32_t deleteProfile(int64_t handle, const Blob& name);
int32_t activateProfile(int64_t handle, const Blob& name);

// The list record: the number of applications at 0 (a field the library
// does not read) and the pointer to their 24-byte entries at 8.
std::vector<uint8_t> userAppListAnswer(int64_t handle);
uint32_t installedAppCount(int64_t handle);
// kNotFound for an application that is not installed; running is then 0.
int32_t userAppRunStatus(int64_t handle, const Blob& name, uint8_t* running);
int32_t installUserApp(int64_t handle, const Blob& packageName);
int32_t uninstallUserApp(int64_t handle, const Blob& name);
int32_t runUserApp(int64_t handle, const Blob& name, bool run);
int32_t setUserAppAutoStart(int64_t handle, const Blob& name, bool autoStart);

uint8_t llrpConfigSavedAnswer(int64_t handle);
int32_t saveLlrpConfig(int64_t handle);

// Identity, clock, time zone, profiles and the saved flag go back to how a
// new session finds them; installed applications stay.
int32_t resetToFactoryDefaults(int64_t handle);

}  // namespace sim
