# The sources of the library. A new family adds its files to ORBS_VARIANT_SOURCES; each is compiled once per variant.

set(ORBS_VARIANT_SOURCES
    frame/version.cpp
    frame/toolkit/complex.cpp
    frame/toolkit/convert.cpp
    frame/toolkit/convert_scaled.cpp
    frame/toolkit/copy.cpp
    frame/toolkit/divide.cpp
    frame/toolkit/elementary.cpp
    frame/toolkit/fill.cpp
    frame/toolkit/flip.cpp
    frame/toolkit/integer.cpp
    frame/toolkit/real.cpp
    fir/block.cpp
    fir/direct.cpp
    fir/direct_integer.cpp
    fir/float_access.cpp
    fir/float_init.cpp
    fir/integer.cpp
    fir/integer_state.cpp
    fir/lms.cpp
    fir/one.cpp
    gen/blackman.cpp
    gen/companding.cpp
    gen/jaehne.cpp
    gen/kaiser.cpp
    gen/ramp.cpp
    gen/random_gauss.cpp
    gen/random_uniform.cpp
    gen/slope.cpp
    gen/tone.cpp
    gen/tone_q15.cpp
    gen/triangle.cpp
    gen/triangle_q15.cpp
    iir/access.cpp
    iir/direct.cpp
    iir/filter.cpp
    iir/init.cpp
    iir/run.cpp
    modem/fm.cpp
    modem/goertzel.cpp
    modem/viterbi.cpp
    transform/fft_codelets.cpp
    transform/fft_complex.cpp
    transform/fft_init.cpp
    transform/fft_integer_complex.cpp
    transform/fft_integer_fixed.cpp
    transform/fft_integer_init.cpp
    transform/fft_integer_real.cpp
    transform/fft_integer_tables.cpp
    transform/fft_layout.cpp
    transform/fft_real.cpp
    transform/fft_sine.cpp
    transform/fft_vector.cpp
    transform/spectrum.cpp)

# Compiled once: what lies below the variants, and what stands in front of them.
set(ORBS_COMMON_SOURCES frame/cache.cpp frame/cpuid.cpp frame/memory.cpp frame/processor.cpp)
set(ORBS_BOUNDARY_SOURCES frame/init.cpp frame/stubs.S)
