// Which extension an instruction belongs to, and which extensions each variant may use.
#ifndef ORBS_TOOLS_CHECK_OBJECTS_LEVELS_H
#define ORBS_TOOLS_CHECK_OBJECTS_LEVELS_H

#include <Zydis/Zydis.h>

#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "elf_object.h"

namespace check_objects {

// An extension goes by the name of Zydis' ISA set, with a few names of our own where a set says too much or
// too little.
using Extension = std::string_view;

Extension ExtensionOf(const ZydisDecodedInstruction& instruction, const ZydisDecodedOperand* operands);

// What no level holds: bytes that are no instruction at all.
inline constexpr Extension kNoInstruction = "no known instruction";

using Level = std::set<std::string, std::less<>>;

// The variants and "common", the code outside them.
bool IsPart(std::string_view name);

// What a part may use.
const Level& LevelOf(Architecture architecture, std::string_view part);

// What every processor of the target has.
inline const Level& BaseLevel(Architecture architecture) { return LevelOf(architecture, "px"); }

}  // namespace check_objects

#endif
