// Captures of one call by its function's description (api_functions.h):
// what it was given, taken before it runs, and what it wrote back, taken
// after. Blob names are the argument names, with what records point to
// under "<arg>.<field>" and tag records of an array under "<arg>[i]".
#pragma once

#include <cstdint>

#include "record/api_functions.h"
#include "record/blob_set.h"

namespace sim::api {

constexpr int kMaxArgs = 8;
constexpr size_t kMaxWideChars = 4096;

void CaptureInputs(const FunctionSpec& fn, const uint64_t* args, BlobSet* in);
// `in` is what CaptureInputs took: a plain buffer it read whole is read again
// without a safe copy, since the call has just written to it.
void CaptureOutputs(const FunctionSpec& fn, const uint64_t* args, uint64_t result, const BlobSet& in, BlobSet* out);

// Whether the call may write through this argument.
bool IsOutput(const ArgSpec& arg);

// The name of entry i of a tag record array argument.
std::string TagEntryName(const ArgSpec& arg, size_t i);

}  // namespace sim::api
