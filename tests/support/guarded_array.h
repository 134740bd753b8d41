// Arrays that notice access outside themselves.
//
// The last element ends at an unmapped page, so that one element too many, read or written, is a fault; a
// misalignment of some elements leaves that many bytes behind the array, which hold a pattern. Before the
// array stands the pattern too.
#ifndef ORBS_TESTS_SUPPORT_GUARDED_ARRAY_H
#define ORBS_TESTS_SUPPORT_GUARDED_ARRAY_H

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace orbs::test {

template <class T>
class GuardedArray {
 public:
  // `gap` elements lie between the end of the array and the unmapped page: 0 catches every read beyond the
  // end, other values vary the alignment.
  explicit GuardedArray(size_t count, size_t gap = 0) : count_(count) {
    const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    const size_t used = (count + gap) * sizeof(T) + kSlackBytes + kFrontBytes;
    mapped_ = (used + page - 1) / page * page + page;
    base_ = static_cast<unsigned char*>(
        mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    if (base_ == MAP_FAILED) throw std::runtime_error("mmap failed");
    mprotect(base_ + mapped_ - page, page, PROT_NONE);
    end_ = base_ + mapped_ - page;
    data_ = reinterpret_cast<T*>(end_ - kSlackBytes - (count + gap) * sizeof(T));
    Refill();
  }
  explicit GuardedArray(const std::vector<T>& values, size_t gap = 0) : GuardedArray(values.size(), gap) {
    if (count_ != 0) std::memcpy(data_, values.data(), count_ * sizeof(T));
  }
  GuardedArray(const GuardedArray&) = delete;
  GuardedArray& operator=(const GuardedArray&) = delete;
  ~GuardedArray() { munmap(base_, mapped_); }

  T* data() { return data_; }
  const T* data() const { return data_; }
  size_t size() const { return count_; }
  T& operator[](size_t i) { return data_[i]; }
  const T& operator[](size_t i) const { return data_[i]; }
  std::vector<T> values() const { return std::vector<T>(data_, data_ + count_); }

  // Whether no byte around the array has changed.
  bool GuardsIntact() const {
    const auto* first = reinterpret_cast<const unsigned char*>(data_);
    const auto* last = reinterpret_cast<const unsigned char*>(data_ + count_);
    return AllPattern(base_, first) && AllPattern(last, end_);
  }

  // Whether the whole block still holds the pattern, the array included.
  bool Untouched() const { return AllPattern(base_, end_); }

  // Puts the pattern everywhere, the array included.
  void Refill() { std::memset(base_, kPattern, static_cast<size_t>(end_ - base_)); }

 private:
  static constexpr unsigned char kPattern = 0xA5;
  static constexpr size_t kFrontBytes = 64;
#ifdef __i386__
  // These tests run under emulation, and the emulator reads 32 bytes where VCVTDQ2PD with a 256-bit result
  // reads 16. The native tests have the unmapped page right behind the array.
  static constexpr size_t kSlackBytes = 32;
#else
  static constexpr size_t kSlackBytes = 0;
#endif

  static bool AllPattern(const unsigned char* first, const unsigned char* last) {
    for (; first != last; ++first) {
      if (*first != kPattern) return false;
    }
    return true;
  }

  size_t count_;
  size_t mapped_;
  unsigned char* base_;
  unsigned char* end_;
  T* data_;
};

}  // namespace orbs::test

#endif
