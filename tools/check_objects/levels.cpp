#include "levels.h"

#include <map>
#include <sstream>

namespace check_objects {
namespace {

// Each level is the one below it and more: what the selection of variants has asked the processor for. A
// variant's compiler flags may imply more than that: -mavx lets the compiler use POPCNT and SSE4.2, which
// nobody has tested for. MMX is left out for all: it shares its registers with x87, which px computes in.
constexpr const char* kI486 = "I86 I186 I386 I486REAL X87 PAUSE";
constexpr const char* kSse2 = "PENTIUMREAL PPRO CMOV FCMOV FAT_NOP SSE SSEMXCSR SSE_PREFETCH SSE2";

struct LevelRow {
  const char* name;
  const char* below;
  const char* added;
};

constexpr LevelRow kLevels[] = {
    {"common", "px", "CPUID"},
    {"w7", "px", kSse2},
    {"v8", "w7", "SSE3 SSE3X87 SSSE3"},
    {"s8", "v8", "MOVBE"},
    {"p8", "v8", "SSE4"},  // 4.1 alone; 4.2 has a name of its own
    {"g9", "p8", "AVX"},
    {"h9", "g9", "AVX2 AVX2GATHER FMA BMI1 BMI2"},
};

// px: the first 64-bit processors dropped LAHF and SAHF, and the next brought them back.
const std::map<Architecture, std::string> kBase = {
    {Architecture::kI386, std::string(kI486) + " LAHF"},
    {Architecture::kX86_64, std::string(kI486) + " LONGMODE " + kSse2},
};

constexpr Extension kSystemCode = "system code";

// Instructions whose ISA set says too much or too little.
const std::map<ZydisMnemonic, Extension> kExceptions = {
    // For the code that asks the processor what it can.
    {ZYDIS_MNEMONIC_CPUID, "CPUID"},
    {ZYDIS_MNEMONIC_XGETBV, "CPUID"},
    // It exists to fault, which older processors do with it too.
    {ZYDIS_MNEMONIC_UD2, "I386"},
    // Multi-byte nops to processors that do not know them.
    {ZYDIS_MNEMONIC_ENDBR32, "FAT_NOP"},
    {ZYDIS_MNEMONIC_ENDBR64, "FAT_NOP"},
    // Has a bit of its own beside that of AVX.
    {ZYDIS_MNEMONIC_VPCLMULQDQ, "PCLMULQDQ"},
    // With a source in memory they show no register of MMX.
    {ZYDIS_MNEMONIC_CVTPI2PS, "MMX"},
    {ZYDIS_MNEMONIC_CVTPI2PD, "MMX"},
    {ZYDIS_MNEMONIC_INT3, "I86"},
    {ZYDIS_MNEMONIC_CLI, kSystemCode},
    {ZYDIS_MNEMONIC_STI, kSystemCode},
    {ZYDIS_MNEMONIC_IRET, kSystemCode},
    {ZYDIS_MNEMONIC_IRETD, kSystemCode},
    {ZYDIS_MNEMONIC_IRETQ, kSystemCode},
};

// What no compiler emits for us: found in our code, it is data that was taken for instructions, or worse.
bool IsSystemCode(const ZydisDecodedInstruction& instruction) {
  switch (instruction.meta.category) {
    case ZYDIS_CATEGORY_DECIMAL:
    case ZYDIS_CATEGORY_INTERRUPT:
    case ZYDIS_CATEGORY_IO:
    case ZYDIS_CATEGORY_IOSTRINGOP:
    case ZYDIS_CATEGORY_SEGOP:
    case ZYDIS_CATEGORY_SYSCALL:
    case ZYDIS_CATEGORY_SYSRET:
    case ZYDIS_CATEGORY_SYSTEM:
      return true;
    default:
      return instruction.meta.branch_type == ZYDIS_BRANCH_TYPE_FAR ||
             (instruction.attributes & ZYDIS_ATTRIB_IS_PRIVILEGED) != 0;
  }
}

bool HasMmxRegister(const ZydisDecodedInstruction& instruction, const ZydisDecodedOperand* operands) {
  for (int i = 0; i < instruction.operand_count; ++i) {
    if (operands[i].type == ZYDIS_OPERAND_TYPE_REGISTER &&
        ZydisRegisterGetClass(operands[i].reg.value) == ZYDIS_REGCLASS_MMX) {
      return true;
    }
  }
  return false;
}

void AddWords(const std::string& words, Level& level) {
  std::istringstream stream(words);
  for (std::string word; stream >> word;) level.insert(word);
}

using Levels = std::map<std::string_view, Level>;

Levels MakeLevels(Architecture architecture) {
  Levels levels;
  AddWords(kBase.at(architecture), levels["px"]);
  for (const LevelRow& row : kLevels) {
    levels[row.name] = levels.at(row.below);
    AddWords(row.added, levels[row.name]);
  }
  return levels;
}

const std::map<Architecture, Levels>& AllLevels() {
  static const std::map<Architecture, Levels> levels = {
      {Architecture::kI386, MakeLevels(Architecture::kI386)},
      {Architecture::kX86_64, MakeLevels(Architecture::kX86_64)},
  };
  return levels;
}

}  // namespace

Extension ExtensionOf(const ZydisDecodedInstruction& instruction, const ZydisDecodedOperand* operands) {
  const auto exception = kExceptions.find(instruction.mnemonic);
  if (exception != kExceptions.end()) return exception->second;
  if (IsSystemCode(instruction)) return kSystemCode;
  if (HasMmxRegister(instruction, operands)) return "MMX";
  return ZydisISASetGetString(instruction.meta.isa_set);
}

bool IsPart(std::string_view name) { return AllLevels().at(Architecture::kI386).count(name) != 0; }

const Level& LevelOf(Architecture architecture, std::string_view part) {
  return AllLevels().at(architecture).at(part);
}

}  // namespace check_objects
