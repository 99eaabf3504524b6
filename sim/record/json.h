// The little JSON the call trace needs: writing values into a line, and
// reading a line back into a tree. Numbers are kept as the text they were
// written as, so 64-bit values survive the round trip.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace sim::json {

// --- writing ---

// The string as a quoted JSON string.
std::string Quote(const std::string& text);
// Bytes as a quoted string of lower-case hexadecimal digit pairs.
std::string Hex(const uint8_t* bytes, size_t n);
inline std::string Hex(const std::vector<uint8_t>& bytes) { return Hex(bytes.data(), bytes.size()); }

// --- reading ---

struct Value {
  enum class Type { Null, Bool, Number, String, Array, Object };
  Type type = Type::Null;
  bool boolean = false;
  std::string text;  // Number: its digits; String: the decoded text
  std::vector<Value> items;
  std::vector<std::pair<std::string, Value>> members;  // in the order written

  bool isNull() const { return type == Type::Null; }
  // The member of that name, or nullptr (also when this is no object).
  const Value* find(const std::string& name) const;
  // A number member read as an integer; fallback when missing or not one.
  int64_t integer(const std::string& name, int64_t fallback = 0) const;
  uint64_t unsignedInteger(const std::string& name, uint64_t fallback = 0) const;
  std::string string(const std::string& name, const std::string& fallback = "") const;
};

struct ParseResult {
  std::optional<Value> value;
  std::string error;  // with the column where it went wrong
};

ParseResult Parse(const std::string& text);

// Hexadecimal digit pairs back into bytes; nullopt when malformed.
std::optional<std::vector<uint8_t>> FromHex(const std::string& hex);

}  // namespace sim::json
