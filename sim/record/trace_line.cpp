#include "record/trace_line.h"

#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace sim::trace {
namespace {

using layout::Field;
using layout::Kind;
using layout::Record;

std::string Address(uint64_t value) {
  char text[24];
  std::snprintf(text, sizeof text, "\"0x%" PRIx64 "\"", value);
  return text;
}

std::string BlobJson(const Blob& blob) {
  if (!blob.present) return "null";
  if (blob.faulted) return "\"fault\"";
  return json::Hex(blob.bytes);
}

std::string Timestamp(int64_t wallNanos) {
  time_t seconds = static_cast<time_t>(wallNanos / 1000000000);
  struct tm utc;
  gmtime_r(&seconds, &utc);
  char text[48];
  size_t n = strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &utc);
  std::snprintf(text + n, sizeof text - n, ".%09" PRId64 "Z", wallNanos % 1000000000);
  return json::Quote(text);
}

// A number JSON can hold as one; infinities and NaN as quoted text.
std::string FloatJson(uint32_t bits) {
  float value;
  std::memcpy(&value, &bits, sizeof value);
  char text[32];
  std::snprintf(text, sizeof text, "%.9g", value);
  return std::isfinite(value) ? std::string(text) : json::Quote(text);
}

std::string ScalarJson(const Field& field, const std::vector<uint8_t>& bytes, size_t at) {
  const uint64_t raw = layout::UnsignedAt(bytes, at, layout::ScalarBytes(field.kind));
  switch (field.kind) {
    case Kind::I8: return std::to_string(static_cast<int8_t>(raw));
    case Kind::I16: return std::to_string(static_cast<int16_t>(raw));
    case Kind::I32: return std::to_string(static_cast<int32_t>(raw));
    case Kind::I64: return std::to_string(static_cast<int64_t>(raw));
    case Kind::F32: return FloatJson(static_cast<uint32_t>(raw));
    default: return std::to_string(raw);
  }
}

std::string WideJson(const std::vector<uint8_t>& bytes, size_t at, size_t chars) {
  std::string text;
  for (size_t i = 0; i < chars; ++i) {
    const uint32_t c = static_cast<uint32_t>(layout::UnsignedAt(bytes, at + 4 * i, 4));
    if (c == 0) break;
    text += c < 0x80 ? static_cast<char>(c) : '?';
  }
  return json::Quote(text);
}

std::string FieldsJson(const Record& record, const BlobSet& blobs, const std::string& blobName,
                       const std::string& path, size_t base);

std::string PointeeJson(const Field& field, const BlobSet& blobs, const std::string& child) {
  const Blob& blob = blobs.captured(child);
  if (!blob.present || blob.faulted || field.record == nullptr) return BlobJson(blob);
  if (!layout::PointsToRecords(field)) return FieldsJson(*field.record, blobs, child, child, 0);
  std::string items = "[";
  for (size_t i = 0; i < blob.bytes.size() / field.record->size; ++i) {
    if (i > 0) items += ",";
    items += FieldsJson(*field.record, blobs, child, child + "[" + std::to_string(i) + "]", i * field.record->size);
  }
  return items + "]";
}

std::string FieldJson(const Field& field, const BlobSet& blobs, const std::string& blobName, const std::string& path,
                      size_t base) {
  const std::vector<uint8_t>& bytes = blobs.captured(blobName).bytes;
  const size_t at = base + field.offset;
  switch (field.kind) {
    case Kind::Embedded: {
      if (field.count == 1) return FieldsJson(*field.record, blobs, blobName, path + "." + field.name, at);
      std::string items = "[";
      for (size_t i = 0; i < field.count; ++i) {
        if (i > 0) items += ",";
        items += FieldsJson(*field.record, blobs, blobName, path + "." + layout::EntryName(field, i),
                            at + i * field.record->size);
      }
      return items + "]";
    }
    case Kind::Bytes:
      return at + field.count <= bytes.size() ? json::Hex(bytes.data() + at, field.count) : "null";
    case Kind::Wide: return WideJson(bytes, at, field.count);
    case Kind::Pointer: {
      const uint64_t address = layout::UnsignedAt(bytes, at, 8);
      if (!layout::Followed(field) || address == 0) return address == 0 ? "null" : Address(address);
      return PointeeJson(field, blobs, path + "." + field.name);
    }
    default: return ScalarJson(field, bytes, at);
  }
}

std::string FieldsJson(const Record& record, const BlobSet& blobs, const std::string& blobName,
                       const std::string& path, size_t base) {
  const std::vector<uint8_t>& bytes = blobs.captured(blobName).bytes;
  std::string out = "{";
  bool first = true;
  for (const Field& field : record.fields) {
    if (!layout::Applies(field, bytes, base)) continue;
    if (!first) out += ",";
    first = false;
    out += json::Quote(field.name) + ":" + FieldJson(field, blobs, blobName, path, base);
  }
  return out + "}";
}

std::string BlobsJson(const BlobSet& blobs) {
  std::string out = "{";
  bool first = true;
  for (const auto& [name, blob] : blobs.all()) {
    if (!first) out += ",";
    first = false;
    out += json::Quote(name) + ":" + BlobJson(blob);
  }
  return out + "}";
}

std::string DecodedJson(const api::FunctionSpec& fn, const uint64_t* args, const BlobSet& blobs, bool outputs) {
  std::string out = "{";
  bool first = true;
  for (const api::ArgSpec& arg : fn.args) {
    const layout::Record* record = api::RecordOf(fn, arg, args);
    if (record == nullptr || (outputs && !api::IsOutput(arg))) continue;
    if (!outputs && arg.kind == api::Arg::TagArray) continue;  // filled by the call
    const bool array = arg.kind == api::Arg::TagArray || arg.kind == api::Arg::TagList;
    if (!array && !blobs.captured(arg.name).present) continue;
    if (!first) out += ",";
    first = false;
    out += json::Quote(arg.name) + ":";
    if (!array) {
      const Blob& blob = blobs.captured(arg.name);
      out += blob.faulted ? "\"fault\"" : DecodeRecord(*record, blobs, arg.name);
      continue;
    }
    out += "[";
    for (size_t i = 0; blobs.captured(api::TagEntryName(arg, i)).present; ++i) {
      if (i > 0) out += ",";
      out += DecodeRecord(*arg.record, blobs, api::TagEntryName(arg, i));
    }
    out += "]";
  }
  return out + "}";
}

std::string ArgJson(const api::ArgSpec& arg, uint64_t raw) {
  std::string out = "{\"name\":" + json::Quote(arg.name);
  if (arg.kind == api::Arg::Int) {
    return out + ",\"value\":" +
           (arg.isSigned ? std::to_string(api::SignedValue(arg, raw)) : std::to_string(api::UnsignedValue(arg, raw))) +
           "}";
  }
  return out + ",\"pointer\":" + Address(raw) + "}";
}

Blob BlobFromJson(const json::Value& value, bool* ok) {
  Blob blob;
  if (value.isNull()) return blob;
  blob.present = true;
  if (value.type != json::Value::Type::String) {
    *ok = false;
    return blob;
  }
  if (value.text == "fault") {
    blob.faulted = true;
    return blob;
  }
  std::optional<std::vector<uint8_t>> bytes = json::FromHex(value.text);
  if (!bytes) *ok = false;
  blob.bytes = bytes.value_or(std::vector<uint8_t>{});
  return blob;
}

bool BlobsFromJson(const json::Value* object, std::map<std::string, Blob>* blobs, std::string* error,
                   const char* what) {
  if (object == nullptr) return true;
  if (object->type != json::Value::Type::Object) {
    *error = std::string("\"") + what + "\" is not an object";
    return false;
  }
  for (const auto& [name, value] : object->members) {
    bool ok = true;
    (*blobs)[name] = BlobFromJson(value, &ok);
    if (!ok) {
      *error = std::string("\"") + what + "\": blob " + name + " is not hexadecimal bytes";
      return false;
    }
  }
  return true;
}

}  // namespace

std::string DecodeRecord(const Record& record, const BlobSet& blobs, const std::string& name) {
  return FieldsJson(record, blobs, name, name, 0);
}

std::string ToJsonLine(const Entry& e) {
  std::string line = "{\"seq\":" + std::to_string(e.seq) + ",\"time\":" + Timestamp(e.wallNanos) +
                     ",\"thread\":" + std::to_string(e.thread) + ",\"function\":" + json::Quote(e.fn->name) +
                     ",\"duration_ns\":" + std::to_string(e.durationNanos);
  switch (e.fn->result) {
    case api::Result::Status: line += ",\"status\":" + std::to_string(static_cast<int32_t>(e.result)); break;
    case api::Result::Int64: line += ",\"result\":" + std::to_string(static_cast<int64_t>(e.result)); break;
    case api::Result::Pointer:
    case api::Result::WideText: line += ",\"result\":" + Address(e.result); break;
  }
  line += ",\"args\":[";
  for (size_t i = 0; i < e.fn->args.size(); ++i) {
    if (i > 0) line += ",";
    line += ArgJson(e.fn->args[i], e.args[i]);
  }
  line += "],\"in\":" + BlobsJson(e.in) + ",\"out\":" + BlobsJson(e.out);
  line += ",\"decoded\":{\"in\":" + DecodedJson(*e.fn, e.args, e.in, false) + ",\"out\":" + DecodedJson(*e.fn, e.args, e.out, true) +
          "}}";
  return line;
}

bool FromJson(const json::Value& line, TracedCall* call, std::string* error) {
  if (line.type != json::Value::Type::Object) {
    *error = "not a JSON object";
    return false;
  }
  call->function = line.string("function");
  if (call->function.empty()) {
    *error = "no \"function\"";
    return false;
  }
  call->seq = line.unsignedInteger("seq");
  call->durationNanos = line.integer("duration_ns");
  const json::Value* status = line.find("status");
  const json::Value* result = line.find("result");
  call->hasStatus = status != nullptr;
  if (status != nullptr) {
    call->result = line.integer("status");
  } else if (result != nullptr && result->type == json::Value::Type::String) {
    call->result = static_cast<int64_t>(std::strtoull(result->text.c_str(), nullptr, 16));
  } else {
    call->result = line.integer("result");
  }
  const json::Value* args = line.find("args");
  if (args == nullptr || args->type != json::Value::Type::Array) {
    *error = "no \"args\" array";
    return false;
  }
  for (const json::Value& arg : args->items) {
    TracedArg traced;
    traced.name = arg.string("name");
    const json::Value* pointer = arg.find("pointer");
    traced.pointer = pointer != nullptr;
    traced.value = traced.pointer ? std::strtoull(arg.string("pointer").c_str(), nullptr, 16)
                                  : static_cast<uint64_t>(arg.integer("value"));
    call->args.push_back(traced);
  }
  return BlobsFromJson(line.find("in"), &call->in, error, "in") &&
         BlobsFromJson(line.find("out"), &call->out, error, "out");
}

}  // namespace sim::trace
