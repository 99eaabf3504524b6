// The C API's records as the reader sees them, one description each (see
// record_layout.h). Families: antenna selection and filters, triggers,
// pre-filters, tag access parameters and access-sequence operations, and
// the tag record.
#pragma once

#include <cstdint>

#include "record/record_layout.h"

namespace sim::layout {

// Antenna selection and filters.
const Record& AntennaInfo();      // ANTENNA_INFO
const Record& TagPattern();       // TAG_PATTERN
const Record& RssiRangeFilter();  // RSSI_RANGE_FILTER (the bytes the library sets)
const Record& Filter();           // ACCESS_FILTER and POST_FILTER
const Record& PreFilter();        // PRE_FILTER

// Triggers.
const Record& SystemTime();          // SYSTEMTIME
const Record& TimeOfDay();           // TIMEOFDAY
const Record& StartTrigger();        // START_TRIGGER
const Record& StopTrigger();         // STOP_TRIGGER
const Record& TagEventReportInfo();  // TAG_EVENT_REPORT_INFO
const Record& ReportTriggers();      // REPORT_TRIGGERS (the block every caller provides)
const Record& ExtraTriggers();       // the 256-byte extra trigger block
const Record& TriggerInfo();         // TRIGGER_INFO

// Tag access: the parameter records of the single operations and of the
// operations of an access sequence.
const Record& ReadAccessParams();
const Record& WriteAccessParams();
const Record& BlockEraseAccessParams();
const Record& LockAccessParams();
const Record& KillAccessParams();
const Record& BlockPermalockAccessParams();
const Record& RecommissionAccessParams();
const Record& WriteFieldAccessParams();
const Record& NxpAccessParams();
const Record& QtReadAccessParams();
const Record& QtWriteAccessParams();
const Record& AuthenticateAccessParams();
const Record& UntraceableAccessParams();
const Record& ReadBufferAccessParams();
const Record& CryptoAccessParams();
// The parameter record an access-sequence operation of that code carries;
// nullptr for a code without one.
const Record* OperationParams(uint32_t opCode);
const Record& AccessOperation();  // the access-sequence operation record

// The tag record, as far as the library reads and the reader fills it.
const Record& TagData();  // TAG_DATA

}  // namespace sim::layout
