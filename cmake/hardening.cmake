# What stands between a fault that is still in our code and whoever finds it with a file: a write
# beyond a frame or an index beyond a vector ends the process, and nothing that is called from a
# table can be written to or jumped into its middle. tests/built reads it back from what was built.

include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckPIESupported)

option(LUMIFACT_HARDENED "Harden optimised builds, beyond what the compiler's flags say" ON)

# Optimised builds have it. The sanitizers find more, and get in the way of some of it.
set(ROOM_IS_HARDENED OFF)
if(LUMIFACT_HARDENED AND CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$"
   AND NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize" AND NOT LUMIFACT_DEVICE)
  set(ROOM_IS_HARDENED ON)
endif()

add_library(room_hardening INTERFACE)
if(ROOM_IS_HARDENED)
  check_pie_supported()
  # The third level knows more sizes, where compiler and C library have it.
  set(CMAKE_REQUIRED_FLAGS "-O2 -Werror -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
  check_cxx_source_compiles("#include <string.h>\nint main() { return 0; }" HAS_FORTIFY_SOURCE_3)
  unset(CMAKE_REQUIRED_FLAGS)
  target_compile_options(room_hardening INTERFACE
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=$<IF:$<BOOL:${HAS_FORTIFY_SOURCE_3}>,3,2>
    -D_GLIBCXX_ASSERTIONS -fstack-protector-strong)
  # The last two are the same thing on different processors.
  foreach(flag -fstack-clash-protection -fcf-protection=full -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "HAS${flag}" has)
    check_cxx_compiler_flag(${flag} ${has})
    if(${has})
      target_compile_options(room_hardening INTERFACE ${flag})
    endif()
  endforeach()
  target_link_options(room_hardening INTERFACE
    LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
endif()
