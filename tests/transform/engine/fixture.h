// Plans in memory of exactly the reported size, and transforms of guarded arrays.
#ifndef ORBS_TESTS_TRANSFORM_ENGINE_FIXTURE_H
#define ORBS_TESTS_TRANSFORM_ENGINE_FIXTURE_H

#include <cmath>
#include <memory>
#include <string>

#include "tests/support/effort.h"
#include "tests/support/guarded_array.h"
#include "tests/support/random_data.h"
#include "tests/transform/engine/access.h"
#include "tests/transform/engine/reference.h"

namespace orbs::test {

using Bytes = GuardedArray<unsigned char>;

template <class T>
inline constexpr int kWidth = sizeof(T) == 4 ? 0 : 1;
template <class T>
constexpr FftKind RealKind() {
  return kWidth<T> == 0 ? kR_32f : kR_64f;
}

// The promised accuracy, relative to the root mean square of the result.
template <class T>
long double ErrorLimit(int order) {
  return (kWidth<T> == 0 ? 1.0e-7L : 2.0e-16L) * std::sqrt(static_cast<long double>(order < 1 ? 1 : order));
}

// A plan built by Init in memory that ends where the sizes say, at an address of which only `gap` is known.
// The init buffer is unmapped as soon as the plan is built, and so is memory behind the plan.
class TestPlan {
 public:
  TestPlan(const FftAccess& fft, FftKind kind, int order, Orb32s flag = FftScaleNone, size_t gap = 0)
      : fft_(fft), kind_(kind), gap_(gap) {
    Orb32s planSize = -1;
    Orb32s initSize = -1;
    EXPECT_EQ(Access().getSize(order, flag, HintNone, &planSize, &initSize, &workSize_), StatusOk);
    memory_ = std::make_unique<Bytes>(static_cast<size_t>(planSize), gap);
    Bytes init(static_cast<size_t>(initSize), gap);
    EXPECT_EQ(
        Access().init(&plan_, order, flag, HintNone, memory_->data(), initSize > 0 ? init.data() : nullptr),
        StatusOk);
    EXPECT_TRUE(init.GuardsIntact());
    Orb32s bufSize = -1;
    EXPECT_EQ(Access().getBufSize(plan_, &bufSize), StatusOk);
    EXPECT_EQ(bufSize, workSize_);
  }
  ~TestPlan() {
    EXPECT_TRUE(memory_->GuardsIntact());
    EXPECT_EQ(Access().free(plan_), StatusOk);
  }

  const FftPlanAccess& Access() const { return fft_.plan[kind_]; }
  const FftAccess& Fft() const { return fft_; }
  FftKind Kind() const { return kind_; }
  void* Get() const { return plan_; }
  Orb32s WorkSize() const { return workSize_; }

  // A work buffer of exactly the reported size.
  std::unique_ptr<Bytes> MakeWork() const {
    return std::make_unique<Bytes>(static_cast<size_t>(workSize_), gap_);
  }

 private:
  const FftAccess& fft_;
  FftKind kind_;
  size_t gap_;
  std::unique_ptr<Bytes> memory_;
  void* plan_ = nullptr;
  Orb32s workSize_ = -1;
};

// What a flag divides the results of each direction by, for n points.
struct FlagCase {
  Orb32s flag;
  long double forward;
  long double inverse;
};
inline std::vector<FlagCase> FlagCases(size_t n) {
  const auto byN = static_cast<long double>(n);
  return {{FftScaleFwdByN, byN, 1},
          {FftScaleInvByN, 1, byN},
          {FftScaleBySqrtN, std::sqrt(byN), std::sqrt(byN)},
          {FftScaleNone, 1, 1}};
}

struct CallStyle {
  bool inPlace;
  bool givenWork;
  size_t gap;  // elements between the end of an array and its guard page: the misalignment
};
inline constexpr CallStyle kPlain = {false, true, 0};
inline constexpr CallStyle kCallStyles[] = {
    {true, true, 0}, {false, false, 0}, {true, false, 1}, {false, true, 3}};

template <class T>
using Signal = std::vector<std::complex<T>>;

template <class T>
ExactArray ToExact(const Signal<T>& x) {
  return ExactArray(x.begin(), x.end());
}

template <class T>
Signal<T> RandomSignal(size_t n, uint32_t seed) {
  const std::vector<T> parts = RandomArray<T>(2 * n, seed);
  Signal<T> x(n);
  for (size_t i = 0; i < n; ++i) x[i] = {parts[2 * i], parts[2 * i + 1]};
  return x;
}

// The work pointer of a call: null, or a guarded buffer that is checked at the end.
class CallWork {
 public:
  CallWork(const TestPlan& plan, bool given) : bytes_(given ? plan.MakeWork() : nullptr) {}
  ~CallWork() { EXPECT_TRUE(bytes_ == nullptr || bytes_->GuardsIntact()); }
  void* Get() { return bytes_ == nullptr ? nullptr : bytes_->data(); }

 private:
  std::unique_ptr<Bytes> bytes_;
};

// A complex transform of either layout.
template <class T>
Signal<T> Transform(const TestPlan& plan, bool inverse, const Signal<T>& x, CallStyle style = kPlain) {
  const size_t n = x.size();
  Signal<T> y(n);
  CallWork work(plan, style.givenWork);
  if (IsSplit(plan.Kind())) {
    GuardedArray<T> re(n, style.gap);
    GuardedArray<T> im(n, style.gap);
    for (size_t i = 0; i < n; ++i) {
      re[i] = x[i].real();
      im[i] = x[i].imag();
    }
    GuardedArray<T> dstRe(style.inPlace ? 0 : n, style.gap);
    GuardedArray<T> dstIm(style.inPlace ? 0 : n, style.gap);
    GuardedArray<T>& outRe = style.inPlace ? re : dstRe;
    GuardedArray<T>& outIm = style.inPlace ? im : dstIm;
    EXPECT_EQ(plan.Fft().split[inverse][kWidth<T>](re.data(), im.data(), outRe.data(), outIm.data(),
                                                   plan.Get(), work.Get()),
              StatusOk);
    EXPECT_TRUE(outRe.GuardsIntact() && outIm.GuardsIntact());
    for (size_t i = 0; i < n; ++i) {
      y[i] = {outRe[i], outIm[i]};
      EXPECT_TRUE(style.inPlace || (re[i] == x[i].real() && im[i] == x[i].imag()));
    }
  } else {
    const T* parts = reinterpret_cast<const T*>(x.data());
    GuardedArray<T> src(std::vector<T>(parts, parts + 2 * n), style.gap);
    GuardedArray<T> dst(style.inPlace ? 0 : 2 * n, style.gap);
    GuardedArray<T>& out = style.inPlace ? src : dst;
    EXPECT_EQ(plan.Fft().pairs[inverse][kWidth<T>](src.data(), out.data(), plan.Get(), work.Get()), StatusOk);
    EXPECT_TRUE(out.GuardsIntact());
    EXPECT_TRUE(style.inPlace || std::memcmp(src.data(), parts, 2 * n * sizeof(T)) == 0);
    std::memcpy(static_cast<void*>(y.data()), out.data(), 2 * n * sizeof(T));
  }
  return y;
}

// A real transform: any of the functions that take one array. `in` and `out` are the lengths of its arrays;
// in place it works on the longer of the two.
template <class T>
std::vector<T> Transform(const TestPlan& plan, OneArray transform, const std::vector<T>& x, size_t out,
                         CallStyle style = kPlain) {
  CallWork work(plan, style.givenWork);
  GuardedArray<T> src(style.inPlace ? std::max(x.size(), out) : x.size(), style.gap);
  std::memcpy(src.data(), x.data(), x.size() * sizeof(T));
  GuardedArray<T> dst(style.inPlace ? 0 : out, style.gap);
  T* result = style.inPlace ? src.data() : dst.data();
  EXPECT_EQ(transform(src.data(), result, plan.Get(), work.Get()), StatusOk);
  EXPECT_TRUE(src.GuardsIntact() && dst.GuardsIntact());
  EXPECT_TRUE(style.inPlace || std::memcmp(src.data(), x.data(), x.size() * sizeof(T)) == 0);
  return std::vector<T>(result, result + out);
}

}  // namespace orbs::test

#endif
