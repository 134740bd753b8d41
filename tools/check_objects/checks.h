// The four properties that are checked.
#ifndef ORBS_TOOLS_CHECK_OBJECTS_CHECKS_H
#define ORBS_TOOLS_CHECK_OBJECTS_CHECKS_H

#include <string_view>

#include "elf_object.h"
#include "functions.h"
#include "instruction.h"
#include "report.h"

namespace check_objects {

inline constexpr std::string_view kCommon = "common";  // the part outside the variants

// What the checks of code look things up in, and where they report.
struct CodeContext {
  const ElfObject& object;
  std::string_view part;
  const Decoder& decoder;
  Report& report;

  // `fault` goes on from the text of the instruction.
  void Add(const Function& function, const Instruction& instruction, std::string_view fault) const;
};

// A variant defines no global symbol outside its namespace. The linker keeps one of several weak definitions
// of the same name; were it the one compiled for AVX, px would run it too. For the same reason nothing of a
// variant above px runs when the library is loaded.
void CheckNamespace(const ElfObject& object, std::string_view part, Report& report);

// Its code holds no instruction above its level.
void CheckLevel(const Function& function, const CodeContext& context);

// A function that accesses vectors on its stack with instructions that fault on misaligned memory aligns the
// stack.
void CheckStackAlignment(const Function& function, const CodeContext& context);

// No vector of 256 bits crosses a call or a return.
void CheckUpperHalves(const Function& function, const CodeContext& context);

}  // namespace check_objects

#endif
