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
    src/fir/float/block.cpp
    src/fir/direct/float.cpp
    src/fir/direct/integer.cpp
    src/fir/float/access.cpp
    src/fir/float/init.cpp
    src/fir/integer/filter.cpp
    src/fir/integer/state.cpp
    src/fir/adaptive/lms.cpp
    src/fir/float/one.cpp
    src/gen/window/blackman.cpp
    src/gen/companding/companding.cpp
    src/gen/pattern/jaehne.cpp
    src/gen/window/kaiser.cpp
    src/gen/pattern/ramp.cpp
    src/gen/random/random_gauss.cpp
    src/gen/random/random_uniform.cpp
    src/gen/pattern/slope.cpp
    src/gen/tone/tone.cpp
    src/gen/tone/tone_q15.cpp
    src/gen/triangle/triangle.cpp
    src/gen/triangle/triangle_q15.cpp
    src/iir/access.cpp
    src/iir/direct.cpp
    src/iir/filter.cpp
    src/iir/init.cpp
    src/iir/run.cpp
    src/modem/fm.cpp
    src/modem/goertzel.cpp
    src/modem/viterbi.cpp
    src/transform/engine/px/codelets.cpp
    src/transform/engine/complex.cpp
    src/transform/engine/init.cpp
    src/transform/integer/complex.cpp
    src/transform/integer/fixed.cpp
    src/transform/integer/init.cpp
    src/transform/integer/real.cpp
    src/transform/integer/tables.cpp
    src/transform/engine/layout.cpp
    src/transform/engine/real.cpp
    src/transform/engine/sine.cpp
    src/transform/engine/vector/transform.cpp
    src/transform/spectrum/spectrum.cpp)

# Compiled once: what lies below the variants, and what stands in front of them.
set(ORBS_COMMON_SOURCES src/boundary/cache.cpp src/boundary/cpuid.cpp src/core/memory.cpp src/boundary/processor.cpp)
set(ORBS_BOUNDARY_SOURCES src/boundary/init.cpp src/boundary/stubs.S)
