// What the simulator keeps of the call that opened a session: the blobs
// that RFID_ConnectW ("hostName", "connInfo", "connInfo.secConnInfo"...),
// RFID_LoginW ("loginInfo") or RFID_AcceptConnection ("acceptInfo")
// captured, which outlive the caller's buffers.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "record/journal.h"

namespace sim {

// Empty for an unknown or closed handle.
std::map<std::string, Blob> sessionOrigin(int64_t handle);

}  // namespace sim
