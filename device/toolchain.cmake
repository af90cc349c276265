# Cross-compiles for the phone (arm64, iOS 12.0) with Debian's clang 19, lld and libc++ headers over
# musl's C headers. No vendor SDK takes part: what is linked against are the stubs beside this file.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_AR llvm-ar-19)
set(CMAKE_RANLIB llvm-ranlib-19)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

set(LUMIFACT_DEVICE ON CACHE BOOL "Build the extension for the phone" FORCE)

set(llvm /usr/lib/llvm-19)
file(GLOB musl_headers /usr/include/*-linux-musl)

# need(WHAT PACKAGE FOUND): one line says what is missing; nothing else stands in for it.
function(need what package found)
  if(NOT found)
    message(FATAL_ERROR "${what} was not found. Install it: apt-get install ${package}")
  endif()
endfunction()
function(need_tool tool package)
  find_program(path_of_${tool} ${tool})
  mark_as_advanced(path_of_${tool})
  need(${tool} ${package} "${path_of_${tool}}")
endfunction()

need_tool(clang++-19 clang-19)
need_tool(ld64.lld-19 lld-19)
need_tool(llvm-ar-19 llvm-19)
file(GLOB cxx_headers ${llvm}/include/c++/v1/vector)
need("libc++ 19's headers" libc++-19-dev "${cxx_headers}")
need("musl's headers" musl-dev "${musl_headers}")
file(GLOB openssl_headers /usr/include/openssl/sha.h)
need("OpenSSL's headers" libssl-dev "${openssl_headers}")

string(JOIN " " CMAKE_CXX_FLAGS_INIT
    -target arm64-apple-ios12.0
    -nostdinc
    # Ours first: its __config_site takes the place of the one that libc++ was packaged with.
    -isystem ${CMAKE_CURRENT_LIST_DIR}/include
    -isystem ${llvm}/include/c++/v1
    -isystem ${llvm}/lib/clang/19/include
    -isystem ${musl_headers}
    -D_GNU_SOURCE)
# Without NDEBUG, so that an assert would import its handler and be found.
set(CMAKE_CXX_FLAGS_RELEASE "-O2" CACHE STRING "Flags of the Release build")
