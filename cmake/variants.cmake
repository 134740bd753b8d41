# The seven variants: which are built, and the compiler flags of each level. Nothing else in the build differs between them.

set(ORBS_ALL_VARIANTS px w7 v8 s8 p8 g9 h9)  # in the order of the dispatch tables
set(ORBS_VARIANTS "${ORBS_ALL_VARIANTS}" CACHE STRING
    "Variants to build; px is always needed. A missing one is served by px: for quick developer builds only.")

foreach(variant IN LISTS ORBS_VARIANTS)
  if(NOT variant IN_LIST ORBS_ALL_VARIANTS)
    message(FATAL_ERROR "ORBS_VARIANTS: there is no variant '${variant}'; the variants are ${ORBS_ALL_VARIANTS}")
  endif()
endforeach()
if(NOT "px" IN_LIST ORBS_VARIANTS)
  message(FATAL_ERROR "ORBS_VARIANTS: px, the reference, cannot be left out")
endif()

set(ORBS_OPTIMIZATION -O2 CACHE STRING "Optimization level of the library, whatever the build type")

# Where the library's own code finds its headers.
set(ORBS_INCLUDE_DIRS ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)

# What all code of the library has in common. Contraction is off since a fused multiply-add is written where it is meant;
# errno is nobody's channel here, and without it roots and conversions compile to single instructions.
set(ORBS_COMPILE_OPTIONS
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wmissing-declarations ${ORBS_WARNINGS_AS_ERRORS}
    ${ORBS_OPTIMIZATION} -ffp-contract=off -fno-math-errno -fno-exceptions -fno-rtti -fno-threadsafe-statics
    -fno-semantic-interposition)

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  # Clang has nothing like -mincoming-stack-boundary: with -mstackrealign it still reads vectors of arguments as aligned.
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    message(FATAL_ERROR "The 32-bit library needs GCC: other compilers rely on a stack that old programs do not align")
  endif()
  # Old callers align the stack to 4 bytes only; vectors on it need 16, and so does the C library. -mstackrealign would not
  # do: in functions with vectors of 32 bytes it takes for granted that their callers align to 16.
  set(from_any_stack -mincoming-stack-boundary=2)
  # The oldest processor that has x87. px must run where CPUID finds nothing.
  set(ORBS_BASELINE_FLAGS -march=i486 -mtune=generic -mno-mmx -mno-sse -mfpmath=387 ${from_any_stack})
  set(ORBS_VECTOR_BASELINE_FLAGS -march=i686 -mtune=generic -mfpmath=sse ${from_any_stack})
else()
  set(ORBS_BASELINE_FLAGS -march=x86-64 -mtune=generic)
  set(ORBS_VECTOR_BASELINE_FLAGS ${ORBS_BASELINE_FLAGS})
endif()

set(ORBS_FLAGS_px ${ORBS_BASELINE_FLAGS} -fno-tree-vectorize -fno-tree-slp-vectorize)
set(ORBS_FLAGS_w7 ${ORBS_VECTOR_BASELINE_FLAGS} -msse2)
set(ORBS_FLAGS_v8 ${ORBS_VECTOR_BASELINE_FLAGS} -mssse3)
set(ORBS_FLAGS_s8 ${ORBS_VECTOR_BASELINE_FLAGS} -mssse3 -mmovbe -mtune=bonnell)
set(ORBS_FLAGS_p8 ${ORBS_VECTOR_BASELINE_FLAGS} -msse4.1)  # selected on SSE4.1 alone, so nothing of SSE4.2
# AVX implies POPCNT to the compiler, but the selection does not test for it. GCC adds the vzeroupper that callers are owed
# among its expensive optimizations, which -O1 leaves out.
set(avx_flags -mno-popcnt $<$<CXX_COMPILER_ID:GNU>:-fexpensive-optimizations>)
set(ORBS_FLAGS_g9 ${ORBS_VECTOR_BASELINE_FLAGS} -mavx ${avx_flags})
set(ORBS_FLAGS_h9 ${ORBS_VECTOR_BASELINE_FLAGS} -mavx2 -mfma -mbmi -mbmi2 ${avx_flags})

# orbs_add_variant(VARIANT SOURCE...): the object library orbs_VARIANT from the family sources.
function(orbs_add_variant variant)
  list(FIND ORBS_ALL_VARIANTS ${variant} index)
  add_library(orbs_${variant} OBJECT ${ARGN})
  target_include_directories(orbs_${variant} PRIVATE ${ORBS_INCLUDE_DIRS})
  target_compile_definitions(orbs_${variant} PRIVATE ORBS_VARIANT=${variant} ORBS_VARIANT_INDEX=${index})
  target_compile_options(orbs_${variant} PRIVATE ${ORBS_COMPILE_OPTIONS} ${ORBS_FLAGS_${variant}})
endfunction()
