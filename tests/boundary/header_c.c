/* The public header in C99: types as documented, constants that are constant expressions, prototypes that
 * take what a C program hands them.
 */
#include <orbs90lgc.h>
#include <stddef.h>

#define CHECK(name, condition) typedef char check##name[(condition) ? 1 : -1]
CHECK(Sizes, sizeof(Orb8u) == 1 && sizeof(Orb8s) == 1 && sizeof(Orb16u) == 2 && sizeof(Orb16s) == 2 &&
                 sizeof(Orb32u) == 4 && sizeof(Orb32s) == 4 && sizeof(Orb64s) == 8 && sizeof(Orb32f) == 4 &&
                 sizeof(Orb64f) == 8);
CHECK(Pairs, sizeof(Orb16sc) == 4 && sizeof(Orb32sc) == 8 && sizeof(Orb32fc) == 8 && sizeof(Orb64fc) == 16);
CHECK(RealFirst, offsetof(Orb16sc, re) == 0 && offsetof(Orb32sc, re) == 0 && offsetof(Orb32fc, re) == 0 &&
                     offsetof(Orb64fc, re) == 0);
CHECK(Signs, (Orb8s)-1 < 0 && (Orb16s)-1 < 0 && (Orb32s)-1 < 0 && (Orb64s)-1 < 0 && (OrbStatus)-1 < 0 &&
                 (Orb32u)-1 > 0);
CHECK(Integers, sizeof(OrbStatus) == 4 && sizeof(OrbAlgHint) == 4);
CHECK(Version, offsetof(OrbLibraryVersion, build) == 12 && offsetof(OrbLibraryVersion, targetCpu) == 16);

int orbsTestUseHeaderFromC(OrbStatus status);
int orbsTestUseHeaderFromC(OrbStatus status) {
  const Orb8u codes[2] = {0x55, 0xD5};
  Orb16s samples[2];
  const OrbAlgHint hint = HintFast;
  switch (status) {
    case StatusOk:
      return legacy90orbsALawToLin_8u16s(codes, samples, 2) + hint;
    case StatusNoCpuSupport:
      return legacy90orbsInit();
    case StatusNullPointer:
      return legacy90orbsGetLibVersion()->targetCpu[0];
    default:
      return 0;
  }
}
