// The transforms of each variant, called alike, for the table of their errors.
#ifndef ORBS_BENCH_TRANSFORM_ACCURACY_H
#define ORBS_BENCH_TRANSFORM_ACCURACY_H

namespace orbs::bench {

enum class Transform { complex32, complex64, real32, real64 };
inline constexpr Transform kTransforms[] = {Transform::complex32, Transform::complex64, Transform::real32,
                                            Transform::real64};

constexpr bool IsReal(Transform transform) {
  return transform == Transform::real32 || transform == Transform::real64;
}
constexpr bool IsSingle(Transform transform) {
  return transform == Transform::complex32 || transform == Transform::real32;
}

// One transform of 2^order points without scaling. Real spectra are in the layout Perm.
using RunOnce = void (*)(Transform transform, bool forward, int order, const void* src, void* dst);

// What accuracy_variant.cpp, compiled once per variant, puts on the list.
struct VariantTransforms {
  VariantTransforms(const char* variant, RunOnce run);

  const char* variant;
  RunOnce run;
};

}  // namespace orbs::bench

#endif
