#include "instruction.h"

namespace check_objects {
namespace {

bool IsRegister(const ZydisDecodedOperand& operand, ZydisRegister is32, ZydisRegister is64) {
  return operand.type == ZYDIS_OPERAND_TYPE_REGISTER &&
         (operand.reg.value == is32 || operand.reg.value == is64);
}

bool IsStackPointer(const ZydisDecodedOperand& operand) {
  return IsRegister(operand, ZYDIS_REGISTER_ESP, ZYDIS_REGISTER_RSP);
}

Base BaseOf(const ZydisDecodedOperand& operand) {
  switch (operand.mem.base) {
    case ZYDIS_REGISTER_ESP:
    case ZYDIS_REGISTER_RSP:
      return Base::kStackPointer;
    case ZYDIS_REGISTER_EBP:
    case ZYDIS_REGISTER_RBP:
      return Base::kFramePointer;
    default:
      return Base::kOther;
  }
}

// Intel sorts instructions on vectors by how they fault. In SSE the classes of those that access memory in
// whole vectors (1, 2 and 4) want it aligned, but for the few that say "unaligned"; in AVX class 1 alone
// does, the aligned moves.
bool FaultsOnMisalignedMemory(const ZydisDecodedInstruction& instruction) {
  switch (instruction.mnemonic) {
    case ZYDIS_MNEMONIC_MOVUPS:
    case ZYDIS_MNEMONIC_MOVUPD:
    case ZYDIS_MNEMONIC_MOVDQU:
    case ZYDIS_MNEMONIC_LDDQU:
    case ZYDIS_MNEMONIC_PCMPESTRI:
    case ZYDIS_MNEMONIC_PCMPESTRM:
    case ZYDIS_MNEMONIC_PCMPISTRI:
    case ZYDIS_MNEMONIC_PCMPISTRM:
      return false;
    default:
      break;
  }
  switch (instruction.meta.exception_class) {
    case ZYDIS_EXCEPTION_CLASS_SSE1:
    case ZYDIS_EXCEPTION_CLASS_SSE2:
    case ZYDIS_EXCEPTION_CLASS_SSE4:
    case ZYDIS_EXCEPTION_CLASS_AVX1:
      return true;
    default:
      return false;
  }
}

Flow FlowOf(const ZydisDecodedInstruction& instruction, const ZydisDecodedOperand* operands) {
  switch (instruction.meta.category) {
    case ZYDIS_CATEGORY_RET:
      return Flow::kReturn;
    case ZYDIS_CATEGORY_CALL:
      return Flow::kCall;
    case ZYDIS_CATEGORY_COND_BR:
      return Flow::kBranch;
    case ZYDIS_CATEGORY_UNCOND_BR:
      return operands[0].type == ZYDIS_OPERAND_TYPE_IMMEDIATE ? Flow::kJump : Flow::kIndirectJump;
    default:
      return instruction.mnemonic == ZYDIS_MNEMONIC_UD2 ? Flow::kStop : Flow::kNext;
  }
}

// Assemblers fill with moves of a register to itself where the oldest processors have no nop that is long
// enough.
bool IsPadding(const ZydisDecodedInstruction& instruction, const ZydisDecodedOperand* operands) {
  switch (instruction.mnemonic) {
    case ZYDIS_MNEMONIC_NOP:
      return true;
    case ZYDIS_MNEMONIC_LEA:
      return operands[1].mem.base == operands[0].reg.value && operands[1].mem.index == ZYDIS_REGISTER_NONE &&
             operands[1].mem.disp.value == 0;
    case ZYDIS_MNEMONIC_MOV:
    case ZYDIS_MNEMONIC_XCHG:
      return operands[0].type == ZYDIS_OPERAND_TYPE_REGISTER &&
             operands[1].type == ZYDIS_OPERAND_TYPE_REGISTER &&
             operands[0].reg.value == operands[1].reg.value;
    default:
      return false;
  }
}

// `and esp, -32` and the like. 1 for all else.
unsigned AlignsStackTo(const ZydisDecodedInstruction& instruction, const ZydisDecodedOperand* operands) {
  if (instruction.mnemonic != ZYDIS_MNEMONIC_AND || !IsStackPointer(operands[0]) ||
      operands[1].type != ZYDIS_OPERAND_TYPE_IMMEDIATE) {
    return 1;
  }
  const auto mask = static_cast<uint32_t>(operands[1].imm.value.u);
  return mask & (0 - mask);  // its lowest bit
}

}  // namespace

Decoder::Decoder(Architecture architecture) {
  const bool is32 = architecture == Architecture::kI386;
  ZydisDecoderInit(&decoder_, is32 ? ZYDIS_MACHINE_MODE_LEGACY_32 : ZYDIS_MACHINE_MODE_LONG_64,
                   is32 ? ZYDIS_STACK_WIDTH_32 : ZYDIS_STACK_WIDTH_64);
  // TZCNT is BSF with a prefix that processors without BMI1 ignore. Compilers write it on every level ("rep
  // bsf") since it is the faster one where it exists; the two differ for zero alone, where the built-in that
  // compiles to it has no defined result. LZCNT, made from BSR in the same way, gives another result for
  // every argument.
  ZydisDecoderEnableMode(&decoder_, ZYDIS_DECODER_MODE_TZCNT, ZYAN_FALSE);
  ZydisFormatterInit(&formatter_, ZYDIS_FORMATTER_STYLE_INTEL);
  ZydisFormatterSetProperty(&formatter_, ZYDIS_FORMATTER_PROP_ADDR_PADDING_ABSOLUTE, ZYDIS_PADDING_DISABLED);
}

Instruction Decoder::Decode(Place place, std::string_view bytes) const {
  Instruction result;
  result.place = place;
  ZydisDecodedInstruction instruction;
  ZydisDecodedOperand operands[ZYDIS_MAX_OPERAND_COUNT];
  if (ZYAN_FAILED(ZydisDecoderDecodeFull(&decoder_, bytes.data(), bytes.size(), &instruction, operands))) {
    result.bytes = bytes.substr(0, 1);
    return result;
  }

  result.bytes = bytes.substr(0, instruction.length);
  result.extension = ExtensionOf(instruction, operands);
  result.isPadding = IsPadding(instruction, operands);
  result.flow = FlowOf(instruction, operands);
  if (operands[0].type == ZYDIS_OPERAND_TYPE_IMMEDIATE && operands[0].imm.is_relative) {
    result.target = {place.section, result.Next().offset + static_cast<uint64_t>(operands[0].imm.value.s)};
  }
  result.alignsStack = AlignsStackTo(instruction, operands);
  result.setsFramePointer = instruction.mnemonic == ZYDIS_MNEMONIC_MOV &&
                            IsRegister(operands[0], ZYDIS_REGISTER_EBP, ZYDIS_REGISTER_RBP) &&
                            IsStackPointer(operands[1]);
  result.clearsUpperHalves =
      instruction.mnemonic == ZYDIS_MNEMONIC_VZEROUPPER || instruction.mnemonic == ZYDIS_MNEMONIC_VZEROALL;

  for (const ZydisDecodedOperand* operand = operands; operand != operands + instruction.operand_count;
       ++operand) {
    if (operand->type == ZYDIS_OPERAND_TYPE_MEMORY && FaultsOnMisalignedMemory(instruction)) {
      result.neededAlignment = operand->size / 8u;
      result.base = BaseOf(*operand);
    }
    if (operand->type == ZYDIS_OPERAND_TYPE_REGISTER && !result.clearsUpperHalves &&
        ZydisRegisterGetClass(operand->reg.value) == ZYDIS_REGCLASS_YMM &&
        (operand->actions & ZYDIS_OPERAND_ACTION_MASK_WRITE) != 0) {
      result.writesUpperHalves = true;
    }
  }
  return result;
}

std::string Decoder::Text(const Instruction& instruction) const {
  ZydisDecodedInstruction decoded;
  ZydisDecodedOperand operands[ZYDIS_MAX_OPERAND_COUNT];
  char text[256];
  if (ZYAN_FAILED(ZydisDecoderDecodeFull(&decoder_, instruction.bytes.data(), instruction.bytes.size(),
                                         &decoded, operands)) ||
      ZYAN_FAILED(ZydisFormatterFormatInstruction(&formatter_, &decoded, operands,
                                                  decoded.operand_count_visible, text, sizeof text,
                                                  instruction.place.offset, nullptr))) {
    return "(bad)";
  }
  return text;
}

}  // namespace check_objects
