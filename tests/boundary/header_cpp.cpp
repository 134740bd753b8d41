// The public header in C++: clean under pedantic warnings, and with C linkage.
#include <orbs90lgc.h>

extern "C" int orbsTestUseHeaderFromC(OrbStatus status);
int OrbsTestUseHeaderFromCpp();
int OrbsTestUseHeaderFromCpp() {
  const OrbAlgHint hint = HintAccurate;
  const Orb64fc pair = {1.0, 2.0};
  return legacy90orbsInit() + orbsTestUseHeaderFromC(StatusOk) + hint + static_cast<int>(pair.re);
}
