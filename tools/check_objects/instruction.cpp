#include "instruction.h"

namespace check_objects {
namespace {

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
  result.flow = FlowOf(instruction, operands);
  if (operands[0].type == ZYDIS_OPERAND_TYPE_IMMEDIATE && operands[0].imm.is_relative) {
    result.target = {place.section, result.Next().offset + static_cast<uint64_t>(operands[0].imm.value.s)};
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
