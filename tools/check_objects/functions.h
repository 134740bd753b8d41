// The code of an object, cut into functions.
#ifndef ORBS_TOOLS_CHECK_OBJECTS_FUNCTIONS_H
#define ORBS_TOOLS_CHECK_OBJECTS_FUNCTIONS_H

#include <string_view>
#include <vector>

#include "elf_object.h"
#include "instruction.h"

namespace check_objects {

struct Function {
  std::string_view symbol;  // empty for code in front of all symbols
  Place entry;
  std::vector<Instruction> instructions;  // by place

  // The instruction at a place; null if it belongs to another function.
  const Instruction* At(Place place) const;
};

// All code of the object, each byte once; the padding between functions belongs to the one before it. The
// compiler moves what it thinks is rarely run out of a function, into one named NAME.cold; here the two are
// one again.
std::vector<Function> CutIntoFunctions(const ElfObject& object, const Decoder& decoder);

// In position-independent i386 code the compiler reads the program counter with these. Every object brings
// its own and the linker keeps one, so their code must suit every processor.
bool IsPcThunk(std::string_view symbol);

}  // namespace check_objects

#endif
