// Complex types and arrays as the reals that they are made of.
#ifndef ORBS_CORE_PARTS_H
#define ORBS_CORE_PARTS_H

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

// What a complex type is made of; a real type is its own part.
template <class T>
struct PartsOf {
  using Part = T;
  static constexpr int kCount = 1;
};
template <class Part>
struct ComplexWith;
#define ORBS_COMPLEX_PARTS(Complex, Real) \
  template <>                             \
  struct PartsOf<Complex> {               \
    using Part = Real;                    \
    static constexpr int kCount = 2;      \
  };                                      \
  template <>                             \
  struct ComplexWith<Real> {              \
    using Type = Complex;                 \
  };
ORBS_COMPLEX_PARTS(Orb32fc, Orb32f)
ORBS_COMPLEX_PARTS(Orb64fc, Orb64f)
ORBS_COMPLEX_PARTS(Orb16sc, Orb16s)
ORBS_COMPLEX_PARTS(Orb32sc, Orb32s)
#undef ORBS_COMPLEX_PARTS

template <class T>
using PartOf = typename PartsOf<T>::Part;

// The complex type of these parts.
template <class Part>
using ComplexOf = typename ComplexWith<Part>::Type;

template <class T>
ORBS_INLINE PartOf<T>* Parts(T* array) {
  return reinterpret_cast<PartOf<T>*>(array);
}
template <class T>
ORBS_INLINE const PartOf<T>* Parts(const T* array) {
  return reinterpret_cast<const PartOf<T>*>(array);
}

}  // namespace orbs::ORBS_VARIANT

#endif
