// Calls with every argument register set, and a function that notes how it was called (registers.S).
#ifndef ORBS_TESTS_BOUNDARY_REGISTERS_H
#define ORBS_TESTS_BOUNDARY_REGISTERS_H

#include <cstdint>

extern "C" {

// What a caller hands over, and what it expects to find unchanged. The assembler file knows the offsets.
struct OrbsTestRegisters {
  uintptr_t stack[4];      // arguments in memory
  uintptr_t saved[3];      // registers that belong to the caller: rbx, r12, r13; ebx, esi, edi
  uintptr_t stackPointer;  // on arrival
#ifdef __x86_64__
  uintptr_t integer[6];    // rdi, rsi, rdx, rcx, r8, r9
  uintptr_t vector[8][2];  // xmm0 to xmm7
#endif
};

// Calls `function` with the registers of `in`; `in->stackPointer` is set to what the function should find.
// Gives the function's result.
uintptr_t orbsTestCall(void (*function)(), OrbsTestRegisters* in);

// Notes its registers in orbsTestArrived, counts, and returns kOrbsTestResult.
void orbsTestRecorder();
extern OrbsTestRegisters orbsTestArrived;
extern int32_t orbsTestArrivals;
}

inline constexpr uintptr_t kOrbsTestResult = 0x600DBEEF;

#endif
