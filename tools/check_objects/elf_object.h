// A relocatable object as the assembler leaves it, of either target.
#ifndef ORBS_TOOLS_CHECK_OBJECTS_ELF_OBJECT_H
#define ORBS_TOOLS_CHECK_OBJECTS_ELF_OBJECT_H

#include <elf.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace check_objects {

enum class Architecture { kI386, kX86_64 };

std::string_view NameOf(Architecture architecture);

struct Relocation {
  uint64_t offset;  // of the field, in its section
  uint32_t symbol;
  int64_t addend;
};

struct Section {
  std::string_view name;
  uint32_t type;
  uint64_t flags;
  std::string_view bytes;
  std::vector<Relocation> relocations;  // by offset

  bool IsCode() const { return type == SHT_PROGBITS && (flags & SHF_EXECINSTR) != 0; }
};

struct Symbol {
  std::string_view name;
  int binding;
  int type;
  uint32_t section;
  uint64_t value;

  bool IsDefined() const { return section != SHN_UNDEF; }
  bool IsGlobal() const { return binding != STB_LOCAL; }
};

class ElfObject {
 public:
  // Throws std::runtime_error for anything but a relocatable object of one of the two targets.
  explicit ElfObject(const std::string& path);
  ElfObject(const ElfObject&) = delete;
  ElfObject& operator=(const ElfObject&) = delete;

  const std::string& Path() const { return path_; }
  Architecture Target() const { return target_; }
  const std::vector<Section>& Sections() const { return sections_; }
  const std::vector<Symbol>& Symbols() const { return symbols_; }

 private:
  template <class Types>
  void Read();
  template <class Types, class Entry>
  void ReadRelocations(const typename Types::SectionHeader& header);

  template <class T>
  T Get(std::string_view bytes, uint64_t offset) const;
  std::string_view Part(uint64_t offset, uint64_t size) const;
  std::string_view StringAt(std::string_view table, uint64_t offset) const;
  [[noreturn]] void Fail(const char* what) const;

  std::string path_;
  std::string file_;  // what the views point into
  Architecture target_{};
  std::vector<Section> sections_;
  std::vector<Symbol> symbols_;
};

}  // namespace check_objects

#endif
