#include "elf_image.h"

#include <elf.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>

namespace orla::check {
namespace {

// A bounds-checked window on the file.
class FileView {
 public:
  explicit FileView(const std::vector<unsigned char>& bytes) : bytes_(bytes) {}

  bool Contains(uint64_t offset, uint64_t size) const {
    return offset <= bytes_.size() && size <= bytes_.size() - offset;
  }

  template <typename T>
  bool Read(uint64_t offset, T* out) const {
    if (!Contains(offset, sizeof(T))) return false;
    std::memcpy(out, bytes_.data() + offset, sizeof(T));
    return true;
  }

  // The NUL-terminated string at offset within [base, base + size).
  std::optional<std::string> String(uint64_t base, uint64_t size, uint64_t offset) const {
    if (!Contains(base, size) || offset >= size) return std::nullopt;
    const char* begin = reinterpret_cast<const char*>(bytes_.data() + base + offset);
    const void* end = std::memchr(begin, '\0', size - offset);
    if (end == nullptr) return std::nullopt;
    return std::string(begin, static_cast<const char*>(end));
  }

 private:
  const std::vector<unsigned char>& bytes_;
};


ElfResult Fail(std::string message) { return ElfResult{std::nullopt, std::move(message)}; }

bool ReadSections(const FileView& file, const Elf64_Ehdr& eh, std::vector<Elf64_Shdr>* out, std::string* error) {
  if (eh.e_shoff == 0 || eh.e_shnum == 0) {
    *error = "it has no section headers";
    return false;
  }
  if (eh.e_shentsize != sizeof(Elf64_Shdr)) {
    *error = "its section header size is " + std::to_string(eh.e_shentsize) + ", not " +
             std::to_string(sizeof(Elf64_Shdr));
    return false;
  }
  for (uint64_t i = 0; i < eh.e_shnum; ++i) {
    Elf64_Shdr sh;
    if (!file.Read(eh.e_shoff + i * sizeof(Elf64_Shdr), &sh)) {
      *error = "its section header table runs past the end of the file";
      return false;
    }
    if (sh.sh_type != SHT_NOBITS && sh.sh_type != SHT_NULL && !file.Contains(sh.sh_offset, sh.sh_size)) {
      *error = "section " + std::to_string(i) + " runs past the end of the file";
      return false;
    }
    out->push_back(sh);
  }
  return true;
}

const Elf64_Shdr* FindSection(const std::vector<Elf64_Shdr>& sections, uint32_t type) {
  for (const Elf64_Shdr& sh : sections) {
    if (sh.sh_type == type) return &sh;
  }
  return nullptr;
}

const Elf64_Shdr* LinkedStrings(const std::vector<Elf64_Shdr>& sections, const Elf64_Shdr& owner) {
  if (owner.sh_link >= sections.size()) return nullptr;
  const Elf64_Shdr& strings = sections[owner.sh_link];
  return strings.sh_type == SHT_STRTAB ? &strings : nullptr;
}

bool ReadSymbols(const FileView& file, const std::vector<Elf64_Shdr>& sections, ElfImage* image, std::string* error) {
  const Elf64_Shdr* dynsym = FindSection(sections, SHT_DYNSYM);
  if (dynsym == nullptr) {
    *error = "it has no dynamic symbol table (is it statically linked?)";
    return false;
  }
  const Elf64_Shdr* strings = LinkedStrings(sections, *dynsym);
  if (strings == nullptr || dynsym->sh_entsize != sizeof(Elf64_Sym)) {
    *error = "its dynamic symbol table is malformed";
    return false;
  }
  const Elf64_Shdr* versym = FindSection(sections, SHT_GNU_versym);
  const uint64_t count = dynsym->sh_size / sizeof(Elf64_Sym);
  if (versym != nullptr && versym->sh_size / sizeof(Elf64_Half) < count) {
    *error = "its symbol version table is shorter than its symbol table";
    return false;
  }
  for (uint64_t i = 1; i < count; ++i) {  // entry 0 is the null symbol
    Elf64_Sym sym;
    file.Read(dynsym->sh_offset + i * sizeof(Elf64_Sym), &sym);
    std::optional<std::string> name = file.String(strings->sh_offset, strings->sh_size, sym.st_name);
    if (!name) {
      *error = "dynamic symbol " + std::to_string(i) + " has a name outside its string table";
      return false;
    }
    DynamicSymbol s;
    s.name = std::move(*name);
    s.defined = sym.st_shndx != SHN_UNDEF;
    const unsigned bind = ELF64_ST_BIND(sym.st_info);
    const unsigned type = ELF64_ST_TYPE(sym.st_info);
    const unsigned visibility = ELF64_ST_VISIBILITY(sym.st_other);
    s.weak = bind == STB_WEAK;
    s.global = bind == STB_GLOBAL || bind == STB_GNU_UNIQUE;
    s.visible = visibility == STV_DEFAULT || visibility == STV_PROTECTED;
    s.function = type == STT_FUNC || type == STT_GNU_IFUNC;
    if (versym != nullptr) {
      Elf64_Half index = 0;
      file.Read(versym->sh_offset + i * sizeof(Elf64_Half), &index);
      index &= 0x7fff;  // the hidden bit
      s.versioned = index != VER_NDX_LOCAL && index != VER_NDX_GLOBAL;
    }
    image->symbols.push_back(std::move(s));
  }
  return true;
}

bool ReadDynamic(const FileView& file, const std::vector<Elf64_Shdr>& sections, ElfImage* image, std::string* error) {
  const Elf64_Shdr* dynamic = FindSection(sections, SHT_DYNAMIC);
  if (dynamic == nullptr) {
    *error = "it has no dynamic section";
    return false;
  }
  const Elf64_Shdr* strings = LinkedStrings(sections, *dynamic);
  if (strings == nullptr) {
    *error = "its dynamic section has no string table";
    return false;
  }
  for (uint64_t at = 0; at + sizeof(Elf64_Dyn) <= dynamic->sh_size; at += sizeof(Elf64_Dyn)) {
    Elf64_Dyn entry;
    file.Read(dynamic->sh_offset + at, &entry);
    if (entry.d_tag == DT_NULL) break;
    if (entry.d_tag != DT_NEEDED && entry.d_tag != DT_RUNPATH && entry.d_tag != DT_RPATH) continue;
    std::optional<std::string> text = file.String(strings->sh_offset, strings->sh_size, entry.d_un.d_val);
    if (!text) {
      *error = "a dynamic entry names a string outside the string table";
      return false;
    }
    if (entry.d_tag == DT_NEEDED) image->needed.push_back(std::move(*text));
    if (entry.d_tag == DT_RUNPATH) image->runpath = std::move(*text);
    if (entry.d_tag == DT_RPATH) image->rpath = std::move(*text);
  }
  return true;
}

}  // namespace

ElfResult ParseElf(const std::vector<unsigned char>& bytes) {
  const FileView file(bytes);
  Elf64_Ehdr eh;
  if (!file.Read(0, &eh) || std::memcmp(eh.e_ident, ELFMAG, SELFMAG) != 0) {
    return Fail("not an ELF file");
  }
  if (eh.e_ident[EI_CLASS] != ELFCLASS64) return Fail("not a 64-bit ELF file");
  if (eh.e_ident[EI_DATA] != ELFDATA2LSB) return Fail("not a little-endian ELF file");
  if (eh.e_type != ET_DYN && eh.e_type != ET_EXEC) return Fail("not a shared library or executable");

  ElfImage image;
  image.machine = eh.e_machine;
  std::vector<Elf64_Shdr> sections;
  std::string error;
  if (!ReadSections(file, eh, &sections, &error) || !ReadSymbols(file, sections, &image, &error) ||
      !ReadDynamic(file, sections, &image, &error)) {
    return Fail("malformed ELF file: " + error);
  }
  return ElfResult{std::move(image), {}};
}

ElfResult LoadElf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return Fail("cannot open " + path + ": " + std::strerror(errno));
  std::vector<unsigned char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return Fail("cannot read " + path);
  ElfResult result = ParseElf(bytes);
  if (!result.image) result.error = path + ": " + result.error;
  return result;
}

std::vector<std::string> RequiredImports(const ElfImage& image, const std::set<std::string>& providedElsewhere) {
  std::vector<std::string> names;
  for (const DynamicSymbol& s : image.symbols) {
    if (!s.defined && s.global && !s.versioned && providedElsewhere.count(s.name) == 0) names.push_back(s.name);
  }
  return names;
}

const DynamicSymbol* FindExport(const ElfImage& image, const std::string& name) {
  for (const DynamicSymbol& s : image.symbols) {
    if (s.defined && (s.global || s.weak) && s.visible && s.name == name) return &s;
  }
  return nullptr;
}

}  // namespace orla::check
