#include <algorithm>
#include <vector>

#include "checks.h"

namespace check_objects {
namespace {

// Whether the upper halves of vector registers may hold something. Later ones include earlier ones.
enum class State { kUnreached, kClear, kInUse };

// The flow of that state through a function.
//
// A jump through a register is taken for a jump table. It may lead to any code that nothing else in the
// function leads to, and leaves the function if there is none. What this misses: a case that is also reached
// by a direct jump, with clear registers there and with vectors in use at the table.
class UpperHalves {
 public:
  explicit UpperHalves(const Function& function)
      : function_(function), states_(function.instructions.size(), State::kUnreached) {
    Reach(function.At(function.entry), State::kClear);
    Settle();
    while (const Instruction* code = FirstUnreached()) {
      if (atTable_ == State::kUnreached) break;  // no table: dead code
      cases_.push_back(code);
      Reach(code, atTable_);
      Settle();
    }
  }

  // Whether control leaves the function here, for good or for a call, while the upper halves may hold
  // something.
  bool LeavesInUse(const Instruction& instruction) const {
    if (states_[IndexOf(instruction)] != State::kInUse) return false;
    switch (instruction.flow) {
      case Flow::kReturn:
      case Flow::kCall:
        return true;
      case Flow::kJump:
      case Flow::kBranch:
        return function_.At(instruction.target) == nullptr;
      case Flow::kIndirectJump:
        return cases_.empty();
      default:
        return false;
    }
  }

 private:
  size_t IndexOf(const Instruction& instruction) const {
    return static_cast<size_t>(&instruction - function_.instructions.data());
  }

  void Reach(const Instruction* instruction, State state) {
    if (instruction == nullptr || state <= states_[IndexOf(*instruction)]) return;
    states_[IndexOf(*instruction)] = state;
    pending_.push_back(instruction);
  }

  void Settle() {
    while (!pending_.empty()) {
      const Instruction& instruction = *pending_.back();
      pending_.pop_back();
      Pass(instruction, states_[IndexOf(instruction)]);
    }
  }

  void Pass(const Instruction& instruction, State state) {
    if (instruction.writesUpperHalves) state = State::kInUse;
    if (instruction.clearsUpperHalves) state = State::kClear;
    switch (instruction.flow) {
      case Flow::kCall:  // the function that is called obeys the same rule
        Reach(function_.At(instruction.Next()), State::kClear);
        break;
      case Flow::kNext:
        Reach(function_.At(instruction.Next()), state);
        break;
      case Flow::kBranch:
        Reach(function_.At(instruction.Next()), state);
        Reach(function_.At(instruction.target), state);
        break;
      case Flow::kJump:
        Reach(function_.At(instruction.target), state);
        break;
      case Flow::kIndirectJump:
        atTable_ = std::max(atTable_, state);
        for (const Instruction* code : cases_) Reach(code, state);
        break;
      case Flow::kReturn:
      case Flow::kStop:
        break;
    }
  }

  const Instruction* FirstUnreached() const {
    for (const Instruction& instruction : function_.instructions) {
      if (states_[IndexOf(instruction)] == State::kUnreached && !instruction.isPadding) return &instruction;
    }
    return nullptr;
  }

  const Function& function_;
  std::vector<State> states_;                // in front of each instruction
  std::vector<const Instruction*> pending_;  // with a new state to pass on
  State atTable_ = State::kUnreached;        // in front of jumps through a register
  std::vector<const Instruction*> cases_;
};

}  // namespace

// Whoever runs next, the caller or the C library, may use the encoding of SSE, and that waits for upper
// halves in use or drags them along at every instruction. Compilers clear them, but not on the way of a
// vector that is passed or given back by value.
void CheckUpperHalves(const Function& function, const CodeContext& context) {
  const auto writes = [](const Instruction& instruction) { return instruction.writesUpperHalves; };
  if (std::none_of(function.instructions.begin(), function.instructions.end(), writes)) return;
  const UpperHalves upperHalves(function);
  for (const Instruction& instruction : function.instructions) {
    if (upperHalves.LeavesInUse(instruction)) {
      context.Add(function, instruction, "leaves the function with 256-bit vectors in use");
    }
  }
}

}  // namespace check_objects
