# liborbs90lgc.so and, beside it, liborbs90lgc_pinnable.so from the same objects.

# The vendor that Init expects. The default is fixed, so that the library is the same wherever it was built. It is the
# one whose processors answer the CPUID leaves that src/boundary/processor/cache.cpp reads, 2 and 4, and no others are asked.
if("$CACHE{ORBS_EXPECTED_VENDOR_ID}" STREQUAL "")
  unset(ORBS_EXPECTED_VENDOR_ID CACHE)  # an empty one stands for the default
endif()
set(ORBS_EXPECTED_VENDOR_ID GenuineIntel CACHE STRING "CPUID vendor string that Init expects, 12 characters")
string(LENGTH "${ORBS_EXPECTED_VENDOR_ID}" length)
if(NOT length EQUAL 12)
  message(FATAL_ERROR "ORBS_EXPECTED_VENDOR_ID must have 12 characters; '${ORBS_EXPECTED_VENDOR_ID}' has ${length}")
endif()
message(STATUS "Expected processor vendor: ${ORBS_EXPECTED_VENDOR_ID}")

foreach(variant IN LISTS ORBS_VARIANTS)
  orbs_add_variant(${variant} ${ORBS_VARIANT_SOURCES})
  list(APPEND variant_objects $<TARGET_OBJECTS:orbs_${variant}>)
endforeach()

# Where each variant's table entries point: to itself, or to px when a quick build leaves it out.
foreach(variant IN LISTS ORBS_ALL_VARIANTS)
  if(variant IN_LIST ORBS_VARIANTS)
    list(APPEND entries ORBS_ENTRY_${variant}=${variant})
  else()
    list(APPEND entries ORBS_ENTRY_${variant}=px)
  endif()
endforeach()

# orbs_add_plain(NAME SOURCE...): an object library of code outside the variants.
function(orbs_add_plain name)
  add_library(${name} OBJECT ${ARGN})
  target_include_directories(${name} PRIVATE ${ORBS_INCLUDE_DIRS})
  target_compile_options(${name} PRIVATE
      $<$<COMPILE_LANGUAGE:CXX>:${ORBS_COMPILE_OPTIONS}> $<$<COMPILE_LANGUAGE:CXX>:${ORBS_BASELINE_FLAGS}>)
endfunction()

orbs_add_plain(orbs_common ${ORBS_COMMON_SOURCES})
target_compile_definitions(orbs_common PRIVATE ORBS_EXPECTED_VENDOR_ID="${ORBS_EXPECTED_VENDOR_ID}")
orbs_add_plain(orbs_boundary ${ORBS_BOUNDARY_SOURCES})
orbs_add_plain(orbs_dispatch src/boundary/dispatch.cpp)
target_compile_definitions(orbs_dispatch PRIVATE ${entries})
orbs_add_plain(orbs_pin src/boundary/pin.cpp)
# The assembler file depends on the list through the preprocessor, which CMake does not scan here.
set_source_files_properties(src/boundary/stubs.S PROPERTIES OBJECT_DEPENDS "${ORBS_EXPORT_LISTS}")

# orbs_add_library(NAME SOVERSION DEFINITIONS OBJECTS...): a shared library that exports the list and nothing else.
function(orbs_add_library name definitions)
  set(map ${CMAKE_BINARY_DIR}/${name}.map)
  add_custom_command(
    OUTPUT ${map}
    COMMAND ${CMAKE_C_COMPILER} -E -P -x c ${definitions} -I ${PROJECT_SOURCE_DIR}/src
            ${PROJECT_SOURCE_DIR}/src/boundary/exports.map.in -o ${map}
    DEPENDS ${PROJECT_SOURCE_DIR}/src/boundary/exports.map.in ${ORBS_EXPORT_LISTS}
    VERBATIM)
  add_custom_target(${name}_map DEPENDS ${map})
  add_library(${name} SHARED ${ARGN})
  add_dependencies(${name} ${name}_map)
  set_target_properties(${name} PROPERTIES LINK_DEPENDS ${map})
  # as-needed drops the C++ runtime: the library uses none of it. 64-bit divisions on i386 come from libgcc.
  target_link_options(${name} PRIVATE -static-libgcc
      -Wl,--version-script=${map} -Wl,--no-undefined -Wl,--as-needed -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
  target_link_libraries(${name} PRIVATE m)
  target_include_directories(${name} PUBLIC
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
endfunction()

set(ORBS_OBJECTS
    $<TARGET_OBJECTS:orbs_boundary> $<TARGET_OBJECTS:orbs_dispatch> $<TARGET_OBJECTS:orbs_common> ${variant_objects})

orbs_add_library(orbs90lgc "" ${ORBS_OBJECTS})
add_library(orbs90lgc::orbs90lgc ALIAS orbs90lgc)
set_target_properties(orbs90lgc PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})

# For tests and benchmarks only: never installed.
orbs_add_library(orbs90lgc_pinnable -DORBS_PINNABLE ${ORBS_OBJECTS} $<TARGET_OBJECTS:orbs_pin>)
target_include_directories(orbs90lgc_pinnable INTERFACE ${PROJECT_SOURCE_DIR}/src)

# The inside of the library without its boundary, for the tests and benchmarks of what is not exported.
add_library(orbs_inside INTERFACE)
target_sources(orbs_inside INTERFACE
    $<TARGET_OBJECTS:orbs_dispatch> $<TARGET_OBJECTS:orbs_boundary> $<TARGET_OBJECTS:orbs_common> ${variant_objects})
target_include_directories(orbs_inside INTERFACE ${ORBS_INCLUDE_DIRS})
target_link_libraries(orbs_inside INTERFACE m)
