// A single tag access operation on a connected reader (RFID_Read, RFID_Write,
// ..., the chip-specific and Gen2v2 commands): after the call is recorded,
// the operation acts on the tag memory of the tag whose EPC is the tag ID
// (every tag when there is none) in the field of the selected antennas that
// the access filter admits.
#pragma once

#include <cstdint>

#include "record/api_call.h"

namespace sim {

// Finishes the call of fn, whose tag ID ("tagID"), parameter record
// ("params", with the buffer it points to under "params." + dataName when
// dataName is not NULL), access filter ("accessFilter") and antennas
// ("antennaInfo") were captured; op is the AccessOp.
//
// A scripted output for fn is written into the result tag as it stands and
// the call does nothing else; a scripted status stands and changes nothing.
// Otherwise: kNotFound when no tag is meant, else the status of the first
// tag that refused (its reason becomes the last error), else 0. The result
// tag (one of ours, or NULL) receives the first tag with its result: op
// code, op status, bank, byte offset, the bytes read, the word read back.
int32_t answerAccess(ApiCall& call, int64_t handle, const char* fn, uint32_t op, const char* dataName,
                     void* resultTag);

}  // namespace sim
