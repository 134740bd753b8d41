# What tools/check_objects/checks.h promises of the objects of every variant, checked on every build. The stamp of a variant
# is as new as its objects, so that a build looks at what it has compiled and at nothing else.

# Instrumented objects hold symbols and instructions of the instrumentation, and are never shipped.
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize|--coverage|-fprofile-arcs")
  return()
endif()
# Without optimization the compiler clears no upper halves, and what it does not inline of the standard library lies in every
# object. Such a build runs on the machine of who debugs it, where the variants may share what they like.
if(ORBS_OPTIMIZATION STREQUAL "-O0")
  return()
endif()

find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_path(ORBS_ZYDIS_INCLUDE_DIR Zydis/Zydis.h)
if(NOT ORBS_ZYDIS_INCLUDE_DIR)
  message(FATAL_ERROR "No Zydis: install the package libzydis-dev, or configure with -DORBS_BUILD_TESTS=OFF")
endif()

# A program of the building machine, whatever the library is built for: 64 bits, and no emulator in front of it. Zydis goes
# by its bare name, since a 32-bit build looks for libraries in other folders.
add_executable(check_objects EXCLUDE_FROM_ALL
    tools/check_objects/check_level.cpp
    tools/check_objects/check_namespace.cpp
    tools/check_objects/check_stack_alignment.cpp
    tools/check_objects/check_upper_halves.cpp
    tools/check_objects/elf_object.cpp
    tools/check_objects/functions.cpp
    tools/check_objects/instruction.cpp
    tools/check_objects/levels.cpp
    tools/check_objects/main.cpp
    tools/check_objects/report.cpp)
target_include_directories(check_objects SYSTEM PRIVATE ${ORBS_ZYDIS_INCLUDE_DIR})
target_compile_options(check_objects PRIVATE
    -m64 -Wall -Wextra -Wpedantic -Wshadow -Wconversion ${ORBS_WARNINGS_AS_ERRORS})
target_link_options(check_objects PRIVATE -m64)
target_link_libraries(check_objects PRIVATE Zydis)
set_target_properties(check_objects PROPERTIES CROSSCOMPILING_EMULATOR "")

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(check_arch i386)
else()
  set(check_arch x86-64)
endif()
set(check_folder ${PROJECT_BINARY_DIR}/binary_checks)

# orbs_add_binary_check(PART LIBRARY...): checks the objects of these libraries as that variant, or as common.
set(check_parts "")
set(check_stamps "")
macro(orbs_add_binary_check part)
  set(objects "")
  foreach(library ${ARGN})
    list(APPEND objects $<TARGET_OBJECTS:${library}>)
  endforeach()
  # A file, since a hundred paths do not fit in a command line that anybody would read.
  file(GENERATE OUTPUT ${check_folder}/${part}.txt CONTENT "$<JOIN:${objects},\n>\n")
  add_custom_command(
    OUTPUT ${check_folder}/${part}.stamp
    COMMAND check_objects --arch ${check_arch} ${part}=@${check_folder}/${part}.txt
    COMMAND ${CMAKE_COMMAND} -E touch ${check_folder}/${part}.stamp
    DEPENDS check_objects ${objects} ${check_folder}/${part}.txt
    COMMENT "Checking symbols and instructions of ${part}"
    VERBATIM)
  list(APPEND check_parts ${part}=@${check_folder}/${part}.txt)
  list(APPEND check_stamps ${check_folder}/${part}.stamp)
endmacro()

foreach(variant IN LISTS ORBS_VARIANTS)
  orbs_add_binary_check(${variant} orbs_${variant})
endforeach()
orbs_add_binary_check(common orbs_common orbs_boundary orbs_dispatch)
add_custom_target(orbs_binary_checks ALL DEPENDS ${check_stamps})

# The same once more where the summary of the tests shows it, and the proof that a planted fault is found.
add_test(NAME binary_checks COMMAND check_objects --arch ${check_arch} ${check_parts})
add_test(NAME binary_checks_planted
    COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/tools/check_objects_test.py
            --checker $<TARGET_FILE:check_objects> --compiler ${CMAKE_CXX_COMPILER})
