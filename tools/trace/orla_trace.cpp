// orla-trace: prints a call trace written by libhalyard-trace.so readably,
// one call a line with its records indented below it.
//
//   orla-trace [--function NAME] [--handle N] [--raw] [FILE]
//
// A malformed line is reported with its line number on stderr and skipped;
// the exit status is then 1. Usage errors and an unreadable file exit 2.
#include <fstream>
#include <iostream>
#include <string>

#include "record/api_functions.h"
#include "record/json.h"

namespace {

using sim::json::Value;

const char kUsage[] =
    "usage: orla-trace [--function NAME] [--handle N] [--raw] [FILE]\n"
    "Prints a trace of libhalyard-trace.so (HALYARD_TRACE_FILE) readably, one call\n"
    "a line, records by field name indented below it. Without FILE, reads stdin.\n"
    "  --function NAME  only calls of this C function (e.g. RFID_PerformInventory)\n"
    "  --handle N       only calls whose reader handle argument is N\n"
    "  --raw            also print every captured blob as hexadecimal bytes\n";

struct Options {
  std::string function;
  bool byHandle = false;
  long long handle = 0;
  bool raw = false;
  std::string file;
};

std::string Scalar(const Value& v) {
  switch (v.type) {
    case Value::Type::Null: return "null";
    case Value::Type::Bool: return v.boolean ? "true" : "false";
    case Value::Type::Number: return v.text;
    case Value::Type::String: return v.text;
    default: return "";
  }
}

bool IsScalar(const Value& v) { return v.type != Value::Type::Object && v.type != Value::Type::Array; }

// A captured wide string argument as text, other captures as they stand.
std::string Shown(const std::string& function, const std::string& name, const Value& value) {
  const sim::api::FunctionSpec* fn = sim::api::FindFunction(function);
  bool wide = false;
  for (size_t i = 0; fn != nullptr && i < fn->args.size(); ++i) {
    wide = wide || (fn->args[i].kind == sim::api::Arg::Wide && name == fn->args[i].name);
  }
  wide = wide || (fn != nullptr && fn->result == sim::api::Result::WideText && name == "result");
  std::optional<std::vector<uint8_t>> bytes =
      wide && value.type == Value::Type::String ? sim::json::FromHex(value.text) : std::nullopt;
  if (!bytes) return Scalar(value);
  std::string text;
  for (size_t i = 0; i + 4 <= bytes->size(); i += 4) {
    const uint32_t c = (*bytes)[i] | (*bytes)[i + 1] << 8 | (*bytes)[i + 2] << 16 | static_cast<uint32_t>((*bytes)[i + 3]) << 24;
    text += c >= 0x20 && c < 0x7f ? static_cast<char>(c) : '?';
  }
  return sim::json::Quote(text);
}

// Scalars of an object on one line; nested objects and arrays below, deeper.
void PrintObject(std::ostream& out, const Value& object, const std::string& indent) {
  std::string line;
  for (const auto& [name, value] : object.members) {
    if (!IsScalar(value)) continue;
    line += (line.empty() ? "" : " ") + name + "=" + Scalar(value);
  }
  if (!line.empty()) out << indent << line << "\n";
  for (const auto& [name, value] : object.members) {
    if (IsScalar(value)) continue;
    if (value.type == Value::Type::Object) {
      out << indent << name << ":\n";
      PrintObject(out, value, indent + "  ");
      continue;
    }
    for (size_t i = 0; i < value.items.size(); ++i) {
      out << indent << name << "[" << i << "]:";
      if (IsScalar(value.items[i])) {
        out << " " << Scalar(value.items[i]) << "\n";
      } else {
        out << "\n";
        PrintObject(out, value.items[i], indent + "  ");
      }
    }
  }
}

bool Selected(const Value& call, const Options& options) {
  if (!options.function.empty() && call.string("function") != options.function) return false;
  if (!options.byHandle) return true;
  const Value* args = call.find("args");
  if (args == nullptr) return false;
  for (const Value& arg : args->items) {
    if (arg.string("name") == "handle" && arg.find("value") != nullptr && arg.integer("value") == options.handle) {
      return true;
    }
  }
  return false;
}

void PrintCall(std::ostream& out, const Value& call, const Options& options) {
  std::string time = call.string("time");
  if (time.size() > 11) time = time.substr(11);  // the time of day
  out << "#" << call.integer("seq") << " " << time << " [" << call.integer("thread") << "] "
      << call.string("function") << "(";
  if (const Value* args = call.find("args")) {
    for (size_t i = 0; i < args->items.size(); ++i) {
      const Value& arg = args->items[i];
      const Value* value = arg.find("value");
      out << (i > 0 ? ", " : "") << arg.string("name") << "="
          << (value != nullptr ? Scalar(*value) : arg.string("pointer"));
    }
  }
  out << ")";
  if (const Value* status = call.find("status")) out << " = " << Scalar(*status);
  if (const Value* result = call.find("result")) out << " = " << Scalar(*result);
  out << "  " << call.integer("duration_ns") / 1000.0 << " us\n";

  const Value* decoded = call.find("decoded");
  for (const char* side : {"in", "out"}) {
    const Value* records = decoded != nullptr ? decoded->find(side) : nullptr;
    if (records != nullptr) {
      for (const auto& [name, value] : records->members) {
        out << "    " << side << " " << name << ":";
        if (IsScalar(value)) {
          out << " " << Scalar(value) << "\n";
          continue;
        }
        out << "\n";
        if (value.type == Value::Type::Object) {
          PrintObject(out, value, "      ");
          continue;
        }
        for (size_t i = 0; i < value.items.size(); ++i) {
          out << "      [" << i << "]\n";
          PrintObject(out, value.items[i], "        ");
        }
      }
    }
    // Captures that are no record argument: byte buffers, strings, scalars.
    const Value* blobs = call.find(side);
    if (blobs == nullptr) continue;
    for (const auto& [name, value] : blobs->members) {
      const bool decodedAbove = records != nullptr && records->find(name.substr(0, name.find_first_of(".["))) != nullptr;
      if (!options.raw && decodedAbove) continue;
      out << "    " << side << " " << name << " = " << Shown(call.string("function"), name, value) << "\n";
    }
  }
}

int ParseOptions(int argc, char** argv, Options* options) {
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--help" || arg == "-h") {
      std::cout << kUsage;
      return 0;
    }
    if (arg == "--raw") {
      options->raw = true;
    } else if (arg == "--function" || arg == "--handle") {
      if (i + 1 >= argc) {
        std::cerr << "orla-trace: " << arg << " needs a value\n" << kUsage;
        return 2;
      }
      const std::string value = argv[++i];
      if (arg == "--function") {
        options->function = value;
        continue;
      }
      size_t used = 0;
      try {
        options->handle = std::stoll(value, &used, 0);
      } catch (const std::exception&) {
        used = 0;
      }
      if (used == 0 || used != value.size()) {
        std::cerr << "orla-trace: --handle needs a number, not " << value << "\n";
        return 2;
      }
      options->byHandle = true;
    } else if (!arg.empty() && arg[0] == '-' && arg != "-") {
      std::cerr << "orla-trace: unknown option " << arg << "\n" << kUsage;
      return 2;
    } else if (options->file.empty()) {
      options->file = arg;
    } else {
      std::cerr << "orla-trace: one trace file at a time\n" << kUsage;
      return 2;
    }
  }
  return -1;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (int status = ParseOptions(argc, argv, &options); status >= 0) return status;
  std::ifstream file;
  if (!options.file.empty() && options.file != "-") {
    file.open(options.file);
    if (!file) {
      std::cerr << "orla-trace: cannot open " << options.file << "\n";
      return 2;
    }
  }
  std::istream& in = file.is_open() ? file : std::cin;
  const std::string source = options.file.empty() ? "stdin" : options.file;
  int malformed = 0;
  size_t number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    sim::json::ParseResult parsed = sim::json::Parse(line);
    if (!parsed.value || parsed.value->type != Value::Type::Object || parsed.value->string("function").empty()) {
      std::cerr << source << ":" << number << ": malformed trace line: "
                << (parsed.value ? "not a call" : parsed.error) << "\n";
      ++malformed;
      continue;
    }
    if (Selected(*parsed.value, options)) PrintCall(std::cout, *parsed.value, options);
  }
  return malformed > 0 ? 1 : 0;
}
