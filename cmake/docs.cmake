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
