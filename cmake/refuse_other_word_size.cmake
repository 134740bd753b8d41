# A step of the installation: refuses to replace a library of the other word size, which programs may be using.

# The fifth byte of an ELF file tells its class: 1 for 32 bits, 2 for 64.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(other_start 7f454c4602)
  set(other_bits 64)
else()
  set(other_start 7f454c4601)
  set(other_bits 32)
endif()

file(GLOB libraries "$ENV{DESTDIR}${ORBS_LIBDIR}/liborbs90lgc.so*")
foreach(library IN LISTS libraries)
  if(NOT EXISTS "${library}")
    continue()  # a link to nothing
  endif()
  file(READ "${library}" start LIMIT 5 HEX)
  if(start STREQUAL other_start)
    message(FATAL_ERROR
        "${library} is a ${other_bits}-bit library, which this one of the other word size would replace. Nothing has "
        "been installed. To keep both, configure one of the builds with another library folder, such as "
        "-DCMAKE_INSTALL_LIBDIR=lib/i386-linux-gnu for the 32-bit one (the preset i386 does), or install into "
        "another prefix: cmake --install BUILD --prefix FOLDER. To replace it, remove it first.")
  endif()
endforeach()
