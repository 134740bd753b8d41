// The sizes of the floating-point plans, summed up as a user's manual would. They are interface, and so are
// those of the integer plans, which hold one of these. Of the two numbers of a pair the first is for
// binary32.
#ifndef ORBS_TESTS_TRANSFORM_PLAN_SIZES_H
#define ORBS_TESTS_TRANSFORM_PLAN_SIZES_H

#include <algorithm>
#include <cstdint>
#include <ostream>

#include "core/variants.h"

namespace orbs::test {

struct PlanSizes {
  int64_t plan;
  int64_t init;
  int64_t work;

  int64_t Largest() const { return std::max({plan, init, work}); }
  friend bool operator==(const PlanSizes& a, const PlanSizes& b) {
    return a.plan == b.plan && a.init == b.init && a.work == b.work;
  }
  friend std::ostream& operator<<(std::ostream& out, const PlanSizes& sizes) {
    return out << "plan " << sizes.plan << " init " << sizes.init << " work " << sizes.work;
  }
};

constexpr int64_t Down64(int64_t x) { return x & ~int64_t{63}; }
constexpr int64_t BitReversalBytes(int order) { return Down64((int64_t{1} << order) + 67); }

class FloatPlanSizes {
 public:
  // `pairs`: of interleaved complex data.
  FloatPlanSizes(Variant variant, bool wide, bool real, bool pairs)
      : variant_(variant), wide_(wide), real_(real), pairs_(pairs), limits_(LimitsOf(variant)) {}

  int MaxOrder() const { return limits_.complexOrder[wide_] + (real_ ? 1 : 0); }
  // Above it a vector variant lays out its plans as it likes.
  int LastRuled() const {
    return variant_ == Variant::px ? MaxOrder() : limits_.onePass[wide_] + (real_ ? 1 : 0);
  }

  PlanSizes Of(int order) const {
    if (order <= (real_ ? limits_.realCodelet[wide_] : limits_.codelet)) return {wide_ ? 160 : 152, 0, 0};
    const PlanSizes sizes = {192 + (real_ ? RealTables(order) : 0), order > 10 ? Sines(order) + 64 : 0, 0};
    if (!real_) return WithComplex(sizes, order);
    return order <= limits_.codelet + 1 ? sizes : WithComplex(sizes, order - 1);
  }

 private:
  struct Limits {
    int complexOrder[2];
    int codelet;
    int realCodelet[2];
    int onePass[2];
    int twoLevels[2];
  };
  static const Limits& LimitsOf(Variant variant) {
    static constexpr Limits kLimits[] = {
        {{27, 26}, 5, {5, 5}, {10, 10}, {19, 18}},  // px
        {{28, 27}, 5, {4, 5}, {15, 13}, {19, 18}},  // w7
        {{28, 27}, 5, {4, 5}, {17, 16}, {19, 18}},  // v8
        {{28, 26}, 5, {4, 5}, {15, 12}, {18, 18}},  // s8
        {{28, 27}, 5, {4, 5}, {17, 16}, {20, 19}},  // p8
        {{28, 27}, 6, {4, 4}, {18, 17}, {18, 18}},  // g9
        {{28, 27}, 6, {4, 4}, {18, 17}, {18, 18}}   // h9
    };
    return kLimits[static_cast<int>(variant)];
  }

  PlanSizes WithComplex(PlanSizes sizes, int order) const {
    sizes.plan += BitReversalBytes(order) + (variant_ == Variant::px ? Twiddles(order) : Core(order));
    if (variant_ != Variant::px) {
      const bool none = variant_ == Variant::s8 && wide_ && pairs_;
      return {sizes.plan, sizes.init, none ? 0 : Down64(Times(order, 16) + 63) + 64};
    }
    const int64_t columns = Columns(order);
    return {sizes.plan, sizes.init + ColumnTables(order), columns > 0 ? columns + 64 : 0};
  }

  // 2^order times `bytes` in binary64, half of them in binary32.
  int64_t Times(int order, int bytes) const { return (int64_t{wide_ ? bytes : bytes / 2}) << order; }
  int64_t Core(int order) const { return Down64(Times(order, 16) + (wide_ ? 79 : 71)); }
  int64_t Sines(int order) const { return Down64(Times(order, 2) + (wide_ ? 71 : 67)); }
  int64_t RealTables(int order) const {
    const int64_t n = int64_t{1} << order;
    const bool two = order >= limits_.twoLevels[wide_];
    return ((two ? n / (wide_ ? 64 : 256) + 16510 : Times(order, 8) + 126)) & ~int64_t{127};
  }

  // px: rows and columns, nested.
  int Split(int order) const {
    static const char* const kSplit32 = "00567888aaaa88aaa";  // orders 11 to 27, hexadecimal
    static const char* const kSplit64 = "04567789998899990";
    if (order <= 10) return 0;
    const char digit = (wide_ ? kSplit64 : kSplit32)[order - 11];
    return digit <= '9' ? digit - '0' : digit - 'a' + 10;
  }
  int64_t Twiddles(int order) const {
    if (order <= 10) return Core(order);
    const int t = Split(order);
    return t == 0 ? Down64(Times(order, 4) + 63) + Core(10)
                  : Twiddles(order - t) + Core(t) + Times(order, 16);
  }
  int64_t ColumnTables(int order) const {
    const int t = Split(order);
    return t == 0 ? 0 : ColumnTables(order - t) + BitReversalBytes(t) + Times(t, 64);
  }
  int64_t Columns(int order) const {
    const int t = Split(order);
    return t == 0 ? 0 : std::max(Times(t, 64), Columns(order - t));
  }

  Variant variant_;
  bool wide_;
  bool real_;
  bool pairs_;
  const Limits& limits_;
};

}  // namespace orbs::test

#endif
