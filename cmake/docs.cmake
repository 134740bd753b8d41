# The target docs: the reference as HTML in docs/html of the build folder, from the public headers and docs/*.md.
# Whatever Doxygen warns about is an error: a parameter whose text has a wrong name is a fault like any other.

find_package(Doxygen REQUIRED)

set(ORBS_DOCS_OUTPUT ${CMAKE_BINARY_DIR}/docs)
configure_file(docs/Doxyfile.in ${ORBS_DOCS_OUTPUT}/Doxyfile @ONLY)
add_custom_target(docs
    COMMAND Doxygen::doxygen ${ORBS_DOCS_OUTPUT}/Doxyfile
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    COMMENT "Making the reference"
    VERBATIM)

if(ORBS_BUILD_TESTS)
  add_test(NAME docs.reference COMMAND Doxygen::doxygen ${ORBS_DOCS_OUTPUT}/Doxyfile
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})

  # The proof that a planted fault is found: one of two functions has no text. Doxygen says "error" only where it also
  # ends with a failure.
  set(planted ${ORBS_DOCS_OUTPUT}/planted)
  file(WRITE ${planted}/planted.h "/** @file */\n/** Has a text. */\nint Told(void);\n\nint Untold(void);\n")
  file(WRITE ${planted}/Doxyfile
      "@INCLUDE = ${ORBS_DOCS_OUTPUT}/Doxyfile\nINPUT = ${planted}/planted.h\nOUTPUT_DIRECTORY = ${planted}\n"
      "USE_MDFILE_AS_MAINPAGE =\n")
  add_test(NAME docs.planted COMMAND Doxygen::doxygen ${planted}/Doxyfile WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  set_tests_properties(docs.planted PROPERTIES PASS_REGULAR_EXPRESSION "error: Member Untold")
endif()
