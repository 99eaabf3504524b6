// orla-check: will liborlajni.so load and link on this reader?
//
// Checks the reader's libhalyard.so against the functions liborlajni.so
// imports (read from the library's own dynamic symbol table), and the
// library's exports, NEEDED entry and RUNPATH. Exit 0 when every check
// passes, 1 when one fails, 2 on bad usage or an unreadable or non-ELF file.
#include <unistd.h>

#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "checks.h"
#include "dependencies.h"
#include "elf_image.h"
#include "jni_natives.h"

namespace {

using orla::check::ElfImage;
using orla::check::ElfResult;

constexpr int kPass = 0;
constexpr int kFail = 1;
constexpr int kUsage = 2;

const char kUsageText[] =
    "usage: orla-check [--library PATH] [--reader-api PATH] [--list-imports]\n"
    "\n"
    "Checks that liborlajni.so will load and link on this reader:\n"
    "  - every function the library imports from the reader's C API is exported\n"
    "    by the reader's libhalyard.so;\n"
    "  - the library exports every native of ORLANatives under its JNI name (the\n"
    "    three power-negotiation natives under their C++ names only), needs\n"
    "    libhalyard.so and has the RUNPATH /platform/lib:/usr/lib:/apps/bin/libs.\n"
    "\n"
    "  --library PATH     the JNI library (default: the first liborlajni.so in\n"
    "                     /apps/bin/libs, /usr/lib, /platform/lib)\n"
    "  --reader-api PATH  the reader's C API (default: the first libhalyard.so in\n"
    "                     the library's search path /platform/lib, /usr/lib,\n"
    "                     /apps/bin/libs, the one the loader would find)\n"
    "  --list-imports     print the functions the library imports from the C API\n"
    "                     and exit\n"
    "  --help             print this text\n"
    "\n"
    "Exit status: 0 all checks pass, 1 a check fails, 2 bad usage or a file\n"
    "that cannot be read or is not an ELF64 library.\n";

struct Options {
  std::string library;
  std::string reader_api;
  bool list_imports = false;
};

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::stringstream in(text);
  for (std::string part; std::getline(in, part, separator);) parts.push_back(part);
  return parts;
}

// The first directory of dirs holding file, or "" when none does.
std::string FirstFound(const std::vector<std::string>& dirs, const std::string& file) {
  for (const std::string& dir : dirs) {
    const std::string path = dir + "/" + file;
    if (access(path.c_str(), F_OK) == 0) return path;
  }
  return "";
}

// Returns kPass to go on, or the exit status.
int ParseOptions(int argc, char** argv, Options* options) {
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--help" || arg == "-h") {
      std::cout << kUsageText;
      return -1;
    }
    if (arg == "--list-imports") {
      options->list_imports = true;
      continue;
    }
    if (arg == "--library" || arg == "--reader-api") {
      if (i + 1 >= argc) {
        std::cerr << "orla-check: " << arg << " needs a path\n" << kUsageText;
        return kUsage;
      }
      (arg == "--library" ? options->library : options->reader_api) = argv[++i];
      continue;
    }
    std::cerr << "orla-check: unknown option " << arg << "\n" << kUsageText;
    return kUsage;
  }
  return kPass;
}

bool Load(const std::string& what, const std::string& path, ElfImage* image) {
  ElfResult result = orla::check::LoadElf(path);
  if (!result.image) {
    std::cerr << "orla-check: " << what << ": " << result.error << "\n";
    return false;
  }
  *image = std::move(*result.image);
  return true;
}

bool Report(const std::string& heading, const std::vector<std::string>& problems, const std::string& summary) {
  std::cout << heading << "\n";
  for (const std::string& problem : problems) std::cout << "  FAIL " << problem << "\n";
  if (problems.empty()) std::cout << "  ok   " << summary << "\n";
  return problems.empty();
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (int status = ParseOptions(argc, argv, &options); status != kPass) return status < 0 ? kPass : status;

  if (options.library.empty()) {
    options.library = FirstFound({"/apps/bin/libs", "/usr/lib", "/platform/lib"}, "liborlajni.so");
    if (options.library.empty()) {
      std::cerr << "orla-check: no liborlajni.so in /apps/bin/libs, /usr/lib or /platform/lib; name it with "
                   "--library\n";
      return kUsage;
    }
  }
  ElfImage library;
  if (!Load("library", options.library, &library)) return kUsage;
  std::vector<std::string> dirs = Split(library.runpath.value_or(""), ':');
  dirs.insert(dirs.end(), orla::check::SystemLibraryDirs().begin(), orla::check::SystemLibraryDirs().end());
  const std::set<std::string> providedElsewhere =
      orla::check::ExportsOfOtherDependencies(library, orla::check::kReaderApiSoname, dirs);
  const std::vector<std::string> imports = orla::check::RequiredImports(library, providedElsewhere);

  if (options.list_imports) {
    for (const std::string& name : imports) std::cout << name << "\n";
    return kPass;
  }

  if (options.reader_api.empty()) {
    options.reader_api = FirstFound(Split(orla::check::kReaderRunpath, ':'), orla::check::kReaderApiSoname);
    if (options.reader_api.empty()) {
      std::cerr << "orla-check: no libhalyard.so in " << orla::check::kReaderRunpath
                << "; name it with --reader-api\n";
      return kUsage;
    }
  }
  ElfImage reader_api;
  if (!Load("reader API", options.reader_api, &reader_api)) return kUsage;

  const std::vector<std::string>& natives = orla::check::JniNatives();
  bool passed = Report("library " + options.library, orla::check::CheckLibrary(library, natives),
                       std::to_string(natives.size()) + " natives exported (" +
                           std::to_string(orla::check::MangledOnlyNatives().size()) +
                           " under C++ names only); needs " + orla::check::kReaderApiSoname + "; RUNPATH " +
                           orla::check::kReaderRunpath);
  passed &= Report("reader API " + options.reader_api, orla::check::CheckReaderApi(library, reader_api, providedElsewhere),
                   "all " + std::to_string(imports.size()) + " functions the library imports are present");
  std::cout << (passed ? "all checks pass\n" : "a check failed\n");
  return passed ? kPass : kFail;
}
