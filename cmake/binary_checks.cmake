# Two properties of the built objects, checked on every build: a variant's global symbols stay in its namespace and its
# instructions at its level (tools/check_variants.py). The stamp of a variant is as new as its objects, so that a build looks
# at what it has compiled and at nothing else.

# Instrumented objects hold symbols and instructions of the instrumentation, and are never shipped.
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize|--coverage|-fprofile-arcs")
  return()
endif()

find_package(Python3 REQUIRED COMPONENTS Interpreter)
# By name and not CMAKE_NM and CMAKE_OBJDUMP: with Clang those are LLVM's, which print another text.
find_program(ORBS_NM nm REQUIRED)
find_program(ORBS_OBJDUMP objdump REQUIRED)

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(check_arch i386)
else()
  set(check_arch x86-64)
endif()
set(check_tools ${PROJECT_SOURCE_DIR}/tools/check_variants.py ${PROJECT_SOURCE_DIR}/tools/instruction_levels.py)
set(check_command ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/tools/check_variants.py
    --arch ${check_arch} --nm ${ORBS_NM} --objdump ${ORBS_OBJDUMP})
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
    COMMAND ${check_command} ${part}=@${check_folder}/${part}.txt
    COMMAND ${CMAKE_COMMAND} -E touch ${check_folder}/${part}.stamp
    DEPENDS ${objects} ${check_folder}/${part}.txt ${check_tools}
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
add_test(NAME binary_checks COMMAND ${check_command} ${check_parts})
add_test(NAME binary_checks_planted
    COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/tools/check_variants_test.py
            --compiler ${CMAKE_CXX_COMPILER} --nm ${ORBS_NM} --objdump ${ORBS_OBJDUMP})
