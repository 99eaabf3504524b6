// The two checks of orla-check, as pure functions of parsed ELF images: each
// returns one line per problem found, and nothing when all is well.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "elf_image.h"

namespace orla::check {

// The search path liborlajni.so is linked with: the reader platform's
// library directories, in this order.
inline constexpr const char* kReaderRunpath = "/platform/lib:/usr/lib:/apps/bin/libs";
inline constexpr const char* kReaderApiSoname = "libhalyard.so";

// Every function the library imports from the reader's C API that the
// reader's library does not export, by symbol (and readable C++ name).
// providedElsewhere: what the library's other dependencies export (dependencies.h).
std::vector<std::string> CheckReaderApi(const ElfImage& library, const ElfImage& reader_api,
                                        const std::set<std::string>& providedElsewhere = {});

// The library's own linkage: every native exported under its JNI name
// (natives lists them, from the javac header), the power-negotiation
// natives under their C++ names only, NEEDED and RUNPATH.
std::vector<std::string> CheckLibrary(const ElfImage& library, const std::vector<std::string>& natives);

// The natives that the library exports only under Itanium-mangled names.
const std::vector<std::string>& MangledOnlyNatives();

}  // namespace orla::check
