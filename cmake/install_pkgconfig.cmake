# A step of the installation: the pkg-config file, with absolute paths. Only in a path that it knows by its text does
# pkg-config recognise a folder that compiler and linker search anyway, and leave it out.

configure_file(${CMAKE_CURRENT_LIST_DIR}/orbs90lgc.pc.in ${PROJECT_BINARY_DIR}/orbs90lgc.pc @ONLY)
file(INSTALL DESTINATION "${ORBS_LIBDIR}/pkgconfig" TYPE FILE FILES ${PROJECT_BINARY_DIR}/orbs90lgc.pc)
