# The first program of README.md, as it stands there: the test that every build has, also one without ORBS_BUILD_TESTS.

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS README.md)
file(READ README.md text)
if(NOT text MATCHES "```c\n([^`]*)```")
  message(FATAL_ERROR "README.md has no C program")
endif()
file(CONFIGURE OUTPUT first.c CONTENT "${CMAKE_MATCH_1}" @ONLY)

add_executable(orbs90lgc_first ${CMAKE_CURRENT_BINARY_DIR}/first.c)
target_link_libraries(orbs90lgc_first PRIVATE orbs90lgc::orbs90lgc)
add_test(NAME readme.first_program COMMAND orbs90lgc_first)
# The last of its lines: a sample, its code and what comes back.
set_tests_properties(readme.first_program PROPERTIES PASS_REGULAR_EXPRESSION "\n-32768  0x2A  -32256\n$")
