#include "elf_object.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace check_objects {
namespace {

struct Elf32 {
  using Header = Elf32_Ehdr;
  using SectionHeader = Elf32_Shdr;
  using Symbol = Elf32_Sym;
  using Rel = Elf32_Rel;
  using Rela = Elf32_Rela;
  static uint32_t SymbolOf(uint32_t info) { return ELF32_R_SYM(info); }
};

struct Elf64 {
  using Header = Elf64_Ehdr;
  using SectionHeader = Elf64_Shdr;
  using Symbol = Elf64_Sym;
  using Rel = Elf64_Rel;
  using Rela = Elf64_Rela;
  static uint32_t SymbolOf(uint64_t info) { return static_cast<uint32_t>(ELF64_R_SYM(info)); }
};

}  // namespace

std::string_view NameOf(Architecture architecture) {
  return architecture == Architecture::kI386 ? "i386" : "x86-64";
}

ElfObject::ElfObject(const std::string& path) : path_(path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream) Fail("cannot be read");
  file_.assign(std::istreambuf_iterator<char>(stream), {});

  if (file_.size() < EI_NIDENT || file_.compare(0, SELFMAG, ELFMAG) != 0) Fail("is no ELF file");
  // x32 code has the class of one target and the machine of the other.
  if (file_[EI_CLASS] == ELFCLASS32 && Get<Elf32_Ehdr>(file_, 0).e_machine == EM_386) {
    target_ = Architecture::kI386;
    Read<Elf32>();
  } else if (file_[EI_CLASS] == ELFCLASS64 && Get<Elf64_Ehdr>(file_, 0).e_machine == EM_X86_64) {
    target_ = Architecture::kX86_64;
    Read<Elf64>();
  } else {
    Fail("is for neither i386 nor x86-64");
  }
}

template <class Types>
void ElfObject::Read() {
  using SectionHeader = typename Types::SectionHeader;
  using SymbolEntry = typename Types::Symbol;

  const auto header = Get<typename Types::Header>(file_, 0);
  if (header.e_type != ET_REL) Fail("is no relocatable object");
  // Both numbers move elsewhere beyond 65279 sections.
  if (header.e_shnum == 0 || header.e_shstrndx >= header.e_shnum) Fail("has no sections, or too many");

  std::vector<SectionHeader> headers;
  for (unsigned i = 0; i < header.e_shnum; ++i) {
    headers.push_back(Get<SectionHeader>(file_, header.e_shoff + i * uint64_t{sizeof(SectionHeader)}));
  }
  const auto bytesOf = [this](const SectionHeader& section) {
    return section.sh_type == SHT_NOBITS ? std::string_view() : Part(section.sh_offset, section.sh_size);
  };
  const std::string_view names = bytesOf(headers[header.e_shstrndx]);
  for (const SectionHeader& section : headers) {
    sections_.push_back(
        {StringAt(names, section.sh_name), section.sh_type, section.sh_flags, bytesOf(section), {}});
  }

  for (const SectionHeader& section : headers) {
    if (section.sh_type == SHT_REL) ReadRelocations<Types, typename Types::Rel>(section);
    if (section.sh_type == SHT_RELA) ReadRelocations<Types, typename Types::Rela>(section);
    if (section.sh_type != SHT_SYMTAB) continue;
    if (section.sh_link >= headers.size()) Fail("has symbols without names");
    const std::string_view entries = bytesOf(section);
    const std::string_view symbolNames = bytesOf(headers[section.sh_link]);
    for (uint64_t offset = 0; offset < entries.size(); offset += sizeof(SymbolEntry)) {
      const auto entry = Get<SymbolEntry>(entries, offset);
      symbols_.push_back({StringAt(symbolNames, entry.st_name), ELF64_ST_BIND(entry.st_info),
                          ELF64_ST_TYPE(entry.st_info), entry.st_shndx, entry.st_value});
    }
  }
}

template <class Types, class Entry>
void ElfObject::ReadRelocations(const typename Types::SectionHeader& header) {
  if (header.sh_info >= sections_.size()) Fail("has relocations of no section");
  Section& section = sections_[header.sh_info];
  const std::string_view entries = Part(header.sh_offset, header.sh_size);
  for (uint64_t offset = 0; offset < entries.size(); offset += sizeof(Entry)) {
    const auto entry = Get<Entry>(entries, offset);
    int64_t addend = 0;
    if constexpr (sizeof(Entry) == sizeof(typename Types::Rela)) {
      addend = entry.r_addend;
    } else if (section.IsCode()) {
      addend = Get<int32_t>(section.bytes, entry.r_offset);  // i386 keeps it in the field itself
    }
    section.relocations.push_back({entry.r_offset, Types::SymbolOf(entry.r_info), addend});
  }
  std::sort(section.relocations.begin(), section.relocations.end(),
            [](const Relocation& a, const Relocation& b) { return a.offset < b.offset; });
}

template <class T>
T ElfObject::Get(std::string_view bytes, uint64_t offset) const {
  if (offset > bytes.size() || bytes.size() - offset < sizeof(T)) Fail("is cut short");
  T value;
  std::memcpy(&value, bytes.data() + offset, sizeof value);
  return value;
}

std::string_view ElfObject::Part(uint64_t offset, uint64_t size) const {
  if (offset > file_.size() || file_.size() - offset < size) Fail("is cut short");
  return std::string_view(file_).substr(offset, size);
}

std::string_view ElfObject::StringAt(std::string_view table, uint64_t offset) const {
  const size_t end = table.find('\0', offset);
  if (end == std::string_view::npos) Fail("has a name without an end");
  return table.substr(offset, end - offset);
}

void ElfObject::Fail(const char* what) const { throw std::runtime_error(path_ + " " + what); }

}  // namespace check_objects
