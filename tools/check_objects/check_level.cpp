#include <string>

#include "checks.h"
#include "levels.h"

namespace check_objects {

void CheckLevel(const Function& function, const CodeContext& context) {
  const Architecture target = context.object.Target();
  const Level& level = IsPcThunk(function.symbol) ? BaseLevel(target) : LevelOf(target, context.part);
  for (const Instruction& instruction : function.instructions) {
    if (level.find(instruction.extension) == level.end()) {
      context.Add(function, instruction, "is above the level: " + std::string(instruction.extension));
    }
  }
}

}  // namespace check_objects
