// Ramps, slopes and chirps, called through the shared library, beside what the memory allows: a fill of the
// same bytes with one value.
#include <cmath>
#include <cstring>

#include "bench/compare.h"
#include "orbs90lgc.h"

namespace orbs::bench {
namespace {

// The whole array inside the range of the type, so that nothing is saturated.
template <class T>
void CompareRamp(const char* name, OrbStatus (*ours)(T*, Orb32s, Orb32f, Orb32f)) {
  CompareInPlaces(name, {0, sizeof(T)}, [=](Comparison& c, Orb32s n) {
    T* dst = c.Array<T>(n);
    const Orb32f slope = 100.0f / static_cast<Orb32f>(n);
    c.Ours([=] { ours(dst, n, 1, slope); });
    c.Peer("memset", [=] { std::memset(dst, 0x55, static_cast<size_t>(n) * sizeof(T)); });
  });
}

void Declare() {
  CompareRamp("VectorRamp_8u", legacy90orbsVectorRamp_8u);
  CompareRamp("VectorRamp_8s", legacy90orbsVectorRamp_8s);
  CompareRamp("VectorRamp_16u", legacy90orbsVectorRamp_16u);
  CompareRamp("VectorRamp_16s", legacy90orbsVectorRamp_16s);
  CompareRamp("VectorRamp_32u", legacy90orbsVectorRamp_32u);
  CompareRamp("VectorRamp_32s", legacy90orbsVectorRamp_32s);
  CompareRamp("VectorRamp_32f", legacy90orbsVectorRamp_32f);
  CompareRamp("VectorRamp_64f", legacy90orbsVectorRamp_64f);
  // The line takes 255 elements of each array; the rest is filled.
  CompareInPlaces("VectorSlope_8s", {0, 1}, [](Comparison& c, Orb32s n) {
    Orb8s* dst = c.Array<Orb8s>(n);
    c.Ours([=] { legacy90orbsVectorSlope_8s(dst, n, static_cast<Orb32f>(-n / 2), 1); });
    c.Peer("memset", [=] { std::memset(dst, 0x55, static_cast<size_t>(n)); });
  });
  // The formula with the C library's sine.
  CompareAtSizes("VectorJaehne_8s", {0, 1}, {1024, 65536}, [](Comparison& c, Orb32s n) {
    Orb8s* dst = c.Array<Orb8s>(n);
    c.Ours([=] { legacy90orbsVectorJaehne_8s(dst, n, 127); });
    c.Peer("sin", [=] {
      const double factor = 1.5707963267948966 / n;
      for (Orb32s i = 0; i < n; ++i) {
        dst[i] = static_cast<Orb8s>(std::lrint(127 * std::sin(factor * (static_cast<double>(i) * i))));
      }
    });
  });
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
