// Puts a heap behind the library that counts what is alive and fails at a chosen allocation.
//
//   for (int n = 0; ; ++n) {
//     FailingAllocator heap(orbsSetAllocator, n);        // the n-th allocation from here fails
//     const OrbStatus status = ...;
//     EXPECT_EQ(heap.Alive(), ...);
//     if (!heap.Failed()) break;         // the call needs no more than n allocations
//     EXPECT_EQ(status, StatusMemAlloc);
//   }
#ifndef ORBS_TESTS_SUPPORT_FAILING_ALLOCATOR_H
#define ORBS_TESTS_SUPPORT_FAILING_ALLOCATOR_H

#include <cstdlib>

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

}  // namespace orbs::test

#endif
