// Random numbers, called through the shared library.
#include "bench/compare.h"
#include "bench/gen/random_peers.h"
#include "orbs90lgc.h"

namespace orbs::bench {
namespace {

template <class T>
using RandomFunction = OrbStatus (*)(T*, Orb32s, T, T, Orb32u*);

template <class T, class MorePeers>
void CompareUniform(const char* name, RandomFunction<T> ours, T low, T high, MorePeers morePeers) {
  CompareAtSizes(name, {0, sizeof(T)}, {64, 1024, 65536}, [=](Comparison& c, Orb32s n) {
    T* dst = c.Array<T>(n);
    Orb32u* seed = c.Array<Orb32u>(1);
    c.Ours([=] { ours(dst, n, low, high, seed); });
    c.Peer("mt19937", [=] { native::StdUniform<native::Engine::kMersenneTwister>(dst, n, low, high); });
    c.Peer("minstd", [=] { native::StdUniform<native::Engine::kLinearCongruential>(dst, n, low, high); });
    morePeers(c, dst, n);
  });
}

template <class T, class MorePeers>
void CompareGauss(const char* name, RandomFunction<T> ours, T mean, T stdDev, MorePeers morePeers) {
  CompareAtSizes(name, {0, sizeof(T)}, {64, 1024, 65536}, [=](Comparison& c, Orb32s n) {
    T* dst = c.Array<T>(n);
    Orb32u* seed = c.Array<Orb32u>(1);
    c.Ours([=] { ours(dst, n, mean, stdDev, seed); });
    c.Peer("mt19937", [=] { native::StdGauss<native::Engine::kMersenneTwister>(dst, n, mean, stdDev); });
    c.Peer("minstd", [=] { native::StdGauss<native::Engine::kLinearCongruential>(dst, n, mean, stdDev); });
    morePeers(c, dst, n);
  });
}

void Declare() {
  const auto noMore = [](Comparison&, auto*, Orb32s) {};
  CompareUniform<Orb16s>("RandUniform_Direct_16s", legacy90orbsRandUniform_Direct_16s, -1000, 1000, noMore);
  CompareUniform<Orb32f>("RandUniform_Direct_32f", legacy90orbsRandUniform_Direct_32f, -1, 1,
                         [](Comparison& c, Orb32f* dst, Orb32s n) {
                           c.Peer("liquid", [=] { native::LiquidUniform(dst, n, -1, 1); });
                         });
  CompareUniform<Orb64f>("RandUniform_Direct_64f", legacy90orbsRandUniform_Direct_64f, -1, 1, noMore);
  CompareGauss<Orb16s>(
      "RandGauss_Direct_16s", legacy90orbsRandGauss_Direct_16s, 0, 1000,
      [](Comparison& c, Orb16s* dst, Orb32s n) { c.Peer("spandsp", [=] { native::SpandspGauss(dst, n); }); });
  CompareGauss<Orb32f>("RandGauss_Direct_32f", legacy90orbsRandGauss_Direct_32f, 0, 1,
                       [](Comparison& c, Orb32f* dst, Orb32s n) {
                         c.Peer("liquid", [=] { native::LiquidGauss(dst, n, 0, 1); });
                       });
  CompareGauss<Orb64f>("RandGauss_Direct_64f", legacy90orbsRandGauss_Direct_64f, 0, 1, noMore);
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
