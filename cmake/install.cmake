# cmake --install: headers, library, pkg-config file and CMake package.

include(CMakePackageConfigHelpers)

install(TARGETS orbs90lgc EXPORT orbs90lgc-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(EXPORT orbs90lgc-targets NAMESPACE orbs90lgc:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/orbs90lgc)

configure_package_config_file(cmake/orbs90lgc-config.cmake.in orbs90lgc-config.cmake
    INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/orbs90lgc)
write_basic_package_version_file(orbs90lgc-config-version.cmake COMPATIBILITY SameMajorVersion)
# Relative to the file itself: the folder may be chosen by cmake --install --prefix, or the installation moved.
file(RELATIVE_PATH ORBS_PC_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/orbs90lgc.pc.in orbs90lgc.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orbs90lgc-config.cmake ${CMAKE_CURRENT_BINARY_DIR}/orbs90lgc-config-version.cmake
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/orbs90lgc)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orbs90lgc.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
