// liborlajni.so exports exactly: every native of ORLANatives under its JNI
// name, taken from the header that javac generates, except the three
// power-negotiation natives, which appear under their C++ names only; the
// text conversions and record converters under their C++ names; and the
// shared field accessors as weak symbols. Nothing else.
#include <cxxabi.h>
#include <elf.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

const char* const kMangledNatives[] = {
    "Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationStatus(JNIEnv_*, _jclass*, int, _jobject*)",
    "Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetPowerNegotiationState(JNIEnv_*, _jclass*, int, _jobject*)",
    "Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationState(JNIEnv_*, _jclass*, int, _jobject*)",
};

const char* const kSharedFunctions[] = {
    "JavaToWSZ(JNIEnv_*, _jstring*, wchar_t*)",
    "ConverStringToByteArray(wchar_t*, unsigned char*)",
    "printTagData(TAG_DATA*)",
    "SetTagDataToJobject(JNIEnv_*, _jobject*, TAG_DATA*, bool)",
    "GetTriggerInfoFromJobject(JNIEnv_*, _jobject*, TRIGGER_INFO*)",
    "GetExtraTriggerInfoFromJobject(JNIEnv_*, _jobject*, TRIGGER_INFO*)",
    "GetAntennaInfoFromJobject(JNIEnv_*, _jobject*, ANTENNA_INFO*)",
    "GetAccessFilterInfoFromJobject(JNIEnv_*, _jobject*, ACCESS_FILTER*, TAG_PATTERN*, TAG_PATTERN*)",
    "GetPostFilterInfoFromJobject(JNIEnv_*, _jobject*, POST_FILTER*, TAG_PATTERN*, TAG_PATTERN*)",
    "clearAccessFilter(ACCESS_FILTER*)",
    "clearPostFilter(POST_FILTER*)",
};

const char* const kWeakAccessors[] = {
    "getJobjectFromJobject(JNIEnv_*, _jobject*, char const*, char const*)",
    "setShortInJobject(JNIEnv_*, _jobject*, char const*, short)",
    "getShortFromJobject(JNIEnv_*, _jobject*, char const*)",
    "setIntInJobject(JNIEnv_*, _jobject*, char const*, int)",
    "getIntFromJobject(JNIEnv_*, _jobject*, char const*)",
    "getLongFromJobject(JNIEnv_*, _jobject*, char const*)",
    "setBoolInJobject(JNIEnv_*, _jobject*, char const*, unsigned char)",
    "getBoolFromJobject(JNIEnv_*, _jobject*, char const*)",
    "getEnumValueFromJobject(JNIEnv_*, _jobject*, int)",
    "getShortArrayInJobject(JNIEnv_*, _jobject*, char const*, unsigned short*, int)",
    "getByteArrayInJobject(JNIEnv_*, _jobject*, char const*, unsigned char*, int)",
    "setStringInJobject(JNIEnv_*, _jobject*, char const*, wchar_t const*)",
};

std::string readFile(const char* path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::string demangle(const char* name) {
  int status = 0;
  char* readable = abi::__cxa_demangle(name, nullptr, nullptr, &status);
  if (status != 0) return name;
  std::string result(readable);
  std::free(readable);
  return result;
}

// The defined symbols of the ELF file's dynamic symbol table, demangled,
// each weak one written "weak <name>".
std::set<std::string> definedDynamicSymbols(const std::string& image) {
  Elf64_Ehdr header;
  std::memcpy(&header, image.data(), sizeof header);
  std::vector<Elf64_Shdr> sections(header.e_shnum);
  std::memcpy(sections.data(), image.data() + header.e_shoff, sizeof(Elf64_Shdr) * header.e_shnum);

  std::set<std::string> names;
  for (const Elf64_Shdr& section : sections) {
    if (section.sh_type != SHT_DYNSYM) continue;
    const char* strings = image.data() + sections[section.sh_link].sh_offset;
    for (size_t i = 1; i < section.sh_size / sizeof(Elf64_Sym); ++i) {
      Elf64_Sym symbol;
      std::memcpy(&symbol, image.data() + section.sh_offset + i * sizeof(Elf64_Sym), sizeof symbol);
      if (symbol.st_shndx == SHN_UNDEF) continue;
      const std::string name = demangle(strings + symbol.st_name);
      names.insert(ELF64_ST_BIND(symbol.st_info) == STB_WEAK ? "weak " + name : name);
    }
  }
  return names;
}

// Every native declared by the generated header, by its JNI name.
std::set<std::string> declaredNatives(const std::string& header) {
  const std::regex declaration("JNICALL (Java_\\w+)");
  std::set<std::string> names;
  for (std::sregex_iterator i(header.begin(), header.end(), declaration), end; i != end; ++i) names.insert((*i)[1]);
  return names;
}

TEST(ExportList, ExactlyTheNativesConvertersAndAccessors) {
  std::set<std::string> expected = declaredNatives(readFile(ORLA_NATIVES_HEADER));
  ASSERT_EQ(131u, expected.size());
  for (const char* native : kMangledNatives) {
    ASSERT_EQ(1u, expected.erase(std::string(native, std::strchr(native, '(')))) << native;
    expected.insert(native);
  }
  expected.insert(std::begin(kSharedFunctions), std::end(kSharedFunctions));
  for (const char* accessor : kWeakAccessors) expected.insert(std::string("weak ") + accessor);

  EXPECT_EQ(expected, definedDynamicSymbols(readFile(ORLA_JNI_LIBRARY)));
}

}  // namespace
