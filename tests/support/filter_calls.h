// Filters with a state, whatever the family. A filter is a type F with Data and with static functions
//   One(x, y, state, factor)   Block(src, dst, count, state, factor)   InPlace(dst, count, state, factor)
//   GetDelay(state, delay)     SetDelay(state, delay)                  Free(state)
#ifndef ORBS_TESTS_SUPPORT_FILTER_CALLS_H
#define ORBS_TESTS_SUPPORT_FILTER_CALLS_H

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "orbs90lgc.h"
#include "tests/support/guarded_array.h"
#include "tests/support/samples.h"

namespace orbs::test {

// The samples of a call: 0 stands for a one-sample call, a negative count for a block in place.
inline size_t SamplesOf(int call) { return call == 0 ? 1 : static_cast<size_t>(std::abs(call)); }
inline size_t SamplesOf(const std::vector<int>& calls) {
  size_t total = 0;
  for (int call : calls) total += SamplesOf(call);
  return total;
}

template <class Data>
struct Filtered {
  std::vector<Data> y;
  std::vector<int> calls;  // which call made each sample
};

// Runs x through the state in these calls, over and over.
template <class F, class State, class Data>
Filtered<Data> RunCalls(State* state, const std::vector<Data>& x, const std::vector<int>& calls,
                        Orb32s factor) {
  Filtered<Data> result;
  for (size_t i = 0; result.y.size() < x.size(); ++i) {
    const int call = calls[i % calls.size()];
    const size_t size = std::min(SamplesOf(call), x.size() - result.y.size());
    const auto count = static_cast<Orb32s>(size);
    const auto first = x.begin() + static_cast<ptrdiff_t>(result.y.size());
    const std::vector<Data> piece(first, first + static_cast<ptrdiff_t>(size));
    const GuardedArray<Data> source(piece, i % 3);
    GuardedArray<Data> y(size, i % 2);
    OrbStatus status;
    if (call == 0) {
      status = F::One(source[0], y.data(), state, factor);
    } else if (call > 0) {
      status = F::Block(source.data(), y.data(), count, state, factor);
    } else {
      std::copy(piece.begin(), piece.end(), y.data());
      status = F::InPlace(y.data(), count, state, factor);
    }
    EXPECT_EQ(status, StatusOk) << "a call of " << call;
    EXPECT_TRUE(y.GuardsIntact()) << "a call of " << call;
    result.y.insert(result.y.end(), y.data(), y.data() + size);
    result.calls.insert(result.calls.end(), size, call);
  }
  return result;
}

// The delay line holds the last samples, the newest first; `history` is what stood there before x.
template <class Data>
void ExpectNewestFirst(const Data* delay, const std::vector<Data>& history, const std::vector<Data>& x) {
  for (size_t j = 0; j < history.size(); ++j) {
    const Data expected = j < x.size() ? x[x.size() - 1 - j] : history[j - x.size()];
    ASSERT_TRUE(SameBytes(delay[j], expected)) << "delay line at " << j;
  }
}

// What the calls of a good state answer to bad arguments, each fault in front of those that are looked at
// after it; and what they answer to a state of another kind. `delay` has room for its delay line.
template <class F, class State, class Element>
void ExpectCallStatuses(State* state, Element* delay) {
  typename F::Data data[2] = {};
  State* const none = nullptr;
  EXPECT_EQ(F::Block(nullptr, data, 0, state, 0), StatusNullPointer);
  EXPECT_EQ(F::Block(data, nullptr, 0, state, 0), StatusNullPointer);
  EXPECT_EQ(F::Block(data, data + 1, 0, none, 0), StatusNullPointer);
  EXPECT_EQ(F::Block(data, data + 1, 0, state, 0), StatusSize);
  EXPECT_EQ(F::InPlace(nullptr, 0, state, 0), StatusNullPointer);
  EXPECT_EQ(F::InPlace(data, 0, none, 0), StatusNullPointer);
  EXPECT_EQ(F::One(data[0], nullptr, state, 0), StatusNullPointer);
  EXPECT_EQ(F::One(data[0], data, none, 0), StatusNullPointer);
  EXPECT_EQ(F::GetDelay(state, nullptr), StatusNullPointer);
  EXPECT_EQ(F::GetDelay(none, delay), StatusNullPointer);
  EXPECT_EQ(F::SetDelay(none, delay), StatusNullPointer);
  EXPECT_EQ(F::Free(none), StatusNullPointer);

  Orb32s foreign[64] = {0x58585858};
  auto* const other = reinterpret_cast<State*>(foreign);
  EXPECT_EQ(F::Block(data, data + 1, 0, other, 0), StatusSize);
  EXPECT_EQ(F::InPlace(data, -1, other, 0), StatusSize);
  EXPECT_EQ(F::Block(data, data + 1, 1, other, 0), StatusContextMismatch);
  EXPECT_EQ(F::InPlace(data, 1, other, 0), StatusContextMismatch);
  EXPECT_EQ(F::One(data[0], data, other, 0), StatusContextMismatch);
  EXPECT_EQ(F::GetDelay(other, delay), StatusContextMismatch);
  EXPECT_EQ(F::SetDelay(other, delay), StatusContextMismatch);
  EXPECT_EQ(F::Free(other), StatusContextMismatch);
}

}  // namespace orbs::test

#endif
