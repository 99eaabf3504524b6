// The last failure of each reader: when it happened, its status and a text
// naming the function and the reason, as RFID_GetLastErrorInfoW reports it.
//
// Every failing call of a connected reader records one (unknown handles are
// not readers and keep nothing). A later success does not clear it, as a
// reader's own error log is not cleared by a call that works: the record
// always describes the most recent failure. It is dropped with the session
// and on reset.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sim {

// Records a failure of fn on the reader; detail says why ("access password
// does not match for the USER bank"). Without a detail the text is the
// function and the status's description. Does nothing for status 0 or a
// handle that is not a session. Returns status, so callers can
//   return rememberFailure(handle, kNotFound, "RFID_Read", "no tag ...");
int32_t rememberFailure(int64_t handle, int32_t status, const char* fn, const std::string& detail = {});

// The ERROR_INFO record of the reader's last failure: time
// stamp (SYSTEMTIME, UTC), status, the status's description and the text.
// Before any failure: status 0, "Success", no time and no text.
std::vector<uint8_t> lastErrorRecord(int64_t handle);

// The description of a status code (the text RFID_GetErrorDescriptionW gives).
const wchar_t* describeStatus(int32_t status);

}  // namespace sim
