// How much a test does. On i386 every instruction is emulated, and with sanitizers every access is checked:
// there the long runs are cut, which take minutes and would find what the native run finds anyway.
#ifndef ORBS_TESTS_SUPPORT_EFFORT_H
#define ORBS_TESTS_SUPPORT_EFFORT_H

namespace orbs::test {

#ifdef __SANITIZE_ADDRESS__
inline constexpr bool kThorough = false;
#else
inline constexpr bool kThorough = sizeof(void*) == 8;
#endif

// The length of a run, or a tenth or so of it.
constexpr int Effort(int thorough, int quick) { return kThorough ? thorough : quick; }

}  // namespace orbs::test

#endif
