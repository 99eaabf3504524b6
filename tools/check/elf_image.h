// The dynamic linking view of an ELF64 shared library, read from the file
// alone: its dynamic symbols (with version and binding), NEEDED entries and
// run-time search paths. Every offset and size in the file is checked
// before use; a malformed file becomes an error message, never a crash.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace orla::check {

struct DynamicSymbol {
  std::string name;
  bool defined = false;    // st_shndx != SHN_UNDEF
  bool weak = false;       // STB_WEAK binding
  bool global = false;     // STB_GLOBAL or STB_GNU_UNIQUE binding
  bool visible = false;    // STV_DEFAULT or STV_PROTECTED
  bool function = false;   // STT_FUNC or STT_GNU_IFUNC
  bool versioned = false;  // a version index other than local/global
};

struct ElfImage {
  uint16_t machine = 0;
  std::vector<DynamicSymbol> symbols;
  std::vector<std::string> needed;
  std::optional<std::string> runpath;  // DT_RUNPATH
  std::optional<std::string> rpath;    // DT_RPATH
};

struct ElfResult {
  std::optional<ElfImage> image;
  std::string error;  // set when image is empty
};

// Parses an ELF64 little-endian shared object or executable held in memory.
ElfResult ParseElf(const std::vector<unsigned char>& file);

// Reads a whole file and parses it; a missing or unreadable file is an error.
ElfResult LoadElf(const std::string& path);

// What the reader's C API must provide: the library's undefined, non-weak
// symbols that carry no version requirement (the C and C++ run-time's
// symbols always do).
std::vector<std::string> RequiredImports(const ElfImage& image, const std::set<std::string>& providedElsewhere = {});

// The symbol of that name that the library defines and exports, if any.
const DynamicSymbol* FindExport(const ElfImage& image, const std::string& name);

}  // namespace orla::check
