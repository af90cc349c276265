# Cross-compiles the host for arm64 Linux, with Debian's clang 19 and lld over the sysroot that the
# script beside this file makes (LUMIFACT_ARM64_SYSROOT); what is built runs in qemu.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LUMIFACT_ARM64_SYSROOT)
set(CMAKE_SYSROOT ${LUMIFACT_ARM64_SYSROOT})
foreach(language C CXX ASM)
  set(CMAKE_${language}_COMPILER clang-19)
  set(CMAKE_${language}_COMPILER_TARGET aarch64-linux-gnu)
  set(CMAKE_${language}_FLAGS_INIT --gcc-toolchain=${CMAKE_SYSROOT}/usr)
endforeach()
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_AR llvm-ar-19)
set(CMAKE_RANLIB llvm-ranlib-19)
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT -fuse-ld=lld-19)
endforeach()
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L ${CMAKE_SYSROOT})

set(LUMIFACT_EMULATED ON CACHE BOOL "Build what maps the phone's library" FORCE)

# Libraries and headers are the sysroot's, programs the machine's; Qt's tools are found beside the
# machine's own Qt.
set(CMAKE_FIND_ROOT_PATH ${CMAKE_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
set(QT_HOST_PATH /usr CACHE PATH "")
file(GLOB qt_host_cmake /usr/lib/*-linux-gnu/cmake/Qt6HostInfo)
get_filename_component(qt_host_cmake "${qt_host_cmake}" DIRECTORY)
set(QT_HOST_PATH_CMAKE_DIR ${qt_host_cmake} CACHE PATH "")
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${CMAKE_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR}
  ${CMAKE_SYSROOT}/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/pkgconfig:${CMAKE_SYSROOT}/usr/share/pkgconfig)
