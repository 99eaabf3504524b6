#include "record/json.h"

#include <cctype>
#include <cstdlib>
#include <string>

namespace sim::json {

std::string Quote(const std::string& text) {
  static const char kDigits[] = "0123456789abcdef";
  std::string out = "\"";
  for (unsigned char c : text) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c < 0x20) {
      out += "\\u00";
      out += kDigits[c >> 4];
      out += kDigits[c & 15];
    } else {
      out += static_cast<char>(c);
    }
  }
  return out + "\"";
}

std::string Hex(const uint8_t* bytes, size_t n) {
  static const char kDigits[] = "0123456789abcdef";
  std::string out;
  out.reserve(n * 2 + 2);
  out += '"';
  for (size_t i = 0; i < n; ++i) {
    out += kDigits[bytes[i] >> 4];
    out += kDigits[bytes[i] & 15];
  }
  return out + '"';
}

std::optional<std::vector<uint8_t>> FromHex(const std::string& hex) {
  auto digit = [](char c) -> int {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
  };
  if (hex.size() % 2 != 0) return std::nullopt;
  std::vector<uint8_t> bytes(hex.size() / 2);
  for (size_t i = 0; i < bytes.size(); ++i) {
    int hi = digit(hex[2 * i]);
    int lo = digit(hex[2 * i + 1]);
    if (hi < 0 || lo < 0) return std::nullopt;
    bytes[i] = static_cast<uint8_t>(hi << 4 | lo);
  }
  return bytes;
}

const Value* Value::find(const std::string& name) const {
  for (const auto& member : members) {
    if (member.first == name) return &member.second;
  }
  return nullptr;
}

int64_t Value::integer(const std::string& name, int64_t fallback) const {
  const Value* v = find(name);
  if (v == nullptr || v->type != Type::Number) return fallback;
  return std::strtoll(v->text.c_str(), nullptr, 10);
}

uint64_t Value::unsignedInteger(const std::string& name, uint64_t fallback) const {
  const Value* v = find(name);
  if (v == nullptr || v->type != Type::Number) return fallback;
  return std::strtoull(v->text.c_str(), nullptr, 10);
}

std::string Value::string(const std::string& name, const std::string& fallback) const {
  const Value* v = find(name);
  return v == nullptr || v->type != Type::String ? fallback : v->text;
}

namespace {

class Parser {
 public:
  explicit Parser(const std::string& text) : text_(text) {}

  ParseResult run() {
    Value value;
    if (!parseValue(&value, 0)) return {std::nullopt, error_};
    skipSpace();
    if (at_ != text_.size()) return {std::nullopt, failure("text after the value")};
    return {std::move(value), ""};
  }

 private:
  static constexpr int kMaxDepth = 64;

  const std::string& text_;
  size_t at_ = 0;
  std::string error_;

  std::string failure(const std::string& what) { return what + " at column " + std::to_string(at_ + 1); }
  bool fail(const std::string& what) {
    error_ = failure(what);
    return false;
  }

  void skipSpace() {
    while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t' || text_[at_] == '\r' || text_[at_] == '\n')) ++at_;
  }

  bool literal(const char* word) {
    size_t n = std::char_traits<char>::length(word);
    if (text_.compare(at_, n, word) != 0) return fail("unknown word");
    at_ += n;
    return true;
  }

  bool parseValue(Value* out, int depth) {
    if (depth > kMaxDepth) return fail("nesting too deep");
    skipSpace();
    if (at_ >= text_.size()) return fail("unexpected end of line");
    char c = text_[at_];
    if (c == '{') return parseObject(out, depth);
    if (c == '[') return parseArray(out, depth);
    if (c == '"') {
      out->type = Value::Type::String;
      return parseString(&out->text);
    }
    if (c == 't' || c == 'f') {
      out->type = Value::Type::Bool;
      out->boolean = c == 't';
      return literal(c == 't' ? "true" : "false");
    }
    if (c == 'n') return literal("null");
    if (c == '-' || (c >= '0' && c <= '9')) return parseNumber(out);
    return fail(std::string("unexpected character '") + c + "'");
  }

  bool parseNumber(Value* out) {
    size_t start = at_;
    if (text_[at_] == '-') ++at_;
    while (at_ < text_.size() && (std::isdigit(static_cast<unsigned char>(text_[at_])) || text_[at_] == '.' ||
                                  text_[at_] == 'e' || text_[at_] == 'E' || text_[at_] == '+' || text_[at_] == '-')) {
      ++at_;
    }
    out->type = Value::Type::Number;
    out->text = text_.substr(start, at_ - start);
    if (out->text == "-") return fail("malformed number");
    return true;
  }

  bool parseString(std::string* out) {
    ++at_;  // the opening quote
    while (at_ < text_.size()) {
      char c = text_[at_++];
      if (c == '"') return true;
      if (c != '\\') {
        *out += c;
        continue;
      }
      if (at_ >= text_.size()) break;
      char e = text_[at_++];
      switch (e) {
        case '"': case '\\': case '/': *out += e; break;
        case 'n': *out += '\n'; break;
        case 't': *out += '\t'; break;
        case 'r': *out += '\r'; break;
        case 'b': *out += '\b'; break;
        case 'f': *out += '\f'; break;
        case 'u': {
          if (at_ + 4 > text_.size()) return fail("short \\u escape");
          unsigned code = 0;
          for (int i = 0; i < 4; ++i) {
            char h = text_[at_++];
            int d = std::isdigit(static_cast<unsigned char>(h)) ? h - '0'
                    : (h >= 'a' && h <= 'f')                    ? h - 'a' + 10
                    : (h >= 'A' && h <= 'F')                    ? h - 'A' + 10
                                                                : -1;
            if (d < 0) return fail("malformed \\u escape");
            code = code << 4 | static_cast<unsigned>(d);
          }
          if (code < 0x80) {
            *out += static_cast<char>(code);
          } else if (code < 0x800) {
            *out += static_cast<char>(0xC0 | code >> 6);
            *out += static_cast<char>(0x80 | (code & 0x3F));
          } else {
            *out += static_cast<char>(0xE0 | code >> 12);
            *out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
            *out += static_cast<char>(0x80 | (code & 0x3F));
          }
          break;
        }
        default: return fail("unknown escape");
      }
    }
    return fail("unterminated string");
  }

  bool parseArray(Value* out, int depth) {
    out->type = Value::Type::Array;
    ++at_;
    skipSpace();
    if (at_ < text_.size() && text_[at_] == ']') {
      ++at_;
      return true;
    }
    for (;;) {
      Value item;
      if (!parseValue(&item, depth + 1)) return false;
      out->items.push_back(std::move(item));
      skipSpace();
      if (at_ < text_.size() && text_[at_] == ',') {
        ++at_;
        continue;
      }
      if (at_ < text_.size() && text_[at_] == ']') {
        ++at_;
        return true;
      }
      return fail("expected ',' or ']'");
    }
  }

  bool parseObject(Value* out, int depth) {
    out->type = Value::Type::Object;
    ++at_;
    skipSpace();
    if (at_ < text_.size() && text_[at_] == '}') {
      ++at_;
      return true;
    }
    for (;;) {
      skipSpace();
      if (at_ >= text_.size() || text_[at_] != '"') return fail("expected a member name");
      std::string name;
      if (!parseString(&name)) return false;
      skipSpace();
      if (at_ >= text_.size() || text_[at_] != ':') return fail("expected ':'");
      ++at_;
      Value member;
      if (!parseValue(&member, depth + 1)) return false;
      out->members.emplace_back(std::move(name), std::move(member));
      skipSpace();
      if (at_ < text_.size() && text_[at_] == ',') {
        ++at_;
        continue;
      }
      if (at_ < text_.size() && text_[at_] == '}') {
        ++at_;
        return true;
      }
      return fail("expected ',' or '}'");
    }
  }
};

}  // namespace

ParseResult Parse(const std::string& text) { return Parser(text).run(); }

}  // namespace sim::json
