# cmake --install: headers, library, pkg-config file and CMake package.

include(CMakePackageConfigHelpers)

set(ORBS_PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/orbs90lgc)

# What the scripts below know of the build. The folders are completed when they run: only then is the prefix known,
# which cmake --install --prefix may choose.
set(values "")
foreach(name CMAKE_SIZEOF_VOID_P PROJECT_BINARY_DIR PROJECT_DESCRIPTION PROJECT_NAME PROJECT_VERSION)
  string(APPEND values "set(${name} [==[${${name}}]==])\n")
endforeach()
foreach(name INCLUDEDIR LIBDIR)
  set(folder "${CMAKE_INSTALL_${name}}")
  if(NOT IS_ABSOLUTE "${folder}")
    string(PREPEND folder "\${CMAKE_INSTALL_PREFIX}/")
  endif()
  string(APPEND values "set(ORBS_${name} \"${folder}\")\n")
endforeach()
install(CODE "${values}")

# First of all, so that a refused installation leaves nothing behind.
install(SCRIPT cmake/refuse_other_word_size.cmake)
install(TARGETS orbs90lgc EXPORT orbs90lgc-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(EXPORT orbs90lgc-targets NAMESPACE orbs90lgc:: DESTINATION ${ORBS_PACKAGE_FOLDER})
install(SCRIPT cmake/install_pkgconfig.cmake)

configure_package_config_file(cmake/orbs90lgc-config.cmake.in orbs90lgc-config.cmake
    INSTALL_DESTINATION ${ORBS_PACKAGE_FOLDER})
# Also compares the size of a pointer: where both word sizes are installed, each program finds its own.
write_basic_package_version_file(orbs90lgc-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/orbs90lgc-config.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/orbs90lgc-config-version.cmake
    DESTINATION ${ORBS_PACKAGE_FOLDER})
