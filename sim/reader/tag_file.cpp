// Parser of the tag list text: one tag a line, '#' starts a comment, fields
// "KEY=value" separated by blanks:
//   EPC=hex (required, whole words)  TID=hex  USER=hex  ACCESS=hex8  KILL=hex8
//   XPC=hex (up to 8 digits)  ANT=1,3  RSSI=-52 or one value per antenna
//   EAS=0|1  LOCK=EPC:locked,USER:permalocked  PERMALOCK=USER:0-3,6  KILLED=0|1
#include <cctype>
#include <set>
#include <sstream>
#include <stdexcept>

#include "reader/population.h"

namespace sim {
namespace {

// A problem with the line being parsed; the caller adds the line number.
struct LineError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (lower >= 'a' && lower <= 'f') return lower - 'a' + 10;
  return -1;
}

Bytes parseHex(const std::string& key, const std::string& text) {
  if (text.size() % 2 != 0) throw LineError("odd number of hex digits in " + key);
  Bytes bytes;
  for (size_t i = 0; i < text.size(); i += 2) {
    const int hi = hexDigit(text[i]);
    const int lo = hexDigit(text[i + 1]);
    if (hi < 0 || lo < 0) throw LineError("bad hex digit in " + key);
    bytes.push_back(static_cast<uint8_t>(hi * 16 + lo));
  }
  return bytes;
}

uint32_t parseHexWord(const std::string& key, const std::string& text) {
  if (text.empty() || text.size() > 8) throw LineError(key + " needs 1 to 8 hex digits");
  uint32_t value = 0;
  for (char c : text) {
    const int d = hexDigit(c);
    if (d < 0) throw LineError("bad hex digit in " + key);
    value = value * 16 + static_cast<uint32_t>(d);
  }
  return value;
}

uint32_t parsePassword(const std::string& key, const std::string& text) {
  if (text.size() != 8) throw LineError(key + " needs exactly 8 hex digits");
  return parseHexWord(key, text);
}

long parseNumber(const std::string& key, const std::string& text, long low, long high) {
  size_t used = 0;
  long value = 0;
  try {
    value = std::stol(text, &used);
  } catch (const std::exception&) {
    used = 0;
  }
  if (used == 0 || used != text.size() || value < low || value > high) {
    throw LineError(key + " must be a number from " + std::to_string(low) + " to " +
                    std::to_string(high));
  }
  return value;
}

std::vector<long> parseNumberList(const std::string& key, const std::string& text, long low,
                                  long high) {
  std::vector<long> values;
  std::stringstream in(text);
  std::string item;
  while (std::getline(in, item, ',')) values.push_back(parseNumber(key, item, low, high));
  if (values.empty() || text.back() == ',') throw LineError(key + " has an empty entry");
  return values;
}

struct TagFields {
  std::map<std::string, std::string> values;

  bool has(const std::string& key) const { return values.count(key) > 0; }
  const std::string& get(const std::string& key) const { return values.at(key); }
};

TagFields splitFields(const std::string& line) {
  static const std::set<std::string> kKeys = {"EPC", "TID", "USER", "ACCESS", "KILL",
                                              "XPC", "ANT", "RSSI", "EAS", "LOCK", "PERMALOCK",
                                              "KILLED"};
  TagFields fields;
  std::stringstream in(line);
  std::string token;
  while (in >> token) {
    const size_t eq = token.find('=');
    if (eq == std::string::npos) throw LineError("'" + token + "' is not KEY=value");
    const std::string key = token.substr(0, eq);
    if (kKeys.count(key) == 0) throw LineError("unknown key " + key);
    if (fields.has(key)) throw LineError("key " + key + " given twice");
    fields.values[key] = token.substr(eq + 1);
  }
  return fields;
}

Bytes parseEpc(const TagFields& fields) {
  if (!fields.has("EPC")) throw LineError("no EPC");
  Bytes epc = parseHex("EPC", fields.get("EPC"));
  if (epc.empty() || epc.size() % 2 != 0 || epc.size() > 62) {
    throw LineError("EPC must be 1 to 31 whole words (4 to 124 hex digits, a multiple of 4)");
  }
  return epc;
}

std::map<uint16_t, int8_t> parseField(const TagFields& fields) {
  const std::string antennas = fields.has("ANT") ? fields.get("ANT") : "1";
  const std::string rssi = fields.has("RSSI") ? fields.get("RSSI") : "-50";
  const std::vector<long> ant = parseNumberList("ANT", antennas, 1, kAntennaCount);
  const std::vector<long> dbm = parseNumberList("RSSI", rssi, -128, 127);
  if (dbm.size() != 1 && dbm.size() != ant.size()) {
    throw LineError("RSSI needs one value or one per antenna of ANT");
  }
  std::map<uint16_t, int8_t> field;
  for (size_t i = 0; i < ant.size(); ++i) {
    field[static_cast<uint16_t>(ant[i])] = static_cast<int8_t>(dbm.size() == 1 ? dbm[0] : dbm[i]);
  }
  return field;
}

std::vector<std::string> splitList(const std::string& text) {
  std::vector<std::string> items;
  std::stringstream in(text);
  std::string item;
  while (std::getline(in, item, ',')) items.push_back(item);
  if (!text.empty() && text.back() == ',') items.push_back("");
  return items;
}

LockState parseLockState(const std::string& text) {
  for (LockState state : {LockState::kUnlocked, LockState::kLocked, LockState::kPermalocked,
                          LockState::kPermaUnlocked}) {
    if (text == lockStateName(state)) return state;
  }
  throw LineError("unknown lock state '" + text + "' (unlocked, locked, permalocked or permaunlocked)");
}

LockField parseLockField(const std::string& text) {
  for (size_t i = 0; i < kLockFieldCount; ++i) {
    if (text == lockFieldKey(static_cast<LockField>(i))) return static_cast<LockField>(i);
  }
  throw LineError("unknown LOCK field '" + text + "' (KILL, ACCESS, EPC, TID or USER)");
}

// LOCK=EPC:locked,USER:permalocked
void parseLocks(const std::string& text, TagLocks* locks) {
  std::set<LockField> seen;
  for (const std::string& item : splitList(text)) {
    const size_t colon = item.find(':');
    if (colon == std::string::npos) throw LineError("LOCK needs FIELD:state pairs, as EPC:locked");
    const LockField field = parseLockField(item.substr(0, colon));
    if (!seen.insert(field).second) throw LineError(std::string("LOCK names ") + lockFieldKey(field) + " twice");
    locks->fields[field] = parseLockState(item.substr(colon + 1));
  }
}

// PERMALOCK=USER:0-3,6: USER blocks of one word each.
std::set<uint16_t> parsePermalock(const std::string& text, size_t userBytes) {
  const std::string prefix = "USER:";
  if (text.compare(0, prefix.size(), prefix) != 0) throw LineError("PERMALOCK needs USER:blocks, as USER:0-3,6");
  const long words = static_cast<long>(userBytes / 2);
  if (words == 0) throw LineError("PERMALOCK needs USER memory");
  std::set<uint16_t> blocks;
  for (const std::string& item : splitList(text.substr(prefix.size()))) {
    const size_t dash = item.find('-');
    const long first = parseNumber("PERMALOCK block", item.substr(0, dash), 0, words - 1);
    const long last =
        dash == std::string::npos ? first : parseNumber("PERMALOCK block", item.substr(dash + 1), first, words - 1);
    for (long b = first; b <= last; ++b) blocks.insert(static_cast<uint16_t>(b));
  }
  return blocks;
}

SimTag parseTag(const TagFields& fields) {
  SimTag tag;
  tag.epc = parseEpc(fields);
  if (fields.has("TID")) tag.tid = parseHex("TID", fields.get("TID"));
  if (fields.has("USER")) tag.user = parseHex("USER", fields.get("USER"));
  if (fields.has("ACCESS")) tag.accessPassword = parsePassword("ACCESS", fields.get("ACCESS"));
  if (fields.has("KILL")) tag.killPassword = parsePassword("KILL", fields.get("KILL"));
  if (fields.has("XPC")) tag.xpc = parseHexWord("XPC", fields.get("XPC"));
  if (fields.has("EAS")) tag.eas = parseNumber("EAS", fields.get("EAS"), 0, 1) == 1;
  tag.rssiByAntenna = parseField(fields);
  if (fields.has("LOCK")) parseLocks(fields.get("LOCK"), &tag.locks);
  if (fields.has("PERMALOCK")) tag.locks.permalockedBlocks = parsePermalock(fields.get("PERMALOCK"), tag.user.size());
  if (fields.has("KILLED") && parseNumber("KILLED", fields.get("KILLED"), 0, 1) == 1) {
    tag.killed = true;
    tag.rssiByAntenna.clear();
  }
  completeProtocolWords(tag);
  return tag;
}

std::string withoutComment(std::string line) {
  const size_t hash = line.find('#');
  if (hash != std::string::npos) line.erase(hash);
  return line;
}

bool blank(const std::string& line) {
  return line.find_first_not_of(" \t\r\v\f") == std::string::npos;
}

}  // namespace

ParsedPopulation parseTagList(const std::string& text) {
  ParsedPopulation result;
  std::stringstream in(text);
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    line = withoutComment(line);
    if (blank(line)) continue;
    try {
      result.tags.push_back(parseTag(splitFields(line)));
    } catch (const LineError& e) {
      return {{}, "line " + std::to_string(number) + ": " + e.what()};
    }
  }
  if (result.tags.empty()) result.error = "no tags";
  return result;
}

}  // namespace sim
