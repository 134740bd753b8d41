// An instruction, cut down to what the checks ask of it.
#ifndef ORBS_TOOLS_CHECK_OBJECTS_INSTRUCTION_H
#define ORBS_TOOLS_CHECK_OBJECTS_INSTRUCTION_H

#include <Zydis/Zydis.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "elf_object.h"
#include "levels.h"

namespace check_objects {

// Where an instruction lies in its object.
struct Place {
  uint32_t section;
  uint64_t offset;
};

inline bool operator==(Place a, Place b) { return a.section == b.section && a.offset == b.offset; }
inline bool operator<(Place a, Place b) {
  return a.section != b.section ? a.section < b.section : a.offset < b.offset;
}

// No instruction is there: the target of a jump that leaves the object, or that a register names.
inline constexpr Place kElsewhere = {SHN_UNDEF, 0};

enum class Flow { kNext, kBranch, kJump, kIndirectJump, kCall, kReturn, kStop };

enum class Base { kOther, kStackPointer, kFramePointer };

struct Instruction {
  Place place;
  std::string_view bytes;
  Extension extension = kNoInstruction;
  bool isPadding = false;  // does nothing

  Flow flow = Flow::kNext;
  Place target = kElsewhere;  // of a branch, a jump or a call

  // An access to memory that faults unless the address is a multiple of this; 1 if there is none.
  unsigned neededAlignment = 1;
  Base base = Base::kOther;  // of that access
  bool setsFramePointer = false;
  unsigned alignsStack = 1;  // to a multiple of this

  bool writesUpperHalves = false;  // of vector registers, with anything but zeros
  bool clearsUpperHalves = false;

  Place Next() const { return {place.section, place.offset + bytes.size()}; }
};

class Decoder {
 public:
  explicit Decoder(Architecture architecture);

  // The instruction at the front of `bytes`, which are not empty. What makes none is a byte with
  // kNoInstruction.
  Instruction Decode(Place place, std::string_view bytes) const;

  // In Intel's syntax. Addresses that the linker fills in are shown as they stand in the object.
  std::string Text(const Instruction& instruction) const;

 private:
  ZydisDecoder decoder_;
  ZydisFormatter formatter_;
};

}  // namespace check_objects

#endif
