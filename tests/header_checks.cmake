# Every header compiles alone. Compiling them is the test.

# The public headers in both languages, together and each alone.
add_library(orbs_header_checks OBJECT boundary/header_c.c boundary/header_cpp.cpp)
file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/include/orbs90lgc/*.h)
foreach(header IN LISTS headers)
  string(MAKE_C_IDENTIFIER ${header} name)
  file(CONFIGURE OUTPUT header_checks/${name}.c CONTENT "#include <${header}>\n")
  target_sources(orbs_header_checks PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/header_checks/${name}.c)
endforeach()
target_include_directories(orbs_header_checks PRIVATE ${PROJECT_SOURCE_DIR}/include)
target_compile_options(orbs_header_checks PRIVATE
    -Wall -Wextra -pedantic ${ORBS_WARNINGS_AS_ERRORS}
    $<$<COMPILE_LANGUAGE:C>:-std=c99> $<$<COMPILE_LANGUAGE:C>:-Wstrict-prototypes>)

# The headers inside, as px and as h9. There is no code to optimise in such a source, nor anybody who calls its functions.
if(NOT ORBS_CHECK_HEADERS)
  return()
endif()
# Those that are included below #if ORBS_VECTOR only.
set(vector_headers "^simd/avx\\.h$|^transform/engine/vector/|^transform/integer/data\\.h$|_vector\\.h$")
file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/src/*.h)
foreach(variant px h9)
  if(NOT variant IN_LIST ORBS_VARIANTS)
    continue()
  endif()
  set(sources "")
  foreach(header IN LISTS headers)
    if(variant STREQUAL "px" AND header MATCHES "${vector_headers}")
      continue()
    endif()
    string(MAKE_C_IDENTIFIER ${header} name)
    file(CONFIGURE OUTPUT header_checks/${name}.cpp CONTENT "#include \"${header}\"\n")
    list(APPEND sources ${CMAKE_CURRENT_BINARY_DIR}/header_checks/${name}.cpp)
  endforeach()
  add_library(orbs_header_checks_${variant} OBJECT ${sources})
  list(FIND ORBS_ALL_VARIANTS ${variant} index)
  target_include_directories(orbs_header_checks_${variant} PRIVATE ${ORBS_INCLUDE_DIRS})
  target_compile_definitions(orbs_header_checks_${variant} PRIVATE
      ORBS_VARIANT=${variant} ORBS_VARIANT_INDEX=${index}
      ORBS_SLICE="boundary/exports/frame.def")  # for declare_exports.h, which takes any
  target_compile_options(orbs_header_checks_${variant} PRIVATE
      ${ORBS_COMPILE_OPTIONS} ${ORBS_FLAGS_${variant}} -O0 -Wno-unused-function)
endforeach()
