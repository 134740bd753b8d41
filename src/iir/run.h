// A stream through an IIR state: what the block filters call, whoever made the state.
#ifndef ORBS_IIR_RUN_H
#define ORBS_IIR_RUN_H

#include "iir/state/state.h"

namespace orbs::ORBS_VARIANT::iir {

// `count` is at least 1; src and dst are one array or do not overlap. Kind is one of the four of IirKindsOf.
template <class Kind>
void RunIir(IirView<Kind> view, const typename Kind::Data* src, typename Kind::Data* dst, Orb32s count,
            Orb32s scaleFactor);

extern template void RunIir(IirView<ArbitraryOrderOf<RealNumbers>>, const Orb16s*, Orb16s*, Orb32s, Orb32s);
extern template void RunIir(IirView<CascadeOf<RealNumbers>>, const Orb16s*, Orb16s*, Orb32s, Orb32s);
extern template void RunIir(IirView<ArbitraryOrderOf<ComplexNumbers>>, const Orb16sc*, Orb16sc*, Orb32s,
                            Orb32s);
extern template void RunIir(IirView<CascadeOf<ComplexNumbers>>, const Orb16sc*, Orb16sc*, Orb32s, Orb32s);

}  // namespace orbs::ORBS_VARIANT::iir

#endif
