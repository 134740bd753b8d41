// IIR filters, called through the shared library.
//
// The peer "chain" is one dependent multiply-add a sample, which no filter that makes one result from the one
// before can beat; the ratio to it tells how far look-ahead and lanes get past that.
#include <cmath>
#include <memory>
#include <string>

#include "bench/compare.h"
#include "bench/iir/peers.h"
#include "orbs90lgc.h"

namespace orbs::bench {
namespace {

using native::IirTaps;

template <class T>
T FromReal(double re, double im) {
  if constexpr (std::is_class_v<T>) {
    return {static_cast<decltype(T::re)>(re), static_cast<decltype(T::im)>(im)};
  } else {
    return static_cast<T>(re);
  }
}

template <class T>
T Sample(Orb32s i) {
  return FromReal<T>(std::lround(4000 * Random(2 * i)), std::lround(4000 * Random(2 * i + 1)));
}

// Sections of about unit gain whose poles lie well inside the unit circle.
template <class Tap>
IirTaps<Tap> Cascade(Orb32s sectionCount) {
  IirTaps<Tap> taps{2, sectionCount, {}};
  for (Orb32s s = 0; s < sectionCount; ++s) {
    for (double value : {0.3 + 0.01 * s, 0.3, 0.2, 1.0, -0.9 + 0.02 * s, 0.5}) {
      taps.values.push_back(FromReal<Tap>(value, value == 1.0 ? 0 : 0.1 * Random(s)));
    }
  }
  return taps;
}
template <class Tap>
IirTaps<Tap> Order(Orb32s order) {
  IirTaps<Tap> taps{order, 0, {}};
  for (Orb32s k = 0; k <= order; ++k) taps.values.push_back(FromReal<Tap>(0.3 / (k + 1), 0.1 * Random(k)));
  taps.values.push_back(FromReal<Tap>(1, 0));
  for (Orb32s k = 1; k <= order; ++k) {
    taps.values.push_back(FromReal<Tap>(0.5 * Random(k) / order, 0.3 * Random(-k) / order));
  }
  return taps;
}

struct Real {
  using Tap = Orb32f;
  using Data = Orb16s;
  static constexpr double kOperations = 1;
  static constexpr auto* Filter = legacy90orbsIIR32s_16s_Sfs;
  static constexpr auto* One = legacy90orbsIIROne32s_16s_Sfs;
  static constexpr auto* Free = legacy90orbsIIRFree32s_16s;
  static constexpr auto* MakeOrder = legacy90orbsIIRInitAlloc32s_16s32f;
  static constexpr auto* MakeCascade = legacy90orbsIIRInitAlloc32s_BiQuad_16s32f;
};
struct Complex {
  using Tap = Orb32fc;
  using Data = Orb16sc;
  static constexpr double kOperations = 4;  // a complex multiplication with addition, against a real one
  static constexpr auto* Filter = legacy90orbsIIR32sc_16sc_Sfs;
  static constexpr auto* One = legacy90orbsIIROne32sc_16sc_Sfs;
  static constexpr auto* Free = legacy90orbsIIRFree32sc_16sc;
  static constexpr auto* MakeOrder = legacy90orbsIIRInitAlloc32sc_16sc32fc;
  static constexpr auto* MakeCascade = legacy90orbsIIRInitAlloc32sc_BiQuad_16sc32fc;
};

template <class F>
void Compare(const std::string& name, const IirTaps<typename F::Tap>& taps,
             std::initializer_list<Orb32s> sizes) {
  using Tap = typename F::Tap;
  using Data = typename F::Data;
  const Orb32s sections = taps.sectionCount;
  const double products = sections == 0 ? 2.0 * taps.order + 1 : 5.0 * sections;
  CompareAtSizes(name, {0, 0, 2 * products * F::kOperations}, sizes, [=](Comparison& c, Orb32s n) {
    const Data* src = c.Array<Data>(n, Sample<Data>);
    Data* dst = c.Array<Data>(n);
    IIRState* made = nullptr;
    if (sections == 0) {
      F::MakeOrder(&made, taps.values.data(), taps.order, nullptr);
    } else {
      F::MakeCascade(&made, taps.values.data(), sections, nullptr);
    }
    const std::shared_ptr<IIRState> state(made, F::Free);
    if (n == 1) {
      c.Ours([=] { F::One(*src, dst, state.get(), 0); });
    } else {
      c.Ours([=] { F::Filter(src, dst, n, state.get(), 0); });
    }
    const Tap* floatSrc = c.Array<Tap>(n, Sample<Tap>);
    Tap* floatDst = c.Array<Tap>(n);
    c.Peer("iirfilt", native::LiquidIir(taps, floatSrc, floatDst, n));
    c.Peer("loop", native::IirLoop(taps, src, dst, n));
    Orb32f* chain = c.Array<Orb32f>(4, [](Orb32s) { return 0.5; });
    c.Peer("chain", native::DependentMultiplyAdds(chain, n));
  });
}

void Declare() {
  for (const Orb32s sections : {1, 3, 10, 20}) {
    const std::string count = std::to_string(sections) + (sections == 1 ? " biquad" : " biquads");
    Compare<Real>("IIR32s_16s_Sfs " + count, Cascade<Orb32f>(sections), {160, 4096});
    Compare<Complex>("IIR32sc_16sc_Sfs " + count, Cascade<Orb32fc>(sections), {160, 4096});
    Compare<Real>("IIROne32s_16s_Sfs " + count, Cascade<Orb32f>(sections), {1});
  }
  for (const Orb32s order : {1, 2, 4, 8, 20}) {
    const std::string count = "order " + std::to_string(order);
    Compare<Real>("IIR32s_16s_Sfs " + count, Order<Orb32f>(order), {160, 4096});
    Compare<Complex>("IIR32sc_16sc_Sfs " + count, Order<Orb32fc>(order), {160, 4096});
    Compare<Real>("IIROne32s_16s_Sfs " + count, Order<Orb32f>(order), {1});
  }
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
