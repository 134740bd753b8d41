// Aligned memory, on a heap that hands out the worst that a heap may.
#include "core/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace orbs::test {
namespace {

// One block at a time, at a chosen distance from a multiple of 64, with a pattern all around.
class WorstHeap {
 public:
  static constexpr size_t kArena = 4096;
  static constexpr size_t kFront = 128;
  static constexpr unsigned char kPattern = 0x5A;

  explicit WorstHeap(size_t misalignment = 0, bool fails = false) {
    raw_ = arena_ + kFront + misalignment;
    fails_ = fails;
    requests_ = 0;
    requested_ = 0;
    released_ = nullptr;
    std::fill_n(arena_, kArena, kPattern);
    SetAllocator({Allocate, Release});
  }
  WorstHeap(const WorstHeap&) = delete;
  WorstHeap& operator=(const WorstHeap&) = delete;
  ~WorstHeap() { SetAllocator({std::malloc, std::free}); }

  int Requests() const { return requests_; }
  size_t Requested() const { return requested_; }
  const unsigned char* Raw() const { return raw_; }
  const void* Released() const { return released_; }
  bool OutsideIntact() const {
    const auto untouched = [](unsigned char c) { return c == kPattern; };
    return std::all_of(arena_, raw_, untouched) && std::all_of(raw_ + requested_, arena_ + kArena, untouched);
  }

 private:
  static void* Allocate(size_t bytes) {
    ++requests_;
    requested_ = bytes;
    const auto room = static_cast<size_t>(arena_ + kArena - raw_);
    return fails_ || bytes > room ? nullptr : raw_;
  }
  static void Release(void* block) { released_ = block; }

  alignas(64) static inline unsigned char arena_[kArena];
  static inline unsigned char* raw_;
  static inline bool fails_;
  static inline int requests_;
  static inline size_t requested_;
  static inline void* released_;
};

TEST(AllocAligned, IsAlignedAndInsideWhateverTheHeapGives) {
  for (size_t misalignment = 0; misalignment < 64; misalignment += 4) {
    for (const int64_t size : {1, 2, 3, 4, 63, 64, 65, 1000}) {
      SCOPED_TRACE(testing::Message() << "misalignment " << misalignment << ", size " << size);
      const WorstHeap heap(misalignment);
      auto* block = static_cast<unsigned char*>(AllocAligned(size));
      ASSERT_NE(block, nullptr);
      EXPECT_EQ(heap.Requests(), 1);
      EXPECT_EQ(heap.Requested(), static_cast<size_t>(size) + 68);
      EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 64, 0u);
      EXPECT_GE(block, heap.Raw());
      EXPECT_LE(block + size, heap.Raw() + heap.Requested());
      std::fill_n(block, size, static_cast<unsigned char>(0));
      EXPECT_TRUE(heap.OutsideIntact());
      FreeAligned(block);  // still finds its way after the whole block was written
      EXPECT_EQ(heap.Released(), heap.Raw());
      EXPECT_TRUE(heap.OutsideIntact());
    }
  }
}

TEST(AllocAligned, BadSizesDoNotTouchTheHeap) {
  const WorstHeap heap;
  constexpr int64_t kLargest = std::numeric_limits<int32_t>::max();
  for (const int64_t size :
       {int64_t{0}, int64_t{-1}, -kLargest - 1, std::numeric_limits<int64_t>::min(), kLargest + 1,
        int64_t{1} << 32, (int64_t{1} << 32) + 100, std::numeric_limits<int64_t>::max()}) {
    EXPECT_EQ(AllocAligned(size), nullptr) << size;
  }
  EXPECT_EQ(heap.Requests(), 0);
  EXPECT_EQ(AllocAligned(kLargest), nullptr);  // legal; this heap is too small
  EXPECT_EQ(heap.Requests(), 1);
  EXPECT_EQ(heap.Requested(), 2147483647u + 68u);
}

TEST(AllocAligned, AFailingHeapGivesNull) {
  const WorstHeap heap(0, true);
  EXPECT_EQ(AllocAligned(100), nullptr);
  EXPECT_EQ(AllocElems_64s(100), nullptr);
  EXPECT_EQ(heap.Requests(), 2);
  EXPECT_EQ(heap.Released(), nullptr);
}

TEST(FreeAligned, IgnoresNull) {
  const WorstHeap heap;
  FreeAligned(nullptr);
  EXPECT_EQ(heap.Released(), nullptr);
}

template <class T>
void CheckTypedAllocator(T* (*allocate)(int64_t), int64_t elementBytes) {
  SCOPED_TRACE(elementBytes);
  {
    const WorstHeap heap(20);
    T* elements = allocate(7);
    EXPECT_EQ(heap.Requested(), static_cast<size_t>(7 * elementBytes + 68));
    EXPECT_EQ(reinterpret_cast<uintptr_t>(elements) % 64, 0u);
    FreeAligned(elements);
    EXPECT_EQ(heap.Released(), heap.Raw());
  }
  const WorstHeap heap;
  const int64_t most = std::numeric_limits<int32_t>::max() / elementBytes;
  for (const int64_t n : {int64_t{0}, int64_t{-1}, std::numeric_limits<int64_t>::min(), most + 1,
                          int64_t{1} << 32, (int64_t{1} << 62) + 1, std::numeric_limits<int64_t>::max()}) {
    EXPECT_EQ(allocate(n), nullptr) << n;
  }
  EXPECT_EQ(heap.Requests(), 0);
  EXPECT_EQ(allocate(most), nullptr);
  EXPECT_EQ(heap.Requested(), static_cast<size_t>(most * elementBytes + 68));
}

TEST(AllocElems, CountsInElements) {
  CheckTypedAllocator(AllocElems_8u, 1);
  CheckTypedAllocator(AllocElems_16s, 2);
  CheckTypedAllocator(AllocElems_32s, 4);
  CheckTypedAllocator(AllocElems_64s, 8);
  CheckTypedAllocator(AllocElems_128, 16);
}

TEST(AlignUp, GivesTheNextMultiple) {
  for (const uintptr_t alignment : {1u, 2u, 16u, 32u, 64u, 4096u}) {
    const uintptr_t boundary = 0x12345000;
    for (const uintptr_t past : {uintptr_t{0}, uintptr_t{1}, alignment / 2, alignment - 1, alignment}) {
      const uintptr_t rest = past % alignment;
      const auto* pointer = reinterpret_cast<const char*>(boundary + past);
      EXPECT_EQ(AlignUp(pointer, alignment) - pointer,
                static_cast<ptrdiff_t>(rest == 0 ? 0 : alignment - rest))
          << alignment << ' ' << past;
    }
  }
}

}  // namespace
}  // namespace orbs::test
