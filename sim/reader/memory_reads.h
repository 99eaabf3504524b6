// Tag memory reads of the simulated reader: RFID_Read on a connected reader
// answers from the tag population when the test scripted no result tag.
#pragma once

#include <cstdint>

#include "record/api_call.h"

namespace sim {

// Finishes an RFID_Read whose tag ID ("tagID") and READ_ACCESS_PARAMS
// ("params") the call captured. A scripted result tag is written as it
// stands (whatever the status). Otherwise, on success so far, the bytes
// that the record asks for (byteCount 0: to the end of the bank) are read
// from the tag in the field whose EPC is the tag ID, into the result tag
// record (one of ours, or NULL for the status alone) with opCode 0 and the
// bank. kNotFound when no tag in the field has that EPC, kInvalidParam for
// a missing record, a range beyond the bank or a record not of ours.
int32_t answerRead(ApiCall& call, int64_t handle, void* tag);

}  // namespace sim
