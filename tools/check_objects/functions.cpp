#include "functions.h"

#include <algorithm>
#include <map>

namespace check_objects {
namespace {

constexpr std::string_view kCold = ".cold";

bool EndsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

using SymbolsByOffset = std::map<uint64_t, std::string_view>;

// Where functions begin in a section. Of several names for the same code one is as good as another.
SymbolsByOffset FindStarts(const ElfObject& object, uint32_t section) {
  SymbolsByOffset starts = {{0, ""}};
  for (const Symbol& symbol : object.Symbols()) {
    // Assembler sources do not have to tell functions from other labels, but those that others see are.
    if (symbol.section == section && (symbol.type == STT_FUNC || symbol.IsGlobal())) {
      std::string_view& name = starts[symbol.value];
      if (name.empty()) name = symbol.name;
    }
  }
  return starts;
}

// What a branch names through the linker. The field is counted from its own place, the jump from the end of
// the instruction.
void Resolve(const ElfObject& object, const Relocation& relocation, Instruction& instruction) {
  if (relocation.symbol >= object.Symbols().size()) return;
  const Symbol& symbol = object.Symbols()[relocation.symbol];
  const uint64_t behindField = instruction.Next().offset - relocation.offset;
  instruction.target = {symbol.section,
                        symbol.value + static_cast<uint64_t>(relocation.addend) + behindField};
  if (instruction.flow == Flow::kCall && IsPcThunk(symbol.name)) instruction.flow = Flow::kNext;
}

std::vector<Instruction> DecodeRange(const ElfObject& object, const Decoder& decoder, Place place,
                                     uint64_t end) {
  const Section& section = object.Sections()[place.section];
  auto relocation = std::lower_bound(section.relocations.begin(), section.relocations.end(), place.offset,
                                     [](const Relocation& r, uint64_t offset) { return r.offset < offset; });
  std::vector<Instruction> instructions;
  while (place.offset < end) {
    Instruction instruction = decoder.Decode(place, section.bytes.substr(place.offset, end - place.offset));
    place = instruction.Next();
    for (; relocation != section.relocations.end() && relocation->offset < place.offset; ++relocation) {
      if (!(instruction.target == kElsewhere)) Resolve(object, *relocation, instruction);
    }
    instructions.push_back(instruction);
  }
  return instructions;
}

// Moves the code of each NAME.cold into NAME.
void JoinColdParts(std::vector<Function>& functions) {
  std::map<std::string_view, Function*> byName;
  for (Function& function : functions) byName.emplace(function.symbol, &function);
  for (Function& part : functions) {
    if (!EndsWith(part.symbol, kCold)) continue;
    const auto parent = byName.find(part.symbol.substr(0, part.symbol.size() - kCold.size()));
    if (parent == byName.end()) continue;
    std::vector<Instruction>& instructions = parent->second->instructions;
    instructions.insert(instructions.end(), part.instructions.begin(), part.instructions.end());
    std::sort(instructions.begin(), instructions.end(),
              [](const Instruction& a, const Instruction& b) { return a.place < b.place; });
    part.instructions.clear();
  }
}

}  // namespace

const Instruction* Function::At(Place place) const {
  const auto found = std::lower_bound(instructions.begin(), instructions.end(), place,
                                      [](const Instruction& a, Place wanted) { return a.place < wanted; });
  return found != instructions.end() && found->place == place ? &*found : nullptr;
}

std::vector<Function> CutIntoFunctions(const ElfObject& object, const Decoder& decoder) {
  std::vector<Function> functions;
  for (uint32_t section = 0; section < object.Sections().size(); ++section) {
    if (!object.Sections()[section].IsCode()) continue;
    const SymbolsByOffset starts = FindStarts(object, section);
    for (auto start = starts.begin(); start != starts.end(); ++start) {
      const auto next = std::next(start);
      const uint64_t size = object.Sections()[section].bytes.size();
      const uint64_t end = next == starts.end() ? size : std::min(next->first, size);
      const Place entry = {section, start->first};
      functions.push_back({start->second, entry, DecodeRange(object, decoder, entry, end)});
    }
  }
  JoinColdParts(functions);
  functions.erase(std::remove_if(functions.begin(), functions.end(),
                                 [](const Function& function) { return function.instructions.empty(); }),
                  functions.end());
  return functions;
}

bool IsPcThunk(std::string_view symbol) { return symbol.rfind("__x86.get_pc_thunk.", 0) == 0; }

}  // namespace check_objects
