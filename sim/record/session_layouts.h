// The records of a reader session as the reader sees them, one description
// each (see record_layout.h): connecting, logging in, the reader-initiated
// LLRP connection, event data, errors and version, and the small records a
// tag record holds or points to.
#pragma once

#include <cstdint>

#include "record/record_layout.h"

namespace sim::layout {

// Connecting and logging in.
const Record& ConnectionInfo();     // CONNECTION_INFO (48 bytes on the caller's stack)
const Record& SecConnectionInfo();  // SEC_CONNECTION_INFO, with its four buffers
const Record& LoginInfo();          // LOGIN_INFO

// The LLRP connection the reader opens.
const Record& LlrpConnectionConfig();  // LLRP_CONNECTION_CONFIG
const Record& SecLlrpConfig();         // SEC_LLRP_CONFIG
const Record& LlrpInitiateScratch();   // what RFID_InitiateLLRPConnectionFromReader may write
const Record& AcceptConnectionInfo();  // the record RFID_AcceptConnection reads

// The data record RFID_GetEventData fills for an event type; a type whose
// data the library never asks for has a record of the room it provides
// and no fields.
const Record& EventData(uint32_t type);

// Errors and version.
const Record& ErrorInfo();    // ERROR_INFO
const Record& VersionInfo();  // VERSION_INFO

// What the tag record holds and points to.
const Record& SeenTime();                   // SEEN_TIME: the UTC and the up-time form over the same bytes
const Record& LocationInfo();               // LOCATION_INFO
const Record& GpsLocation();                // GPS_LOCATION
const Record& QtData();                     // result of opCode 21
const Record& NxpChangeConfigWordResult();  // result of opCode 22
const Record& BitStringResult();            // result of opCodes 23, 24 and 26

}  // namespace sim::layout
