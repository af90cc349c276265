# The few helpers that every room's CMakeLists.txt is written with.

# What our own code is compiled with; never exported, so nobody else inherits our warnings.
add_library(room_flags INTERFACE)
target_compile_features(room_flags INTERFACE cxx_std_20)
target_compile_options(room_flags INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Werror -fvisibility=hidden
    # At -O3 GCC 12 sees overlaps in string concatenation and uninitialised variants where there
    # are none (GCC bugs 105329 and 105562); the other builds keep both warnings.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict;-Wno-maybe-uninitialized>)

# room_library(NAME alias::name SOURCES a.cpp ... [DEPENDS lib ...] [PRIVATE_DEPENDS lib ...])
# A static library whose headers are included by their path from the repository's root. All of them
# are listed in the global property ROOM_LIBRARIES.
function(room_library name alias)
  cmake_parse_arguments(ROOM "" "" "SOURCES;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  set_property(GLOBAL APPEND PROPERTY ROOM_LIBRARIES ${name})
  add_library(${alias} ALIAS ${name})
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PUBLIC ${ROOM_DEPENDS} PRIVATE $<BUILD_INTERFACE:room_flags> ${ROOM_PRIVATE_DEPENDS})
endfunction()

# room_test(NAME SOURCES a_test.cpp ... DEPENDS lib ... [LABELS l ...])
# One GoogleTest program; every TEST in it becomes a ctest test of its own.
function(room_test name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;DEPENDS;LABELS" ${ARGN})
  add_executable(${name} ${ROOM_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE room_flags ${ROOM_DEPENDS} GTest::gmock GTest::gtest_main)
  # The assertions themselves need no optimisation, and without it they compile twice as fast.
  target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O0>)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 LABELS "${ROOM_LABELS}")
endfunction()
