// Every call of an export by the tests goes through a check of what a caller is owed: its registers, the
// direction flag, the x87 stack and both floating-point control words come back as they were, and the upper
// halves of the vector registers come back clear (in optimized code), since SSE code is slow on many
// processors while they are not. On i386 the export is called from a frame that is aligned to 4 bytes and no
// more: callers that are older than the 16-byte rule do so.
//
// The programs that use this are linked with --wrap for every export (checked_calls.S has the entries).
#ifndef ORBS_TESTS_SUPPORT_CHECKED_CALLS_CHECKED_CALLS_H
#define ORBS_TESTS_SUPPORT_CHECKED_CALLS_CHECKED_CALLS_H

// What the registers that belong to the caller hold during the call: this number and the ones that follow it.
#define ORBS_KEPT_REGISTER 0x5AFE0000

#ifndef __ASSEMBLER__

#include <cstdint>

extern "C" {

// The assembler file knows the offsets.
struct OrbsCallRecord {
  // As the call left them.
#ifdef __x86_64__
  uintptr_t kept[5];  // rbx, r12 to r15
#else
  uintptr_t kept[3];  // ebx, esi, edi
#endif
  uintptr_t flags;
  // As they were before the call.
  uint32_t mxcsr;
  uint16_t x87Control;
};

// Fails the running test if the export with this place in the list broke a rule.
[[gnu::visibility("hidden")]] void orbsAfterCall(int exportIndex, const OrbsCallRecord* record);

// Looks at the upper halves of the registers that both targets have; needs AVX.
[[gnu::visibility("hidden")]] bool orbsUpperHalvesHoldData();

// Whether there are upper halves.
[[gnu::visibility("hidden")]] extern bool orbsHasAvx;
}

#endif
#endif
