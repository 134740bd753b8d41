// The transforms on integers: the fixed-point path against a literal one, bit for bit; the floating-point
// path against long double; and every way to call them against each other.
#include <array>
#include <climits>
#include <memory>
#include <random>

#include "tests/support/guarded_array.h"
#include "tests/transform/integer/cases.h"

namespace orbs::test {
namespace {

class FftIntegerTest : public ExportTest {
 protected:
  bool TakesFixedPath(const Operation& op, int order) const {
    return op.plan.fixed && order > 0 && order < FixedLimit(GetParam());
  }
};
ORBS_INSTANTIATE_VARIANTS(FftIntegerTest);

// A plan in memory of its own.
class Plan {
 public:
  Plan(const PlanKind& kind, int order, Orb32s flag, OrbAlgHint hint) : kind_(kind) {
    EXPECT_EQ(kind.initAlloc(&plan_, order, flag, hint), StatusOk) << kind.name << " order " << order;
  }
  Plan(const Plan&) = delete;
  Plan& operator=(const Plan&) = delete;
  ~Plan() { EXPECT_EQ(kind_.free(plan_), StatusOk); }
  const void* Get() const { return plan_; }

 private:
  const PlanKind& kind_;
  void* plan_ = nullptr;
};

// One side of a call in guarded arrays; the values of a split side are interleaved.
class Side {
 public:
  Side(const Operation& op, size_t count, int bytes, size_t gap)
      : bytes_(bytes), arrays_(op.plan.parts ? 2 : 1), perArray_(count / arrays_) {
    for (size_t i = 0; i < arrays_; ++i) {
      memory_[i] = std::make_unique<GuardedArray<Orb8u>>(perArray_ * Size(), (gap + 3 * i) * Size());
    }
  }

  void Put(const Integers& values) {
    for (size_t i = 0; i < arrays_; ++i) memory_[i]->Refill();
    for (size_t k = 0; k < values.size(); ++k) std::memcpy(Place(k), &values[k], Size());
  }
  Integers Get(size_t count) {
    Integers values(count);
    for (size_t k = 0; k < count; ++k) {
      Orb32s wide;
      Orb16s narrow;
      std::memcpy(&wide, Place(k), bytes_ == 4 ? 4 : 0);
      std::memcpy(&narrow, Place(k), 2);
      values[k] = bytes_ == 4 ? wide : narrow;
    }
    return values;
  }
  bool Intact() const { return memory_[0]->GuardsIntact() && (arrays_ == 1 || memory_[1]->GuardsIntact()); }
  Orb8u* Data(size_t i) { return memory_[i % arrays_]->data(); }

 private:
  size_t Size() const { return static_cast<size_t>(bytes_); }
  Orb8u* Place(size_t k) { return memory_[k % arrays_]->data() + k / arrays_ * Size(); }

  int bytes_;
  size_t arrays_;
  size_t perArray_;
  std::array<std::unique_ptr<GuardedArray<Orb8u>>, 2> memory_;
};

// Calls an operation in each of its forms and expects the same from all.
class Caller {
 public:
  Caller(const Operation& op, const void* plan, int order, size_t gap)
      : op_(op),
        plan_(plan),
        results_(op.ResultCount(order)),
        source_(op, op.SourceCount(order), op.sourceBytes, gap),
        result_(op, results_, op.resultBytes, gap + 1),
        both_(op, std::max(op.SourceCount(order), results_), op.resultBytes, gap) {
    Orb32s bytes = -1;
    EXPECT_EQ(op.plan.getBufSize(plan, &bytes), StatusOk);
    work_ = std::make_unique<GuardedArray<Orb8u>>(static_cast<size_t>(bytes), 5 * gap);
  }

  Integers operator()(const Integers& source, Orb32s scaleFactor) {
    source_.Put(source);
    result_.Put({});
    work_->Refill();
    void* work = work_->size() == 0 ? nullptr : work_->data();
    const Arrays apart = {{source_.Data(0), source_.Data(1)}, {result_.Data(0), result_.Data(1)}};
    EXPECT_EQ(op_.run(apart, plan_, scaleFactor, work), StatusOk);
    EXPECT_TRUE(source_.Intact() && result_.Intact() && work_->GuardsIntact());
    EXPECT_EQ(source_.Get(source.size()), source);
    const Integers result = result_.Get(results_);

    result_.Put({});
    EXPECT_EQ(op_.run(apart, plan_, scaleFactor, nullptr), StatusOk);
    EXPECT_EQ(result_.Get(results_), result) << "without a work buffer";
    if (op_.runInPlace == nullptr) return result;

    const Arrays same = {{both_.Data(0), both_.Data(1)}, {both_.Data(0), both_.Data(1)}};
    for (const auto run : {op_.run, op_.runInPlace}) {
      both_.Put(source);
      EXPECT_EQ(run(same, plan_, scaleFactor, work), StatusOk);
      EXPECT_EQ(both_.Get(results_), result) << "in place";
      EXPECT_TRUE(both_.Intact());
    }
    return result;
  }

 private:
  const Operation& op_;
  const void* plan_;
  size_t results_;
  Side source_, result_, both_;
  std::unique_ptr<GuardedArray<Orb8u>> work_;
};

// Values over `bits` bits; of every four arrays one is all bounds, which makes the largest sums.
Integers RandomSource(const Operation& op, int order, uint32_t seed, int bits) {
  std::mt19937 engine(seed);
  const int64_t half = int64_t{1} << (bits - 1);
  Integers source(op.SourceCount(order));
  for (int64_t& x : source) {
    const int64_t random = static_cast<int64_t>(engine());
    x = seed % 4 == 0 ? (random % 2 == 0 ? -half : half - 1) : random % (2 * half) - half;
  }
  return source;
}

Integers ExpectedFixed(const Operation& op, int order, Orb32s flag, const Integers& source,
                       Orb32s scaleFactor) {
  const FixedReference reference(order, flag);
  if (!op.plan.real) return reference.Complex(source, op.forward, scaleFactor);
  if (!op.forward)
    return reference.RealInverse(FromCcs(ToCcs(source, op.layout), Layout::kPerm), scaleFactor);
  return FromCcs(ToCcs(reference.RealForward(source, scaleFactor), Layout::kPerm), op.layout);
}

TEST_P(FftIntegerTest, FixedPathIsBitExact) {
  uint32_t seed = 0;
  for (const Operation& op : kOperations) {
    for (int order = 1; TakesFixedPath(op, order); ++order) {
      for (Orb32s flag : kFlags) {
        SCOPED_TRACE(testing::Message() << op.name << " order " << order << " flag " << flag);
        const Plan plan(op.plan, order, flag, flag == FftScaleNone ? HintFast : HintNone);
        Caller call(op, plan.Get(), order, seed % 7);
        for (Orb32s scaleFactor : {0, order, 1, 16, -15, -20, 33 - order, -order, INT_MAX, INT_MIN}) {
          const Integers source = RandomSource(op, order, ++seed, 16);
          ASSERT_EQ(call(source, scaleFactor), ExpectedFixed(op, order, flag, source, scaleFactor))
              << "scale factor " << scaleFactor;
          ASSERT_FALSE(HasFailure()) << "scale factor " << scaleFactor;
        }
      }
    }
  }
}

TEST_P(FftIntegerTest, OrderZeroOfThe16BitPlansIsTheScaleFactor) {
  for (const Operation& op : kOperations) {
    if (!op.plan.fixed) continue;
    for (OrbAlgHint hint : {HintNone, HintFast, HintAccurate}) {
      for (Orb32s flag : kFlags) {
        SCOPED_TRACE(op.name);
        const Plan plan(op.plan, 0, flag, hint);
        Caller call(op, plan.Get(), 0, 0);
        for (const int64_t x : {-32768, -3, 3, 32767}) {
          for (Orb32s scaleFactor : {0, 1, 2, -2, INT_MIN, INT_MAX}) {
            Integers source(op.SourceCount(0), x);
            source.back() += op.plan.real || x > 0 ? 0 : 1;
            Integers expected = FixedReference::Narrow(source, scaleFactor);
            expected.resize(op.ResultCount(0));
            if (op.layout == Layout::kCcs && op.forward) expected[1] = 0;
            ASSERT_EQ(call(source, scaleFactor), expected);
          }
        }
      }
    }
  }
}

// ---- The floating-point path ----

// Results before flag and scale factor, in the operation's order of elements.
Reals Exact(const Operation& op, int order, const Integers& source) {
  const size_t n = size_t{1} << order;
  Complexes x(n);
  if (!op.plan.real) {
    for (size_t i = 0; i < n; ++i)
      x[i] = {static_cast<long double>(source[2 * i]), static_cast<long double>(source[2 * i + 1])};
  } else if (op.forward) {
    for (size_t i = 0; i < n; ++i) x[i] = static_cast<long double>(source[i]);
  } else {
    Integers ccs = ToCcs(source, op.layout);
    ccs[1] = 0;
    if (n > 1) ccs[n + 1] = 0;
    for (size_t k = 0; k <= n / 2; ++k) {
      x[k] = {static_cast<long double>(ccs[2 * k]), static_cast<long double>(ccs[2 * k + 1])};
      if (k != 0) x[n - k] = std::conj(x[k]);
    }
  }
  const Complexes y = ExactTransform(x, op.forward);
  Reals result;
  const size_t count = op.plan.real && op.forward ? n / 2 + 1 : n;
  for (size_t k = 0; k < count; ++k) {
    result.push_back(y[k].real());
    if (!op.plan.real || op.forward) result.push_back(y[k].imag());
  }
  return op.plan.real && op.forward ? FromCcs(result, op.layout) : result;
}

void CheckFloat(const Operation& op, int order, Orb32s flag, OrbAlgHint hint, uint32_t seed,
                const std::vector<Orb32s>& scaleFactors) {
  SCOPED_TRACE(testing::Message() << op.name << " order " << order << " flag " << flag << " hint " << hint);
  const Plan plan(op.plan, order, flag, hint);
  Caller call(op, plan.Get(), order, seed % 5);
  const int bits = op.sourceBytes == 2 ? 16 : seed % 2 == 0 ? 32 : 20;
  const Integers source = RandomSource(op, order, seed, bits);
  const Reals exact = Exact(op, order, source);
  long double largest = 0;
  for (long double y : exact) largest = std::max(largest, std::abs(y));
  const bool scales = flag == FftScaleBySqrtN || flag == (op.forward ? FftScaleFwdByN : FftScaleInvByN);
  const auto n = static_cast<long double>(int64_t{1} << order);
  const long double flagFactor = !scales ? 1 : flag == FftScaleBySqrtN ? 1 / std::sqrt(n) : 1 / n;
  const long double relative = op.plan.wide ? 1e-14L : 1e-6L;
  const long double highest = op.resultBytes == 2 ? 32767 : 2147483647;
  for (Orb32s scaleFactor : scaleFactors) {
    const Integers result = call(source, scaleFactor);
    const long double factor = std::ldexp(flagFactor, -scaleFactor);
    const long double tolerance = 0.5L + relative * largest * factor;
    for (size_t k = 0; k < result.size(); ++k) {
      const long double expected = std::clamp(exact[k] * factor, -highest - 1, highest);
      ASSERT_LE(std::abs(static_cast<long double>(result[k]) - expected), tolerance)
          << "element " << k << " is " << result[k] << ", not " << expected << ", scale factor "
          << scaleFactor;
    }
    if (op.forward && op.layout == Layout::kCcs) {
      ASSERT_EQ(result[1], 0);
      ASSERT_EQ(result.back(), 0);
    }
    ASSERT_FALSE(testing::Test::HasFailure());
  }
}

TEST_P(FftIntegerTest, FloatPathIsTheRoundedTransform) {
  uint32_t seed = 0;
  for (const Operation& op : kOperations) {
    for (int order = op.plan.fixed ? 1 : 0; order <= 13; ++order) {
      for (Orb32s flag : kFlags) {
        ++seed;
        // Every flag at small orders, one in turn at large ones.
        if (order > 6 && flag != kFlags[order % 4]) continue;
        const bool takesFloat = op.plan.fixed && !TakesFixedPath(op, order);
        const OrbAlgHint hint =
            takesFloat && seed % 2 == 0 ? HintNone : HintAccurate + static_cast<int>(seed % 3);
        // 2^-40 leaves little, 2^-1100 nothing: it is no number of binary64.
        ASSERT_NO_FATAL_FAILURE(CheckFloat(op, order, flag, hint, seed, {0, order / 2, order, -3, 40, 1100}));
      }
    }
  }
}

// Where complex transforms of the nested plan are too large for one pass: s8 and w7 begin with that.
TEST_P(FftIntegerTest, LargeOrdersAreTheRoundedTransform) {
  const auto firstLargeOrder = [](bool wide) {
    switch (GetParam()) {
      case Variant::px:
        return 11;
      case Variant::w7:
        return wide ? 14 : 16;
      case Variant::s8:
        return wide ? 13 : 16;
      case Variant::v8:
      case Variant::p8:
        return wide ? 17 : 18;
      default:
        return 18;  // of binary32 that is still one pass
    }
  };
  uint32_t seed = 1;
  for (const Operation& op : kOperations) {
    const int order = firstLargeOrder(op.plan.wide) + (op.plan.real ? 1 : 0);
    if (order > kLargestExactOrder) continue;
    ++seed;
    const Orb32s flag = seed % 3 == 0   ? FftScaleNone
                        : seed % 3 == 1 ? FftScaleBySqrtN
                        : op.forward    ? FftScaleFwdByN
                                        : FftScaleInvByN;
    ASSERT_NO_FATAL_FAILURE(CheckFloat(op, order, flag, HintAccurate, seed, {order / 2}));
  }
}

// An impulse becomes equal numbers without any error: ties go to the even neighbour, a large factor saturates
// what is not 0 and nothing else.
TEST_P(FftIntegerTest, ImpulsesRoundTiesToEvenAndSaturate) {
  for (const Operation& op : kOperations) {
    const int64_t highest = op.resultBytes == 2 ? 32767 : 2147483647;
    for (int order = op.plan.fixed ? 1 : 0; order <= Effort(9, 7); ++order) {
      SCOPED_TRACE(testing::Message() << op.name << " order " << order);
      const Plan plan(op.plan, order, FftScaleNone, HintAccurate);
      Caller call(op, plan.Get(), order, 0);
      for (const int64_t value : {1, 3, 5, -1, -3, -5, 32767, -32768}) {
        for (Orb32s scaleFactor : {1, 17, -1, -20, -40, -1100, INT_MIN, INT_MAX}) {
          Integers source(op.SourceCount(order));
          source[0] = value;
          const long double scaled =
              std::ldexp(static_cast<long double>(value), -std::max(scaleFactor, -2000));
          const auto equal =
              static_cast<int64_t>(std::clamp<long double>(std::rint(scaled), -highest - 1, highest));
          Integers expected(op.ResultCount(order), equal);
          if (!op.plan.real || op.forward) {
            Integers pairs(op.plan.real ? (size_t{1} << order) / 2 * 2 + 2 : expected.size());
            for (size_t k = 0; k < pairs.size(); k += 2) pairs[k] = equal;
            expected = op.plan.real ? FromCcs(pairs, op.layout) : pairs;
          }
          ASSERT_EQ(call(source, scaleFactor), expected) << value << ", scale factor " << scaleFactor;
          ASSERT_FALSE(HasFailure());
        }
      }
    }
  }
}

}  // namespace
}  // namespace orbs::test
