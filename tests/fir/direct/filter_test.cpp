// The direct forms of FIR filters: streams cut in every way against the formula, the caller's ring element by
// element, rounding, statuses.
#include <sys/mman.h>

#include <limits>
#include <vector>

#include "tests/fir/direct/filters.h"
#include "tests/fir/float/filters.h"
#include "tests/fir/integer/reference.h"
#include "tests/support/export_test.h"
#include "tests/support/failing_allocator.h"
#include "tests/support/filter_calls.h"
#include "tests/support/random_data.h"

namespace orbs::test {
namespace {

constexpr Orb32s kTapsFactor = -15;

// Integers over their whole range: a 32-bit tap has bits above 16 as well as below, all but the first of
// them.
template <class F>
std::vector<typename F::Tap> DirectTaps(int n, uint32_t seed) {
  if constexpr (F::kInteger) {
    auto taps = RandomArray<typename F::Tap>(static_cast<size_t>(n), seed);
    if (n > 1) taps[0] = FromExact<typename F::Tap>({-77, 99});
    return taps;
  } else {
    return RandomTaps<F>(n, seed);
  }
}
template <class F>
std::vector<typename F::Data> DirectSamples(size_t count, uint32_t seed) {
  if constexpr (F::kInteger) {
    return RandomArray<typename F::Data>(count, seed);
  } else {
    return RandomNumbers<typename F::Data>(count, DataScale<typename F::Data>(), seed);
  }
}

// For integer taps right shifts, and one to the left that leaves nothing but the last bits of a sum.
template <class F>
Orb32s ScaleFactorFor(int n) {
  if constexpr (F::kInteger) {
    return n % 5 == 4 ? kTapsFactor - 29 : n % 5;
  } else {
    return std::is_integral_v<PartOf<typename F::Data>> ? 1 : 0;
  }
}

// A doubled ring as its contract has it: the newest sample of `history` comes first there.
template <class Data>
struct Ring {
  GuardedArray<Data> line;
  Orb32s index;

  Ring(const std::vector<Data>& history, Orb32s start) : line(2 * history.size()), index(start) {
    const size_t n = history.size();
    for (size_t j = 0; j < n; ++j) {
      const size_t i = (static_cast<size_t>(start) + 2 * n - 1 - j) % n;
      line[i] = line[i + n] = history[j];
    }
  }
  void Append(Data sample) {
    const size_t n = line.size() / 2;
    line[static_cast<size_t>(index)] = line[static_cast<size_t>(index) + n] = sample;
    index = static_cast<Orb32s>((static_cast<size_t>(index) + 1) % n);
  }
};

class FirDirectTest : public ExportTest {
 protected:
  // 0 is a one-sample call, in place at odd samples; a negative count is a block in place.
  template <class F>
  void CheckStream(int n, Orb32s start, const std::vector<int>& counts, Orb32s scaleFactor) {
    using Data = typename F::Data;
    const std::vector<Data> x = DirectSamples<F>(SamplesOf(counts), 41);
    const std::vector<Data> history = DirectSamples<F>(static_cast<size_t>(n), 42);
    const GuardedArray<typename F::Tap> taps(DirectTaps<F>(n, 43));
    Ring<Data> ring(history, start);
    Ring<Data> model(history, start);
    size_t done = 0;
    std::vector<Data> y;
    for (int count : counts) {
      const size_t size = SamplesOf(count);
      const auto first = x.begin() + static_cast<ptrdiff_t>(done);
      const GuardedArray<Data> source(std::vector<Data>(first, first + static_cast<ptrdiff_t>(size)),
                                      done % 3);
      GuardedArray<Data> result(source.values(), done % 2);
      OrbStatus status;
      if (count == 0 && done % 2 == 0) {
        result[0] = Data{};
        status = F::One(source[0], result.data(), taps.data(), n, kTapsFactor, ring.line.data(), &ring.index,
                        scaleFactor);
      } else if (count == 0) {
        status = F::OneInPlace(result.data(), taps.data(), n, kTapsFactor, ring.line.data(), &ring.index,
                               scaleFactor);
      } else if (count > 0) {
        result.Refill();
        status = F::Block(source.data(), result.data(), count, taps.data(), n, kTapsFactor, ring.line.data(),
                          &ring.index, scaleFactor);
      } else {
        status = F::InPlace(result.data(), -count, taps.data(), n, kTapsFactor, ring.line.data(), &ring.index,
                            scaleFactor);
      }
      ASSERT_EQ(status, StatusOk);
      ASSERT_TRUE(result.GuardsIntact() && ring.line.GuardsIntact());
      for (size_t i = 0; i < size; ++i) {
        model.Append(source[i]);
        y.push_back(result[i]);
      }
      done += size;
      ASSERT_EQ(ring.index, model.index) << n << " taps, after a call of " << count;
      for (size_t i = 0; i < ring.line.size(); ++i) {
        ASSERT_TRUE(SameBytes(ring.line[i], model.line[i]))
            << n << " taps, after a call of " << count << ", delay line at " << i;
      }
    }
    CheckResults<F>(taps.values(), history, x, y, scaleFactor);
  }

  template <class F, class Tap, class Data>
  void CheckResults(const std::vector<Tap>& taps, const std::vector<Data>& history,
                    const std::vector<Data>& x, const std::vector<Data>& y, Orb32s scaleFactor) {
    if constexpr (F::kInteger) {
      const auto expected = ExactOutputs(taps, history, x, kTapsFactor, scaleFactor);
      for (size_t i = 0; i < y.size(); ++i)
        ASSERT_EQ(ToExact(y[i]), expected[i]) << taps.size() << " taps, sample " << i;
    } else {
      const auto expected = ExactOutputs(taps, history, x);
      const long double divisor = std::ldexp(1.0L, scaleFactor);
      const long double allowed = ScaledTolerance<F>(taps, scaleFactor);
      for (size_t i = 0; i < y.size(); ++i) {
        ASSERT_LE(PartDistance(ToExact(y[i]), expected[i] / divisor), allowed)
            << taps.size() << " taps, sample " << i;
      }
    }
  }
};
ORBS_INSTANTIATE_VARIANTS(FirDirectTest);

// Block sizes around what a vector, the ring and an inner chunk hold, and single samples between them.
std::vector<int> Calls(int n) { return {1, 0, 0, 7, 8, -3, n, 0, -(n + 9), 65, 0, 300, -5, 9, -280, 0}; }

TEST_P(FirDirectTest, EveryTapCount) {
  ForEachDirect([&](auto filter) {
    using F = decltype(filter);
    for (int n = 1; n <= 40; ++n) CheckStream<F>(n, n / 3, Calls(n), ScaleFactorFor<F>(n));
    for (int n : {63, 64, 65, 127, 255, 256}) CheckStream<F>(n, n - 1, Calls(n), ScaleFactorFor<F>(n));
  });
  ForEachRow<Direct16s>([&](auto) {
    for (int n = 1; n <= 70; ++n)
      CheckStream<Direct16s>(n, n / 2, {0, 0, 0, 2 * n + 3, -5}, ScaleFactorFor<Direct16s>(n));
  });
}

// Taps that do not fit on the stack at once; the ring wraps within calls and between them.
TEST_P(FirDirectTest, LongFilters) {
  ForEachDirect([&](auto filter) {
    using F = decltype(filter);
    for (int n : {257, 258, 600})
      CheckStream<F>(n, n - 300 > 0 ? n - 300 : 3, {n + 400, 0, -260, 5, 300}, ScaleFactorFor<F>(n));
  });
}

// Pages that cost no memory as long as they are only read.
template <class T>
class ZeroArray {
 public:
  explicit ZeroArray(size_t count) : bytes_(count * sizeof(T)) {
    constexpr int kFlags = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE;
    base_ = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, kFlags, -1, 0);
  }
  ZeroArray(const ZeroArray&) = delete;
  ZeroArray& operator=(const ZeroArray&) = delete;
  ~ZeroArray() {
    if (base_ != MAP_FAILED) munmap(base_, bytes_);
  }
  T* data() { return base_ == MAP_FAILED ? nullptr : static_cast<T*>(base_); }

 private:
  size_t bytes_;
  void* base_;
};

// 2^31-1 taps, at the end of which a 32-bit counter that moves by more than one does not stop. Takes seconds
// in each variant and 24 GiB of address space: to be run by hand when a walk over taps has changed.
TEST_P(FirDirectTest, DISABLED_MostTapsThereCanBe) {
  if (sizeof(void*) < 8) GTEST_SKIP() << "needs 64-bit addresses";
  const auto check = [](auto filter) {
    using F = decltype(filter);
    ZeroArray<typename F::Tap> taps(static_cast<size_t>(kMost));
    ZeroArray<Orb16s> line(2 * static_cast<size_t>(kMost));
    if (taps.data() == nullptr || line.data() == nullptr) GTEST_SKIP() << "no room";
    taps.data()[0] = 3;
    Orb32s index = 0;
    Orb16s y[9] = {7};
    ASSERT_EQ(F::OneInPlace(y, taps.data(), kMost, 0, line.data(), &index, 0), StatusOk);
    EXPECT_EQ(y[0], 21);
    const std::vector<Orb16s> x = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    ASSERT_EQ(F::Block(x.data(), y, 9, taps.data(), kMost, 0, line.data(), &index, 0), StatusOk);
    for (size_t i = 0; i < x.size(); ++i) EXPECT_EQ(y[i], 3 * x[i]);
    EXPECT_EQ(index, 10);
  };
  ForEachRow<Direct32s, Direct64f_16s>(check);
}

// A delay line filled by hand, with halves that differ, all over or in one sample: a block is still what its
// steps are.
TEST_P(FirDirectTest, HalvesThatDiffer) {
  for (int n : {5, 40, 300, -5, -40, -300}) {
    const bool inOne = n < 0;
    n = std::abs(n);
    const auto taps = DirectTaps<Direct32s>(n, 44);
    const auto x = RandomArray<Orb16s>(static_cast<size_t>(2 * n), 45);
    auto line = RandomArray<Orb16s>(static_cast<size_t>(2 * n), 46);
    Orb32s index = n / 2;
    if (inOne) {
      std::copy(line.begin(), line.begin() + n, line.begin() + n);
      line[static_cast<size_t>(index - 1)] ^= 0x4000;
    }
    auto stepped = line;
    Orb32s steppedIndex = index;
    std::vector<Orb16s> y(x.size());
    ASSERT_EQ(Direct32s::Block(x.data(), y.data(), 2 * n, taps.data(), n, 0, line.data(), &index, 15),
              StatusOk);
    for (size_t i = 0; i < x.size(); ++i) {
      Orb16s one = 0;
      Direct32s::One(x[i], &one, taps.data(), n, 0, stepped.data(), &steppedIndex, 15);
      ASSERT_EQ(y[i], one) << n << " taps, sample " << i;
    }
    EXPECT_EQ(line, stepped);
    EXPECT_EQ(index, steppedIndex);
  }
}

// An infinite sample gives infinite results while it is among the last n, and no NaN ever: what a kernel
// reads twice or beside the samples stays out of the sums.
TEST_P(FirDirectTest, InfinitiesComeAndGo) {
  for (int n = 1; n <= 40; ++n) {
    const std::vector<Orb32f> taps(static_cast<size_t>(n), 0.5f);
    for (int call : {1, 60}) {
      std::vector<Orb32f> line(static_cast<size_t>(2 * n), 1);
      Orb32s index = 0;
      std::vector<Orb32f> x(60, 1);
      x[3] = INFINITY;
      std::vector<Orb32f> y(60);
      for (int i = 0; i < 60; i += call)
        legacy90orbsFIR_Direct_32f(&x[static_cast<size_t>(i)], &y[static_cast<size_t>(i)], call, taps.data(),
                                   n, line.data(), &index);
      for (int i = 0; i < 60; ++i) {
        const Orb32f expected = i >= 3 && i < 3 + n ? INFINITY : static_cast<Orb32f>(n) / 2;
        ASSERT_EQ(y[static_cast<size_t>(i)], expected) << n << " taps, sample " << i << ", calls of " << call;
      }
    }
  }
}

// One tap on one sample, by all four forms; blocks of 1 and of 40 equal samples.
template <class F>
double OneTap(double tap, double sample, Orb32s scaleFactor) {
  const auto h = FromExact<typename F::Tap>({static_cast<long double>(tap), 0});
  const auto x =
      FromExact<typename F::Data>({static_cast<long double>(sample), static_cast<long double>(sample)});
  typename F::Data line[2] = {};
  Orb32s index = 0;
  std::vector<typename F::Data> y(83, x);
  F::One(x, &y[0], &h, 1, 0, line, &index, scaleFactor);
  F::OneInPlace(&y[1], &h, 1, 0, line, &index, scaleFactor);
  F::Block(&x, &y[2], 1, &h, 1, 0, line, &index, scaleFactor);
  F::InPlace(&y[3], 40, &h, 1, 0, line, &index, scaleFactor);
  const std::vector<typename F::Data> many(40, x);
  F::Block(many.data(), &y[43], 40, &h, 1, 0, line, &index, scaleFactor);
  EXPECT_EQ(index, 0);
  for (const auto& result : y) {
    EXPECT_TRUE(SameBytes(result, y[0]));
    if constexpr (kIsComplex<typename F::Data>) {
      EXPECT_EQ(result.im, result.re);
    }
  }
  return static_cast<double>(ToExact(y[0]).real());
}

template <class F>
void CheckHalfAway(double bound) {
  EXPECT_EQ(OneTap<F>(0.5, 5, 0), 3);
  EXPECT_EQ(OneTap<F>(-0.5, 5, 0), -3);
  EXPECT_EQ(OneTap<F>(1, 1, 1), 1);
  EXPECT_EQ(OneTap<F>(0.49, -1, 0), 0);
  EXPECT_EQ(OneTap<F>(1, 5, -3), 40);
  EXPECT_EQ(OneTap<F>(1e30, 5, 0), bound);
  EXPECT_EQ(OneTap<F>(-1e30, 5, 0), -bound - 1);
  // The magnitude of the factor counts modulo 128; 127 empties the exponent field.
  EXPECT_EQ(OneTap<F>(64, 5, 128 + 5), 10);
  EXPECT_EQ(OneTap<F>(1, 5, -129), 10);
  EXPECT_EQ(OneTap<F>(1e30, 5, 127), 0);
  EXPECT_EQ(OneTap<F>(1, 5, kLeast), 5);
  EXPECT_EQ(OneTap<F>(NAN, 5, 0), -bound - 1);
}

TEST_P(FirDirectTest, FloatingPointSumsBecomeIntegers) {
  ForEachRow<Direct32f_16s, Direct64f_16s, Direct64f_32s>([](auto filter) {
    using F = decltype(filter);
    CheckHalfAway<F>(std::numeric_limits<typename F::Data>::max());
  });
  EXPECT_EQ(OneTap<Direct64f_32s>(0.5, 2147483647, 0), 1073741824);
  // Complex: each component.
  EXPECT_EQ(OneTap<Direct32fc_16sc>(-0.5, 5, 0), -3);
  EXPECT_EQ(OneTap<Direct64fc_16sc>(-0.5, 5, 0), -3);
  EXPECT_EQ(OneTap<Direct64fc_32sc>(-0.5, 5, 0), -3);
  EXPECT_EQ(OneTap<Direct64fc_32sc>(1e30, 5, 0), 2147483647);
}

// No limit to the finite range, unlike blocks of filters with a state.
TEST_P(FirDirectTest, ResultsBeyondBinary32AreInfinite) {
  EXPECT_EQ(OneTap<Direct64f_32f>(1e39, 1, 0), HUGE_VAL);
  EXPECT_EQ(OneTap<Direct64f_32f>(-1e39, 1, 0), -HUGE_VAL);
  EXPECT_EQ(OneTap<Direct64fc_32fc>(1e39, 1, 0), HUGE_VAL);
}

TEST_P(FirDirectTest, IntegerSumsAreShifted) {
  const struct {
    Orb32s tap, sample, tapsFactor, scaleFactor, expected;
  } rows[] = {{1, 3, 7, 7, 3},          {1, 3, 0, 1, 2},          {1, 5, 0, 1, 2},
              {1, -3, 0, 1, -2},        {20000, 2, 0, 0, 32767},  {1 << 30, 2, 0, 0, -32768},
              {1 << 30, 4, 0, 0, 0},    {1, 16384, 16, 0, 32767}, {1, 3, 40, 0, -32768},
              {1, 2, 40, 0, 0},         {kMost, 1, 0, 100, -1},   {5, 3, kMost, kLeast, -32768},
              {5, 3, kLeast, kMost, 0}, {65536 * 3, 3, 0, 16, 9}, {-65537, 2, 0, 16, -2},
              {kLeast, 1, 0, 31, -1},   {kMost, 3, 0, 0, 32767},  {3 << 15, 1, 0, 16, 2}};
  for (const auto& row : rows) {
    for (int count : {1, 40}) {
      const std::vector<Orb16s> x(40, static_cast<Orb16s>(row.sample));
      std::vector<Orb16s> y(40);
      Orb16s line[2] = {};
      Orb32s index = 0;
      legacy90orbsFIR32s_Direct_16s_Sfs(x.data(), y.data(), count, &row.tap, 1, row.tapsFactor, line, &index,
                                        row.scaleFactor);
      const int64_t expected = Delivered(int64_t{row.tap} * row.sample, row.tapsFactor, row.scaleFactor);
      EXPECT_EQ(y[0], expected) << row.tap << " * " << row.sample;
      EXPECT_EQ(y[static_cast<size_t>(count - 1)], expected);
      EXPECT_EQ(expected, row.expected) << row.tap << " * " << row.sample << ", " << row.tapsFactor;
    }
  }
  // Q15: 3 halves are a tie, which goes to 2.
  const Orb16s half = 16384;
  Orb16s line[2] = {};
  Orb16s y = 0;
  Orb32s index = 0;
  EXPECT_EQ(legacy90orbsFIROne_Direct_16s_Sfs(3, &y, &half, 1, line, &index, 0), StatusOk);
  EXPECT_EQ(y, 2);
}

// ---- Blocks of 16-bit samples with Q15 taps, on a state for the call ----

TEST_P(FirDirectTest, BlocksWithQ15Taps) {
  for (int n : {1, 2, 7, 64, 301}) {
    for (int count : {1, n, 3 * n + 50, 4500}) {
      for (bool inPlace : {false, true}) {
        const auto size = static_cast<size_t>(n);
        auto taps = RandomArray<Orb16s>(size, 51);
        taps[0] = -32768;  // taken as it is
        const auto history = RandomArray<Orb16s>(size, 52);
        const auto x = RandomArray<Orb16s>(static_cast<size_t>(count), 53);
        const GuardedArray<Orb16s> h(taps);
        GuardedArray<Orb16s> line(2 * size);
        Orb32s index = n / 2;
        std::copy(history.begin(), history.end(), line.data() + index);
        const GuardedArray<Orb16s> source(x);
        GuardedArray<Orb16s> y(x);
        ASSERT_EQ(inPlace
                      ? legacy90orbsFIR_Direct_16s_ISfs(y.data(), count, h.data(), n, line.data(), &index, 2)
                      : legacy90orbsFIR_Direct_16s_Sfs(source.data(), y.data(), count, h.data(), n,
                                                       line.data(), &index, 2),
                  StatusOk);
        ASSERT_TRUE(y.GuardsIntact() && line.GuardsIntact());
        const auto expected = ExactOutputs(taps, history, x, -15, 2);
        for (size_t i = 0; i < x.size(); ++i)
          ASSERT_EQ(y[i], expected[i].real()) << n << " taps, sample " << i;
        EXPECT_EQ(index, 0);
        ASSERT_NO_FATAL_FAILURE(ExpectNewestFirst(line.data(), history, x)) << n << " taps";
      }
    }
  }
}

TEST_P(FirDirectTest, StatusesOfQ15Forms) {
  const Orb16s taps[2] = {1, 2};
  const Orb16s x[2] = {3, 4};
  Orb16s y[2] = {7, 8};
  Orb16s line[4] = {};
  const auto check = [&](OrbStatus expected, Orb32s count, Orb32s n, Orb32s start, bool sample = true) {
    Orb32s index = start;
    EXPECT_EQ(legacy90orbsFIR_Direct_16s_Sfs(x, y, count, taps, n, line, &index, 0), expected);
    EXPECT_EQ(legacy90orbsFIR_Direct_16s_ISfs(y, count, taps, n, line, &index, 0), expected);
    if (sample) {
      EXPECT_EQ(legacy90orbsFIROne_Direct_16s_Sfs(3, y, taps, n, line, &index, 0), expected);
      EXPECT_EQ(legacy90orbsFIROne_Direct_16s_ISfs(y, taps, n, line, &index, 0), expected);
    }
    EXPECT_EQ(index, start);
  };
  check(StatusSize, 0, 0, 9, false);
  check(StatusFirLength, 1, 0, 9);
  check(StatusDelayIndex, 1, 2, 2);
  check(StatusDelayIndex, 1, 2, -1);
  Orb32s index = 9;
  const auto nulls = [&](const Orb16s* src, Orb16s* dst, const Orb16s* h, Orb16s* delay, Orb32s* i) {
    EXPECT_EQ(legacy90orbsFIR_Direct_16s_Sfs(src, dst, 0, h, 0, delay, i, 0), StatusNullPointer);
    if (src == nullptr) return;
    EXPECT_EQ(legacy90orbsFIR_Direct_16s_ISfs(dst, 0, h, 0, delay, i, 0), StatusNullPointer);
    EXPECT_EQ(legacy90orbsFIROne_Direct_16s_Sfs(1, dst, h, 0, delay, i, 0), StatusNullPointer);
    EXPECT_EQ(legacy90orbsFIROne_Direct_16s_ISfs(dst, h, 0, delay, i, 0), StatusNullPointer);
  };
  nulls(nullptr, y, taps, line, &index);
  nulls(x, nullptr, taps, line, &index);
  nulls(x, y, nullptr, line, &index);
  nulls(x, y, taps, nullptr, &index);
  nulls(x, y, taps, line, nullptr);
  {
    index = 1;
    FailingAllocator heap(orbsSetAllocator, 0);
    EXPECT_EQ(legacy90orbsFIR_Direct_16s_Sfs(x, y, 2, taps, 2, line, &index, 0), StatusMemAlloc);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(legacy90orbsFIR_Direct_16s_ISfs(y, 2, taps, 2, line, &index, 0), StatusOk);
    EXPECT_EQ(heap.Alive(), 0);
  }
}

TEST_P(FirDirectTest, Statuses) {
  ForEachDirect([](auto filter) {
    using F = decltype(filter);
    const typename F::Tap taps[2] = {};
    using Data = typename F::Data;
    const Data zero{};
    const std::vector<Data> before = DirectSamples<F>(2, 61);
    std::vector<Data> y = before;
    std::vector<Data> lineData = before;
    Orb32s index = 1;
    const auto check = [&](OrbStatus block, OrbStatus one, const Data* src, Data* dst, Orb32s count,
                           const typename F::Tap* h, Orb32s n, Data* line, Orb32s* i) {
      EXPECT_EQ(F::Block(src, dst, count, h, n, 0, line, i, 0), block);
      if (src != nullptr) {
        EXPECT_EQ(F::InPlace(dst, count, h, n, 0, line, i, 0), block);
      }
      if (one == StatusOk) return;
      EXPECT_EQ(F::One(zero, dst, h, n, 0, line, i, 0), one);
      EXPECT_EQ(F::OneInPlace(dst, h, n, 0, line, i, 0), one);
    };
    // Each fault in front of all that are tested after it.
    Data* const line = lineData.data();
    check(StatusNullPointer, StatusOk, nullptr, y.data(), 0, nullptr, 0, nullptr, nullptr);
    check(StatusNullPointer, StatusNullPointer, &zero, nullptr, 0, taps, 0, line, &index);
    check(StatusSize, StatusNullPointer, &zero, y.data(), 0, nullptr, 0, nullptr, nullptr);
    check(StatusNullPointer, StatusNullPointer, &zero, y.data(), 1, nullptr, 0, line, &index);
    check(StatusFirLength, StatusFirLength, &zero, y.data(), 1, taps, 0, nullptr, nullptr);
    check(StatusNullPointer, StatusNullPointer, &zero, y.data(), 1, taps, 1, nullptr, &index);
    check(StatusNullPointer, StatusNullPointer, &zero, y.data(), 1, taps, 1, line, nullptr);
    EXPECT_EQ(index, 1);
    for (size_t i = 0; i < 2; ++i) EXPECT_TRUE(SameBytes(y[i], before[i]) && SameBytes(line[i], before[i]));
  });
}

}  // namespace
}  // namespace orbs::test
