// What functions on arrays answer to bad arguments, whatever else they take.
#ifndef ORBS_TESTS_SUPPORT_BAD_CALLS_H
#define ORBS_TESTS_SUPPORT_BAD_CALLS_H

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "orbs90lgc/status.h"
#include "tests/support/guarded_array.h"
#include "tests/support/rows.h"
#include "tests/support/samples.h"

namespace orbs::test {

// Calls a function with the pointer `nullAt` null, or with none, and a count. The count is the first integer
// behind a pointer; what other scalars there are does not matter.
template <class Status, class... Args, size_t... i>
Status BadCall(Status (*function)(Args...), unsigned char* block, size_t nullAt, Orb32s n,
               std::index_sequence<i...>) {
  constexpr bool kIsPointer[] = {std::is_pointer_v<Args>...};
  size_t countAt = 0;
  while (!kIsPointer[countAt]) ++countAt;
  while (kIsPointer[countAt]) ++countAt;
  const auto argument = [&](auto* type, size_t k) {
    using T = std::remove_pointer_t<decltype(type)>;
    if constexpr (std::is_pointer_v<T>) {
      return static_cast<T>(static_cast<void*>(k == nullAt ? nullptr : block + 64 * k));
    } else {
      return static_cast<T>(k == countAt ? n : 2);
    }
  };
  return function(argument(static_cast<Args*>(nullptr), i)...);
}

// A null pointer is told whatever the count is, and nothing is written.
template <class Status, class... Args>
void CheckNullPointers(Status (*function)(Args...)) {
  constexpr bool kIsPointer[] = {std::is_pointer_v<Args>...};
  GuardedArray<unsigned char> block(64 * sizeof...(Args));
  for (size_t i = 0; i < sizeof...(Args); ++i) {
    if (!kIsPointer[i]) continue;
    for (const Orb32s n : {4, 0, -1, kLeast}) {
      EXPECT_EQ(BadCall(function, block.data(), i, n, std::index_sequence_for<Args...>()), StatusNullPointer)
          << "argument " << i << ", count " << n;
    }
  }
  EXPECT_TRUE(block.Untouched());
}

// That, and counts below 1. Functions without a status do nothing.
template <class Status, class... Args>
void CheckBadCalls(Status (*function)(Args...)) {
  GuardedArray<unsigned char> block(64 * sizeof...(Args));
  for (const Orb32s n : {0, -1, kLeast}) {
    const auto call = [&] {
      return BadCall(function, block.data(), sizeof...(Args), n, std::index_sequence_for<Args...>());
    };
    if constexpr (std::is_void_v<Status>) {
      call();
    } else {
      EXPECT_EQ(call(), StatusSize) << n;
    }
  }
  EXPECT_TRUE(block.Untouched());
  if constexpr (!std::is_void_v<Status>) CheckNullPointers(function);
}

template <class... Functions>
void CheckBadCalls(const NamedFunction<Functions>&... rows) {
  ForEachFunction([](auto* function) { CheckBadCalls(function); }, rows...);
}

}  // namespace orbs::test

#endif
