# The sources of the library. A new family adds its files to ORBS_VARIANT_SOURCES; each is compiled once per variant.

set(ORBS_VARIANT_SOURCES
    src/boundary/version.cpp
    src/toolkit/complex.cpp
    src/toolkit/convert.cpp
    src/toolkit/convert_scaled.cpp
    src/toolkit/copy.cpp
    src/toolkit/divide.cpp
    src/toolkit/elementary.cpp
    src/toolkit/fill.cpp
    src/toolkit/flip.cpp
    src/toolkit/integer.cpp
    src/toolkit/real.cpp
    src/transform/engine/codelets_32f.cpp
    src/transform/engine/codelets_64f.cpp
    src/transform/engine/complex.cpp
    src/transform/engine/init.cpp
    src/transform/engine/layout.cpp
    src/transform/engine/real.cpp
    src/transform/engine/tables/sine.cpp
    src/transform/engine/vector/tables.cpp
    src/transform/engine/vector/transform_32f.cpp
    src/transform/engine/vector/transform_64f.cpp
    src/transform/integer/complex_exports_16.cpp
    src/transform/integer/complex_exports_32.cpp
    src/transform/integer/fixed/fixed.cpp
    src/transform/integer/fixed/tables.cpp
    src/transform/integer/init_exports.cpp
    src/transform/integer/real_exports_16.cpp
    src/transform/integer/real_exports_32.cpp
    src/transform/spectrum/spectrum_exports.cpp
    src/fir/adaptive/lms_exports.cpp
    src/fir/direct/float_taps_exports_float_data.cpp
    src/fir/direct/float_taps_exports_integer_data.cpp
    src/fir/direct/integer_taps_exports.cpp
    src/fir/float/access_exports.cpp
    src/fir/float/filter_exports.cpp
    src/fir/float/init_exports.cpp
    src/fir/float/one_exports.cpp
    src/fir/integer/access_exports.cpp
    src/fir/integer/filter_exports.cpp
    src/fir/integer/init_exports.cpp
    src/fir/sizes.cpp
    src/gen/companding/companding_exports.cpp
    src/gen/pattern/jaehne_exports.cpp
    src/gen/pattern/ramp_exports.cpp
    src/gen/pattern/slope_exports.cpp
    src/gen/random/random_gauss_exports.cpp
    src/gen/random/random_uniform_exports.cpp
    src/gen/tone/tone_exports.cpp
    src/gen/tone/tone_q15_exports.cpp
    src/gen/triangle/triangle_exports.cpp
    src/gen/triangle/triangle_q15_exports.cpp
    src/gen/window/blackman_exports.cpp
    src/gen/window/kaiser_exports.cpp
    src/iir/access_exports.cpp
    src/iir/direct_exports.cpp
    src/iir/filter_exports.cpp
    src/iir/init_exports.cpp
    src/iir/run.cpp
    src/iir/state/sizes.cpp
    src/modem/fm_exports.cpp
    src/modem/goertzel_exports.cpp
    src/modem/viterbi_exports.cpp)

# Compiled once: what lies below the variants, and what stands in front of them.
set(ORBS_COMMON_SOURCES src/boundary/processor/cache.cpp src/boundary/processor/cpuid.cpp src/core/memory.cpp src/boundary/processor/processor.cpp)
set(ORBS_BOUNDARY_SOURCES src/boundary/init.cpp src/boundary/stubs.S)

# The list of exports, for what reads it without the compiler's own record of what a file includes.
file(GLOB ORBS_EXPORT_LISTS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/boundary/exports/*.def)
list(APPEND ORBS_EXPORT_LISTS ${PROJECT_SOURCE_DIR}/src/boundary/exports.def)
