#include "checks.h"

#include <algorithm>

#include "symbol_names.h"

namespace orla::check {
namespace {

std::string Described(const std::string& symbol) {
  const std::string readable = Demangle(symbol);
  return readable == symbol ? symbol : symbol + "  [" + readable + "]";
}

bool Contains(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

std::vector<std::string> MangledExportsOf(const ElfImage& image, const std::string& plain) {
  std::vector<std::string> found;
  for (const DynamicSymbol& s : image.symbols) {
    if (IsMangledFunctionName(s.name, plain) && FindExport(image, s.name) != nullptr) found.push_back(s.name);
  }
  return found;
}

void CheckNative(const ElfImage& library, const std::string& native, std::vector<std::string>* problems) {
  const bool plain = FindExport(library, native) != nullptr;
  if (!Contains(MangledOnlyNatives(), native)) {
    if (!plain) problems->push_back("native not exported under its JNI name: " + native);
    return;
  }
  if (plain) problems->push_back("native exported under its plain JNI name, expected its C++ name only: " + native);
  if (MangledExportsOf(library, native).empty()) {
    problems->push_back("native not exported under its C++ name: " + native);
  }
}

}  // namespace

const std::vector<std::string>& MangledOnlyNatives() {
  static const std::vector<std::string> natives = {
      "Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationStatus",
      "Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetPowerNegotiationState",
      "Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationState",
  };
  return natives;
}

std::vector<std::string> CheckReaderApi(const ElfImage& library, const ElfImage& reader_api,
                                        const std::set<std::string>& providedElsewhere) {
  std::vector<std::string> problems;
  if (library.machine != reader_api.machine) {
    problems.push_back("built for another machine (ELF machine " + std::to_string(reader_api.machine) +
                       ", the library is " + std::to_string(library.machine) + ")");
  }
  for (const std::string& name : RequiredImports(library, providedElsewhere)) {
    if (FindExport(reader_api, name) == nullptr) problems.push_back("missing function: " + Described(name));
  }
  return problems;
}

std::vector<std::string> CheckLibrary(const ElfImage& library, const std::vector<std::string>& natives) {
  std::vector<std::string> problems;
  for (const std::string& native : natives) CheckNative(library, native, &problems);
  if (!Contains(library.needed, kReaderApiSoname)) {
    problems.push_back(std::string("NEEDED does not name ") + kReaderApiSoname);
  }
  if (!library.runpath) {
    problems.push_back(std::string("no RUNPATH, expected ") + kReaderRunpath);
  } else if (*library.runpath != kReaderRunpath) {
    problems.push_back("RUNPATH is " + *library.runpath + ", expected " + kReaderRunpath);
  }
  if (library.rpath) problems.push_back("has an RPATH (" + *library.rpath + "), expected a RUNPATH only");
  return problems;
}

}  // namespace orla::check
