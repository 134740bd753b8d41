#include <algorithm>
#include <string>

#include "checks.h"

namespace check_objects {

// No function knows who calls it, and old callers on i386 align the stack to 4 bytes only; on x86-64 the
// calling convention is kept. An access is to the stack where the stack pointer or the frame pointer is its
// base: what other registers point to is not known here.
void CheckStackAlignment(const Function& function, const CodeContext& context) {
  if (context.object.Target() != Architecture::kI386) return;
  unsigned alignment = 4;
  bool hasFramePointer = false;  // without it the register is like any other
  for (const Instruction& instruction : function.instructions) {
    alignment = std::max(alignment, instruction.alignsStack);
    hasFramePointer = hasFramePointer || instruction.setsFramePointer;
  }
  for (const Instruction& instruction : function.instructions) {
    const bool isOnStack = instruction.base == Base::kStackPointer ||
                           (instruction.base == Base::kFramePointer && hasFramePointer);
    if (isOnStack && instruction.neededAlignment > alignment) {
      context.Add(
          function, instruction,
          "on a stack that nobody aligns to " + std::to_string(instruction.neededAlignment) + " bytes");
    }
  }
}

}  // namespace check_objects
