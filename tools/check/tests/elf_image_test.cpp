// The ELF reader on real libraries built here and on damaged copies of one,
// and the checks on images put together by hand.
#include <elf.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <ostream>

#include "checks.h"
#include "dependencies.h"
#include "elf_image.h"

namespace orla::check {
namespace {

std::vector<unsigned char> ReadFile(const char* path) {
  std::ifstream in(path, std::ios::binary);
  return std::vector<unsigned char>((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

bool Has(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(ElfImage, ReadsTheLibrarysImportsFromItsDynamicSymbols) {
  ElfResult result = LoadElf(ORLA_JNI_LIBRARY);
  ASSERT_TRUE(result.image) << result.error;
  // As orla-check reads it: a sanitizer build links a run-time that exports
  // unversioned functions, which are not the reader API's.
  const std::vector<std::string> imports = RequiredImports(
      *result.image, ExportsOfOtherDependencies(*result.image, kReaderApiSoname, SystemLibraryDirs()));
  EXPECT_TRUE(Has(imports, "RFID_ConnectW"));
  EXPECT_TRUE(Has(imports, "rfid_GetReadTags"));
  EXPECT_TRUE(Has(imports, "rfidUtils_WaitForMultipleObjects"));
  EXPECT_TRUE(Has(imports, "_Z24rfid_GetNumInstalledAppsPvPj"));
  EXPECT_FALSE(Has(imports, "memcpy")) << "versioned C library symbol";
  EXPECT_FALSE(Has(imports, "__gmon_start__")) << "weak symbol";
  EXPECT_FALSE(Has(imports, "Java_com_kovra_rfid_orla_ORLANatives_RFID_1Connect")) << "defined";
  EXPECT_TRUE(Has(result.image->needed, "libhalyard.so"));
  EXPECT_EQ(result.image->runpath.value_or(""), kReaderRunpath);
  EXPECT_EQ(result.image->machine, EM_X86_64);
}

TEST(ElfImage, FindsTheReaderApisExports) {
  ElfResult result = LoadElf(SIM_LIBRARY);
  ASSERT_TRUE(result.image) << result.error;
  const DynamicSymbol* connect = FindExport(*result.image, "RFID_ConnectW");
  ASSERT_NE(connect, nullptr);
  EXPECT_TRUE(connect->function);
  EXPECT_EQ(FindExport(*result.image, "RFID_NoSuchFunction"), nullptr);
  EXPECT_EQ(FindExport(*result.image, "memcpy"), nullptr) << "imported, not exported";
}

TEST(ElfImage, MissingFileIsAnError) {
  ElfResult result = LoadElf("/nonexistent/libhalyard.so");
  EXPECT_FALSE(result.image);
  EXPECT_NE(result.error.find("cannot open /nonexistent/libhalyard.so"), std::string::npos) << result.error;
}

Elf64_Ehdr* Header(std::vector<unsigned char>& f) { return reinterpret_cast<Elf64_Ehdr*>(f.data()); }

Elf64_Shdr* SectionOfType(std::vector<unsigned char>& f, uint32_t type) {
  Elf64_Ehdr* eh = Header(f);
  for (int i = 0; i < eh->e_shnum; ++i) {
    auto* sh = reinterpret_cast<Elf64_Shdr*>(f.data() + eh->e_shoff + i * sizeof(Elf64_Shdr));
    if (sh->sh_type == type) return sh;
  }
  return nullptr;
}

struct Damage {
  const char* what;
  std::function<void(std::vector<unsigned char>&)> apply;
  const char* error;
};
void PrintTo(const Damage& d, std::ostream* os) { *os << d.what; }

const Damage kDamages[] = {
    {"empty file", [](auto& f) { f.clear(); }, "not an ELF file"},
    {"text", [](auto& f) { f.assign({'h', 'e', 'l', 'l', 'o', '\n'}); }, "not an ELF file"},
    {"cut inside the header", [](auto& f) { f.resize(40); }, "not an ELF file"},
    {"32-bit", [](auto& f) { f[EI_CLASS] = ELFCLASS32; }, "not a 64-bit ELF file"},
    {"big-endian", [](auto& f) { f[EI_DATA] = ELFDATA2MSB; }, "not a little-endian ELF file"},
    {"relocatable object", [](auto& f) { Header(f)->e_type = ET_REL; }, "not a shared library"},
    {"no section headers", [](auto& f) { Header(f)->e_shnum = 0; }, "no section headers"},
    {"odd section header size", [](auto& f) { Header(f)->e_shentsize = 40; }, "section header size"},
    {"section headers past the end", [](auto& f) { Header(f)->e_shoff = f.size() - 8; }, "past the end"},
    {"section headers at a huge offset", [](auto& f) { Header(f)->e_shoff = ~0ull - 8; }, "past the end"},
    {"cut before the section headers", [](auto& f) { f.resize(Header(f)->e_shoff + 10); }, "past the end"},
    {"dynamic symbols past the end",
     [](auto& f) { SectionOfType(f, SHT_DYNSYM)->sh_size = f.size(); }, "past the end"},
    {"no dynamic symbols", [](auto& f) { SectionOfType(f, SHT_DYNSYM)->sh_type = SHT_PROGBITS; },
     "no dynamic symbol table"},
    {"symbol name outside its strings", [](auto& f) { SectionOfType(f, SHT_STRTAB)->sh_size = 1; },
     "outside"},
    {"symbol strings link nowhere", [](auto& f) { SectionOfType(f, SHT_DYNSYM)->sh_link = 60000; },
     "dynamic symbol table is malformed"},
    {"short version table", [](auto& f) { SectionOfType(f, SHT_GNU_versym)->sh_size = 2; },
     "version table"},
    {"no dynamic section", [](auto& f) { SectionOfType(f, SHT_DYNAMIC)->sh_type = SHT_PROGBITS; },
     "no dynamic section"},
};

class DamagedElf : public testing::TestWithParam<Damage> {};

TEST_P(DamagedElf, IsReportedNotParsed) {
  std::vector<unsigned char> file = ReadFile(SIM_LIBRARY);
  ASSERT_GT(file.size(), sizeof(Elf64_Ehdr));
  ASSERT_TRUE(ParseElf(file).image) << "the undamaged file parses";
  GetParam().apply(file);
  ElfResult result = ParseElf(file);
  EXPECT_FALSE(result.image);
  EXPECT_NE(result.error.find(GetParam().error), std::string::npos) << result.error;
}

INSTANTIATE_TEST_SUITE_P(Elf, DamagedElf, testing::ValuesIn(kDamages), [](const auto& info) {
  std::string name = info.param.what;
  std::replace_if(name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
});

// --- the checks on images put together by hand ---

DynamicSymbol Export(const std::string& name) {
  DynamicSymbol s;
  s.name = name;
  s.defined = s.global = s.visible = s.function = true;
  return s;
}

DynamicSymbol Import(const std::string& name) {
  DynamicSymbol s;
  s.name = name;
  s.global = true;
  return s;
}

const std::string kConnect = "Java_com_kovra_rfid_orla_ORLANatives_RFID_1Connect";
const std::string kPowerStatus = "Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationStatus";
const std::string kPowerStatusMangled =
    "_Z68Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationStatusP7JNIEnv_P7_jclassiP8_jobject";

ElfImage GoodLibrary() {
  ElfImage image;
  image.machine = EM_X86_64;
  image.symbols = {Export(kConnect), Export(kPowerStatusMangled), Import("RFID_ConnectW"),
                   Import("_Z24rfid_GetNumInstalledAppsPvPj")};
  image.needed = {"libhalyard.so", "libc.so.6"};
  image.runpath = kReaderRunpath;
  return image;
}

struct LibraryFault {
  const char* what;
  std::function<void(ElfImage&)> apply;
  const char* problem;
};
void PrintTo(const LibraryFault& f, std::ostream* os) { *os << f.what; }

const LibraryFault kLibraryFaults[] = {
    {"native missing", [](ElfImage& i) { i.symbols.erase(i.symbols.begin()); },
     "native not exported under its JNI name: Java_com_kovra_rfid_orla_ORLANatives_RFID_1Connect"},
    {"native hidden", [](ElfImage& i) { i.symbols[0].visible = false; }, "not exported under its JNI name"},
    {"native undefined", [](ElfImage& i) { i.symbols[0].defined = false; }, "not exported under its JNI name"},
    {"power native under its plain name", [](ElfImage& i) { i.symbols.push_back(Export(kPowerStatus)); },
     "exported under its plain JNI name"},
    {"power native not under its C++ name", [](ElfImage& i) { i.symbols.erase(i.symbols.begin() + 1); },
     "not exported under its C++ name"},
    {"no reader API needed", [](ElfImage& i) { i.needed = {"libc.so.6"}; }, "NEEDED does not name libhalyard.so"},
    {"no RUNPATH", [](ElfImage& i) { i.runpath.reset(); }, "no RUNPATH"},
    {"other RUNPATH", [](ElfImage& i) { i.runpath = "/platform/lib:/usr/lib:/tmp/build"; },
     "RUNPATH is /platform/lib:/usr/lib:/tmp/build"},
    {"RPATH", [](ElfImage& i) { i.rpath = kReaderRunpath; }, "has an RPATH"},
};

class LibraryCheck : public testing::TestWithParam<LibraryFault> {};

TEST_P(LibraryCheck, NamesTheFault) {
  const std::vector<std::string> natives = {kConnect, kPowerStatus};
  ASSERT_TRUE(CheckLibrary(GoodLibrary(), natives).empty());
  ElfImage image = GoodLibrary();
  GetParam().apply(image);
  const std::vector<std::string> problems = CheckLibrary(image, natives);
  ASSERT_EQ(problems.size(), 1u);
  EXPECT_NE(problems[0].find(GetParam().problem), std::string::npos) << problems[0];
}

INSTANTIATE_TEST_SUITE_P(Check, LibraryCheck, testing::ValuesIn(kLibraryFaults), [](const auto& info) {
  std::string name = info.param.what;
  std::replace_if(name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
});

TEST(ReaderApiCheck, NamesEveryMissingFunctionWithItsCppForm) {
  ElfImage reader;
  reader.machine = EM_X86_64;
  EXPECT_EQ(CheckReaderApi(GoodLibrary(), reader),
            (std::vector<std::string>{
                "missing function: RFID_ConnectW",
                "missing function: _Z24rfid_GetNumInstalledAppsPvPj  [rfid_GetNumInstalledApps(void*, unsigned int*)]",
            }));
  reader.symbols = {Export("RFID_ConnectW"), Export("_Z24rfid_GetNumInstalledAppsPvPj")};
  EXPECT_TRUE(CheckReaderApi(GoodLibrary(), reader).empty());
  reader.symbols[0].defined = false;
  EXPECT_EQ(CheckReaderApi(GoodLibrary(), reader).size(), 1u) << "an import of the reader is no export";
}

TEST(ReaderApiCheck, OtherMachineIsAFault) {
  ElfImage reader;
  reader.machine = EM_AARCH64;
  reader.symbols = {Export("RFID_ConnectW"), Export("_Z24rfid_GetNumInstalledAppsPvPj")};
  const std::vector<std::string> problems = CheckReaderApi(GoodLibrary(), reader);
  ASSERT_EQ(problems.size(), 1u);
  EXPECT_NE(problems[0].find("another machine"), std::string::npos);
}

}  // namespace
}  // namespace orla::check

namespace orla::check {
namespace {

TEST(Dependencies, WhatOtherLibrariesExportIsNoReaderApiImport) {
  ElfImage library;
  library.needed = {"libc.so.6", "libhalyard.so", "libnot-installed-anywhere.so"};
  library.symbols = {Import("memcpy"), Import("RFID_ConnectW")};
  const std::set<std::string> provided = ExportsOfOtherDependencies(library, "libhalyard.so", SystemLibraryDirs());
  EXPECT_EQ(provided.count("memcpy"), 1u) << "the C library exports it";
  EXPECT_EQ(provided.count("RFID_ConnectW"), 0u);
  EXPECT_EQ(RequiredImports(library, provided), std::vector<std::string>{"RFID_ConnectW"});
  EXPECT_EQ(RequiredImports(library).size(), 2u);
}

}  // namespace
}  // namespace orla::check
