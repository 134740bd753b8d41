// The scratch of one call: the caller's work buffer, aligned, or for null one of the call's own.
#ifndef ORBS_CORE_WORK_BUFFER_H
#define ORBS_CORE_WORK_BUFFER_H

#include "core/memory.h"
#include "core/variant.h"

namespace orbs::ORBS_VARIANT {

class WorkBuffer {
 public:
  // For 0 bytes `given` is not looked at.
  ORBS_INLINE WorkBuffer(int64_t bytes, void* given) : own_(nullptr), data_(nullptr), failed_(false) {
    if (bytes <= 0) return;
    if (given != nullptr) {
      data_ = AlignUp(static_cast<unsigned char*>(given), kBlockAlignment);
    } else {
      own_ = AllocAligned(bytes);
      data_ = own_;
      failed_ = own_ == nullptr;
    }
  }
  WorkBuffer(const WorkBuffer&) = delete;
  WorkBuffer& operator=(const WorkBuffer&) = delete;
  ORBS_INLINE ~WorkBuffer() {
    if (own_ != nullptr) FreeAligned(own_);
  }

  ORBS_INLINE void* Data() const { return data_; }
  ORBS_INLINE bool Failed() const { return failed_; }

 private:
  void* own_;
  void* data_;
  bool failed_;
};

}  // namespace orbs::ORBS_VARIANT

#endif
