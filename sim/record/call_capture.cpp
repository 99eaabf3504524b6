#include "record/call_capture.h"

#include <cstring>

#include "record/capture_record.h"
#include "record/captured_fields.h"

namespace sim::api {
namespace {

const void* AsPointer(uint64_t raw) { return reinterpret_cast<const void*>(raw); }

size_t LengthOf(const FunctionSpec& fn, const ArgSpec& arg, const uint64_t* args) {
  if (arg.lengthArg < 0 || static_cast<size_t>(arg.lengthArg) >= fn.args.size()) return 0;
  return static_cast<size_t>(UnsignedValue(fn.args[arg.lengthArg], args[arg.lengthArg])) * arg.unit;
}

void CaptureRecordOrBytes(const layout::Record* record, const ArgSpec& arg, uint64_t raw, BlobSet* sink) {
  if (record != nullptr) {
    layout::captureRecord(*sink, arg.name, AsPointer(raw), *record);
  } else {
    sink->blob(arg.name, AsPointer(raw), arg.bytes);
  }
}

void CaptureTagArray(const ArgSpec& arg, uint64_t raw, size_t count, BlobSet* sink) {
  sink->blob(arg.name, AsPointer(raw), count * sizeof(void*));
  const Blob& array = sink->captured(arg.name);
  for (size_t i = 0; i * sizeof(void*) < array.bytes.size(); ++i) {
    layout::captureRecord(*sink, TagEntryName(arg, i), pointerAt(array, i * sizeof(void*)), *arg.record);
  }
}

}  // namespace

bool IsOutput(const ArgSpec& arg) { return arg.kind == Arg::InOut || arg.kind == Arg::TagArray; }

std::string TagEntryName(const ArgSpec& arg, size_t i) { return std::string(arg.name) + "[" + std::to_string(i) + "]"; }

void CaptureInputs(const FunctionSpec& fn, const uint64_t* args, BlobSet* in) {
  for (size_t i = 0; i < fn.args.size(); ++i) {
    const ArgSpec& arg = fn.args[i];
    switch (arg.kind) {
      case Arg::Wide: in->wide(arg.name, static_cast<const wchar_t*>(AsPointer(args[i])), kMaxWideChars); break;
      case Arg::Bytes: in->blob(arg.name, AsPointer(args[i]), LengthOf(fn, arg, args)); break;
      case Arg::In:
      case Arg::InOut: CaptureRecordOrBytes(RecordOf(fn, arg, args), arg, args[i], in); break;
      case Arg::TagList: CaptureTagArray(arg, args[i], LengthOf(fn, arg, args), in); break;
      default: break;
    }
  }
}

void CaptureOutputs(const FunctionSpec& fn, const uint64_t* args, uint64_t result, const BlobSet& in, BlobSet* out) {
  if (fn.result == Result::WideText) out->wide("result", static_cast<const wchar_t*>(AsPointer(result)), kMaxWideChars);
  for (size_t i = 0; i < fn.args.size(); ++i) {
    const ArgSpec& arg = fn.args[i];
    if (arg.kind != Arg::InOut) continue;
    const Blob& before = in.captured(arg.name);
    const layout::Record* record = RecordOf(fn, arg, args);
    if (record == nullptr && before.present && !before.faulted && before.bytes.size() == arg.bytes) {
      Blob after = before;
      std::memcpy(after.bytes.data(), AsPointer(args[i]), arg.bytes);
      out->put(arg.name, std::move(after));
      continue;
    }
    CaptureRecordOrBytes(record, arg, args[i], out);
  }
  // The count of a tag array is an out-parameter captured just now.
  for (size_t i = 0; i < fn.args.size(); ++i) {
    const ArgSpec& arg = fn.args[i];
    if (arg.kind != Arg::TagArray || arg.lengthArg < 0) continue;
    const Blob& count = out->captured(fn.args[arg.lengthArg].name);
    CaptureTagArray(arg, args[i], fieldAt<uint32_t>(count, 0), out);
  }
}

}  // namespace sim::api
