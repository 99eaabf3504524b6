// Connected readers. Handles are issued by RFID_ConnectW, RFID_LoginW and
// RFID_AcceptConnection; every other call checks its handle here first.
#pragma once

#include <cstdint>
#include <string>

namespace sim {

bool sessionExists(int64_t handle);

// Opens a session under a new handle: non-zero, increasing and never reused
// for the life of the process (not even after a reset), so a stale handle
// stays unknown.
int64_t openSession();

// Closes the session, then runs the session-closed hooks; false when the
// handle is unknown.
bool closeSession(int64_t handle);

// Called (outside any lock of the session table) after a reader handle was
// closed by RFID_Disconnect or RFID_Logout, so reader state can be dropped.
using SessionClosedHook = void (*)(int64_t handle);
void addSessionClosedHook(SessionClosedHook hook);

// SimControl.reset clears the journal, the scripts and every session, then
// runs the reset hooks (reader state, tag buffers, events...).
using ResetHook = void (*)();
void addResetHook(ResetHook hook);
void resetSessions();

// resetSessions() forgets every session and runs no hook; runResetHooks()
// runs the reset hooks in the order they were added.
void runResetHooks();

// Everything SimControl.reset does, in its order.
void resetSimulator();

}  // namespace sim
