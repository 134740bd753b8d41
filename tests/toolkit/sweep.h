// Holds a primitive against a reference, element by element, at every length and alignment, on arrays of
// their own and with source and result the same array.
//
//   Sweep(t.VecAdd_32f_I, [](size_t i, size_t, const Orb32f* src, const Orb32f* sum) {
//     return Rounded<Orb32f>(Wide(src[i]) + sum[i]);
//   });
//
// The primitive's arguments are sources, one result and the count; bind others with a lambda. The reference
// gets the element's index, the count and the arrays as they were before the call, in the order of the
// arguments. The expected status is the first warning.
#ifndef ORBS_TESTS_TOOLKIT_SWEEP_H
#define ORBS_TESTS_TOOLKIT_SWEEP_H

#include <array>
#include <functional>
#include <numeric>
#include <random>
#include <tuple>
#include <utility>

#include "tests/support/guarded_array.h"
#include "tests/support/random_data.h"
#include "tests/toolkit/toolkit_table.h"
#include "tests/toolkit/values.h"

namespace orbs::test {

// Floating-point data.
struct SweepOptions {
  double scale = 1000;             // it lies between -scale and scale
  bool positive = false;           // or between 0 and scale
  std::vector<double> specials{};  // and one of these stands here and there
  size_t leastGap = 0;             // elements between each array and the unmapped page behind it
};

using ExpectedPair = std::array<Expected, 2>;

namespace sweep {

template <class Complex>
bool Matches(const Complex& actual, const ExpectedPair& expected) {
  return test::Matches(actual.re, expected[0]) && test::Matches(actual.im, expected[1]);
}
using test::Matches;
inline OrbStatus Warning(const Expected& expected) { return expected.warning; }
inline OrbStatus Warning(const ExpectedPair&) { return StatusOk; }

template <class T>
std::string Text(const T& x) {
  if constexpr (std::is_class_v<T>) {
    return Text(x.re) + ", " + Text(x.im);
  } else {
    return testing::PrintToString(x);
  }
}

template <class T>
std::vector<T> Data(size_t n, size_t seed, const SweepOptions& options) {
  using Part = PartOf<T>;
  std::mt19937 engine(static_cast<uint32_t>(seed));
  const std::vector<Part> parts = RandomArray<Part>(n * sizeof(T) / sizeof(Part), engine(), options.scale);
  std::vector<T> values(n);
  for (size_t i = 0; i < parts.size(); ++i) {
    Part part = parts[i];
    if constexpr (std::is_floating_point_v<Part>) {
      if (options.positive) part = std::fabs(part);
      // One in four in every other array, few elsewhere: a status must be found behind many good elements.
      const size_t distance = n % 2 == 0 ? 4 : parts.size() / 2 + 1;
      const size_t count = options.specials.size();
      if (count != 0 && engine() % distance == 0)
        part = static_cast<Part>(options.specials[engine() % count]);
    }
    std::memcpy(reinterpret_cast<Part*>(values.data()) + i, &part, sizeof part);
  }
  return values;
}

// The array behind a pointer argument, and its values before the call.
template <class Pointer>
struct Operand {
  using Element = std::remove_pointer_t<Pointer>;
  using Value = std::remove_const_t<Element>;
  struct Spec {
    std::vector<Value> values;
    size_t gap;
  };
  const std::vector<Value> original;
  GuardedArray<Value> array;

  explicit Operand(const Spec& spec) : original(spec.values), array(original, spec.gap) {}
  bool Unchanged() const {
    return std::memcmp(array.data(), original.data(), original.size() * sizeof(Value)) == 0;
  }
};

template <class Signature, class Indices>
class Runner;

template <class Status, class... Args, size_t... i>
class Runner<Status(Args...), std::index_sequence<i...>> {
  template <size_t k>
  using OperandOf = Operand<std::tuple_element_t<k, std::tuple<Args...>>>;
  template <size_t k>
  static constexpr bool kIsSource = std::is_const_v<typename OperandOf<k>::Element>;
  static constexpr size_t kNoAlias = sizeof...(Args);
  // One argument is no source: the result, which an in-place function reads too.
  static constexpr size_t kResult = (0 + ... + (kIsSource<i> ? 0 : i));
  template <size_t k>
  static constexpr bool kCanAlias =
      kIsSource<k>&& std::is_same_v<typename OperandOf<k>::Value, typename OperandOf<kResult>::Value>;

 public:
  template <class Function, class Reference>
  static void Run(const Function& function, const Reference& reference, const SweepOptions& options) {
    const auto call = [&](int n, size_t gap, size_t alias) {
      Call(function, reference, options, n, gap, alias);
    };
    for (int n = 1; n <= 100 && !testing::Test::HasFailure(); ++n) {
      call(n, 0, kNoAlias);
      if (n % 3 == 0) call(n, 1 + static_cast<size_t>(n) / 3 % 7, kNoAlias);
      if (n % 3 == 1) ((kCanAlias<i> ? call(n, 0, i) : void()), ...);
    }
    for (const int n : {127, 128, 129, 512, 1003}) call(n, 0, kNoAlias);
  }

 private:
  // Operand k's array, or the result's in its place.
  template <size_t k, class Operands>
  static auto Pointer(Operands& operands, size_t alias) {
    auto* pointer = static_cast<typename OperandOf<k>::Element*>(std::get<k>(operands).array.data());
    if constexpr (kCanAlias<k>) {
      if (k == alias) pointer = std::get<kResult>(operands).array.data();
    }
    return pointer;
  }

  template <class Function, class Reference>
  static void Call(const Function& function, const Reference& reference, const SweepOptions& options,
                   int length, size_t gap, size_t alias) {
    const auto n = static_cast<size_t>(length);
    // With a gap each array has its own alignment. A result in place of a source has the values of it.
    const auto seed = [&](size_t k) {
      return n * kNoAlias + (k == kResult && alias != kNoAlias ? alias : k);
    };
    std::tuple<OperandOf<i>...> operands(
        typename OperandOf<i>::Spec{Data<typename OperandOf<i>::Value>(n, seed(i), options),
                                    std::max(options.leastGap, gap == 0 ? 0 : gap + i)}...);
    SCOPED_TRACE(testing::Message() << "n = " << n << ", gap " << gap
                                    << (alias == kNoAlias ? "" : ", source and result the same array"));
    OrbStatus status = StatusOk;
    if constexpr (std::is_void_v<Status>) {
      function(Pointer<i>(operands, alias)..., length);
    } else {
      status = function(Pointer<i>(operands, alias)..., length);
    }

    EXPECT_TRUE((... && std::get<i>(operands).array.GuardsIntact()));
    EXPECT_TRUE((... && (i == kResult || std::get<i>(operands).Unchanged()))) << "a source has changed";
    const auto& result = std::get<kResult>(operands).array;
    OrbStatus firstWarning = StatusOk;
    for (size_t k = 0; k < n; ++k) {
      const auto expected = reference(k, n, std::get<i>(operands).original.data()...);
      if (firstWarning == StatusOk) firstWarning = Warning(expected);
      ASSERT_TRUE(Matches(result[k], expected)) << "element " << k << ": " << Text(result[k]);
    }
    EXPECT_EQ(status, firstWarning);
  }
};

template <class Status, class... Args, class Reference>
void Run(const std::function<Status(Args...)>& function, const Reference& reference,
         const SweepOptions& options) {
  Runner<Status(Args...), std::make_index_sequence<sizeof...(Args) - 1>>::Run(function, reference, options);
}

}  // namespace sweep

template <class Function, class Reference>
void Sweep(Function function, const Reference& reference, const SweepOptions& options = {}) {
  sweep::Run(std::function(function), reference, options);
}

}  // namespace orbs::test

#endif
