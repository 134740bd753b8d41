// Puts a heap behind the library that counts what is alive and fails at a chosen allocation.
//
//   FailEachAllocation(orbsSetAllocator, [&](FailingAllocator& heap) { return ...InitAlloc(...); });
#ifndef ORBS_TESTS_SUPPORT_FAILING_ALLOCATOR_H
#define ORBS_TESTS_SUPPORT_FAILING_ALLOCATOR_H

#include <gtest/gtest.h>

#include <cstdlib>

#include "orbs90lgc/status.h"
#include "orbs90lgc/types.h"

namespace orbs::test {

class FailingAllocator {
 public:
  static constexpr int kNever = -1;
  using Setter = void (*)(void* (*allocate)(size_t), void (*release)(void*));

  // `setter` installs a heap in the library under test: orbsSetAllocator for the pinnable one.
  FailingAllocator(Setter setter, int failAt) : setter_(setter) {
    failAt_ = failAt;
    count_ = alive_ = 0;
    failed_ = false;
    setter_(Allocate, Release);
  }
  FailingAllocator(const FailingAllocator&) = delete;
  FailingAllocator& operator=(const FailingAllocator&) = delete;
  ~FailingAllocator() { setter_(std::malloc, std::free); }

  bool Failed() const { return failed_; }
  int Alive() const { return alive_; }
  int Count() const { return count_; }

 private:
  static void* Allocate(size_t bytes) {
    if (count_++ == failAt_) {
      failed_ = true;
      return nullptr;
    }
    void* block = std::malloc(bytes);
    if (block != nullptr) ++alive_;
    return block;
  }
  static void Release(void* block) {
    --alive_;
    std::free(block);
  }

  Setter setter_;
  static inline int failAt_;
  static inline int count_;
  static inline int alive_;
  static inline bool failed_;
};

// Calls `call` with a heap that fails at the first allocation, then the second, and so on, until it needs no
// more. It gives back the status; a failure must be told, and leave nothing behind.
template <class Call>
void FailEachAllocation(FailingAllocator::Setter setter, const Call& call) {
  for (int n = 0;; ++n) {
    FailingAllocator heap(setter, n);
    const OrbStatus status = call(heap);
    EXPECT_EQ(status, heap.Failed() ? StatusMemAlloc : StatusOk) << "failing at allocation " << n;
    EXPECT_EQ(heap.Alive(), 0) << "failing at allocation " << n;
    if (!heap.Failed()) return;
  }
}

}  // namespace orbs::test

#endif
