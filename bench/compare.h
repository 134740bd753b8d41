// Comparisons: the same work done by this library and by its peers, measured beside each other in one run.
//
// A family's file declares its comparisons in one function and registers that function:
//
//   void Declare() {
//     CompareInPlaces("VecMul_32fc", {16, 8}, [](Comparison& c, Orb32s n) {
//       const Orb32fc* a = c.Array<Orb32fc>(n, OnUnitCircle);
//       ...
//       c.Ours([=] { VecMul_32fc(a, b, dst, n); });
//       c.Peer("VOLK", [=] { volk_32fc_x2_multiply_32fc(...); });
//     });
//   }
//   const Family family(ORBS_VARIANT_INDEX, Declare);
//
// A comparison's function runs when its turn has come, so that only one comparison's arrays exist at a time.
// A call works on the same data over and over: what is done in place must leave values that stay ordinary.
#ifndef ORBS_BENCH_COMPARE_H
#define ORBS_BENCH_COMPARE_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "orbs90lgc/types.h"

namespace orbs::bench {

// Does the same call as often as it is told. The loop is compiled with the call inside it.
using Repeat = std::function<void(int64_t times)>;

template <class Call>
Repeat Repeated(Call call) {
  return [call](int64_t times) {
    for (; times > 0; --times) {
      call();
      // What the call wrote counts as read, and what it reads as changed.
      asm volatile("" ::: "memory");
    }
  };
}

class Comparison {
 public:
  struct Side {
    std::string name;
    Repeat repeat;
  };

  template <class Call>
  void Ours(Call call) {
    ours_ = Repeated(call);
  }
  template <class Call>
  void Peer(const char* name, Call call) {
    peers_.push_back({name, Repeated(call)});
  }

  // Arrays begin on a multiple of 64 bytes, which is what the peers like best, and live as long as this.
  template <class T>
  T* Array(Orb32s n) {
    return static_cast<T*>(Allocate(static_cast<size_t>(n) * sizeof(T)));
  }
  // Filled with element(i) for each index i.
  template <class T, class Element>
  T* Array(Orb32s n, Element element) {
    T* const array = Array<T>(n);
    for (Orb32s i = 0; i < n; ++i) array[i] = static_cast<T>(element(i));
    return array;
  }

  const Repeat& ours() const { return ours_; }
  const std::vector<Side>& peers() const { return peers_; }

 private:
  void* Allocate(size_t bytes);  // zeroed, so that every page exists

  struct Free {
    void operator()(void* block) const;
  };
  std::vector<std::unique_ptr<void, Free>> blocks_;
  Repeat ours_;
  std::vector<Side> peers_;
};

// What one element costs: bytes read and written, for which a copy of the same bytes is the yardstick, or
// arithmetic operations. The rate of the table is in whichever is given.
struct Work {
  double bytesRead = 0;
  double bytesWritten = 0;
  double operations = 0;

  double Bytes() const { return bytesRead + bytesWritten; }
};

using Body = std::function<void(Comparison&, Orb32s n)>;

// Declares a comparison for each size.
void CompareAtSizes(const std::string& name, Work work, std::initializer_list<Orb32s> sizes, Body body);

// Declares it three times: with all data in the first-level cache, in the second-level cache, and beyond
// the caches.
void CompareInPlaces(const std::string& name, Work work, Body body);

inline constexpr int kEveryVariant = -1;

// Registers a function that declares comparisons. Give the index of the variant if the function's file is
// compiled once per variant; it is then called only if that variant is measured.
struct Family {
  Family(int variant, void (*declare)());
};

// Declares everything that serves this variant. False if no family has it, which means a build without it.
bool DeclareFamilies(int variant);

struct DeclaredComparison {
  std::string name;
  Orb32s size;
  Work work;
  Body body;
};
const std::vector<DeclaredComparison>& DeclaredComparisons();

// ---- Values for arrays: functions of an index, the same in every run ----

// From -1 up to 1, without a visible pattern.
double Random(Orb32s i);
Orb32fc OnUnitCircle(Orb32s i);

}  // namespace orbs::bench

#endif
