/* Prints what the library makes of the processor that runs it: the status of Init, the code of the selected
 * variant and its name. Before that the variant's kernels run: every A-law and mu-law code is decoded and
 * encoded again, in integers and in floating point.
 */
#include <orbs90lgc.h>
#include <stdio.h>

enum { kCodes = 256, kMinusZero = 0x7F, kPlusZero = 0xFF };

/* Whether all codes came back; mu-law has two codes for zero and gives the positive one. */
static int CameBack(const Orb8u* codes, int hasMinusZero) {
  int i;
  for (i = 0; i < kCodes; ++i) {
    if (codes[i] != (hasMinusZero && i == kMinusZero ? kPlusZero : i)) return 0;
  }
  return 1;
}

static int KernelsWork(void) {
  Orb8u codes[kCodes], again[kCodes];
  Orb16s integers[kCodes];
  Orb32f floats[kCodes];
  int i, good = 1;
  for (i = 0; i < kCodes; ++i) codes[i] = (Orb8u)i;

  good &= legacy90orbsALawToLin_8u16s(codes, integers, kCodes) == StatusOk;
  good &= legacy90orbsLinToALaw_16s8u(integers, again, kCodes) == StatusOk && CameBack(again, 0);
  good &= legacy90orbsALawToLin_8u32f(codes, floats, kCodes) == StatusOk;
  good &= legacy90orbsLinToALaw_32f8u(floats, again, kCodes) == StatusOk && CameBack(again, 0);

  good &= legacy90orbsMuLawToLin_8u16s(codes, integers, kCodes) == StatusOk;
  good &= legacy90orbsLinToMuLaw_16s8u(integers, again, kCodes) == StatusOk && CameBack(again, 1);
  good &= legacy90orbsMuLawToLin_8u32f(codes, floats, kCodes) == StatusOk;
  good &= legacy90orbsLinToMuLaw_32f8u(floats, again, kCodes) == StatusOk && CameBack(again, 1);
  return good;
}

int main(void) {
  const int good = KernelsWork();
  const OrbLibraryVersion* version = legacy90orbsGetLibVersion();
  printf("%d %.4s %s%s\n", (int)legacy90orbsInit(), version->targetCpu, version->name,
         good ? "" : ", wrong results");
  return 0;
}
