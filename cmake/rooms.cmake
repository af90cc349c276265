# The few helpers that every room's CMakeLists.txt is written with.

# What our own code is compiled with; never exported, so nobody else inherits our warnings.
add_library(room_warnings INTERFACE)
target_compile_features(room_warnings INTERFACE cxx_std_20)
target_compile_options(room_warnings INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Werror -fvisibility=hidden
    # Where it optimises, GCC 12 sees overlaps in string concatenation and uninitialised variants
    # where there are none (GCC bugs 105329 and 105562); the other builds keep both warnings.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict;-Wno-maybe-uninitialized>)
add_library(room_flags INTERFACE)
target_link_libraries(room_flags INTERFACE room_warnings room_hardening)

# room_rule(NAME [SOURCES a.cpp ...] [FOLDERS folder ...] [MAY_INCLUDE path ...])
# What the files of the current folder may include: each other, and the folders and single headers
# after MAY_INCLUDE. FOLDERS are the room's own folders in their order: each may include those before
# it, and the room's own files (".") stand above all where the line does not place them. Of two rooms
# in one folder the second holds the SOURCES and headers that it lists. tests/rooms checks the rules.
function(room_rule name)
  cmake_parse_arguments(RULE "" "" "SOURCES;FOLDERS;MAY_INCLUDE" ${ARGN})
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  string(JOIN " " may_include ${RULE_MAY_INCLUDE})
  string(JOIN " " folders ${RULE_FOLDERS})
  string(JOIN " " files ${RULE_SOURCES})
  set_property(GLOBAL APPEND_STRING PROPERTY ROOM_RULES
    "room ${name} ${folder}\nmay-include ${may_include}\nfolders ${folders}\nfiles ${files}\n")
endfunction()

# Sources of a folder read much the same headers, so up to eight of them are compiled as one; names
# that are local to a file differ within its folder then, and lint checks each source by itself. A
# compiler cache does better with every source alone, and so does whoever works on one file for long
# (the debug preset). A source given as ALONE stays apart, as its local names are those of its
# neighbours.
if(NOT DEFINED CMAKE_UNITY_BUILD AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_UNITY_BUILD ON)
endif()
function(room_join_sources target alone)
  set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
  set_source_files_properties(${alone} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  foreach(source ${ARGN})
    get_filename_component(folder ${source} DIRECTORY)
    string(MAKE_C_IDENTIFIER "group_${folder}" group)
    list(LENGTH ${group} before)
    math(EXPR piece "${before} / 8")
    list(APPEND ${group} ${source})
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group}_${piece})
  endforeach()
endfunction()

# room_library(NAME alias::name SOURCES a.cpp ... [ALONE b.cpp ...] [FOLDERS folder ...]
#              [MAY_INCLUDE path ...] [HEADERS name] [DEPENDS lib ...] [PRIVATE_DEPENDS lib ...])
# A static library whose headers are included by their path from the repository's root. All of them
# are listed in the global property ROOM_LIBRARIES. FOLDERS and MAY_INCLUDE are those of room_rule,
# HEADERS are a room_headers.
function(room_library name alias)
  cmake_parse_arguments(
    ROOM "" "HEADERS" "SOURCES;ALONE;FOLDERS;MAY_INCLUDE;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
  room_rule(${name} SOURCES ${ROOM_SOURCES} ${ROOM_ALONE} FOLDERS ${ROOM_FOLDERS}
            MAY_INCLUDE ${ROOM_MAY_INCLUDE})
  add_library(${name} STATIC ${ROOM_SOURCES} ${ROOM_ALONE})
  room_join_sources(${name} "${ROOM_ALONE}" ${ROOM_SOURCES})
  set_property(GLOBAL APPEND PROPERTY ROOM_LIBRARIES ${name})
  add_library(${alias} ALIAS ${name})
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PUBLIC ${ROOM_DEPENDS} PRIVATE $<BUILD_INTERFACE:room_flags> ${ROOM_PRIVATE_DEPENDS})
  if(ROOM_HEADERS)
    target_precompile_headers(${name} REUSE_FROM ${ROOM_HEADERS})
  endif()
endfunction()

# Where modules lie, below the root of the build tree and of the installed one.
set(ROOM_MODULE_DIR ${CMAKE_INSTALL_LIBDIR}/desktop-modules)

# room_module(NAME SOURCES a.cpp ... [DEPENDS lib ...])
# NAME.so, which programs map when they first need it, and with it the libraries that it links (see
# io/on_demand_module.h). It shows no symbol but its own, and states the version of the project.
function(room_module name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;DEPENDS" ${ARGN})
  set(version ${CMAKE_CURRENT_BINARY_DIR}/${name}_version.cpp)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/module_version.cpp.in ${version} @ONLY)
  add_library(${name} MODULE ${ROOM_SOURCES} ${version})
  room_join_sources(${name} ${version} ${ROOM_SOURCES})
  set_target_properties(${name} PROPERTIES
    PREFIX "" SUFFIX ".so" LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${ROOM_MODULE_DIR})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE room_flags ${ROOM_DEPENDS})
  target_link_options(${name} PRIVATE LINKER:--exclude-libs,ALL)
  # A sanitizer's own functions are the program's.
  if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    target_link_options(${name} PRIVATE LINKER:--no-undefined)
  endif()
  install(TARGETS ${name} LIBRARY DESTINATION ${ROOM_MODULE_DIR})
endfunction()

# room_worker(NAME SOURCES a.cpp ... [DEPENDS lib ...])
# A program that others start and talk to (see workers/): it lies beside the modules and confines
# itself.
function(room_worker name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${ROOM_SOURCES})
  room_join_sources(${name} "" ${ROOM_SOURCES})
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${ROOM_MODULE_DIR})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE room_flags workers::confinement ${ROOM_DEPENDS})
  install(TARGETS ${name} RUNTIME DESTINATION ${ROOM_MODULE_DIR})
endfunction()

# Headers that take longer to read than most of what includes them are compiled once for all targets
# that are compiled alike. A compiler cache has no use for that, and makes up for it.
if(CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

# room_headers(NAME FLAGS lib HEADERS header ... DEPENDS lib ...)
# Headers for targets with those flags: target_precompile_headers(TARGET REUSE_FROM NAME).
function(room_headers name)
  cmake_parse_arguments(ROOM "" "FLAGS" "HEADERS;DEPENDS" ${ARGN})
  file(CONFIGURE OUTPUT ${name}.cpp CONTENT "// Holds no code.\n")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${ROOM_FLAGS} ${ROOM_DEPENDS})
  target_precompile_headers(${name} PRIVATE ${ROOM_HEADERS})
endfunction()

# How every test is compiled. The assertions themselves need no optimisation, and without it they
# compile twice as fast; some libraries want position-independent code of whoever uses them, and
# precompiled headers serve one kind of code only.
add_library(room_test_flags INTERFACE)
target_link_libraries(room_test_flags INTERFACE room_warnings)
target_compile_options(room_test_flags INTERFACE -O0 -fPIC)

# room_test_support(NAME SOURCES a.cpp ... [HEADERS name] [DEPENDS lib ...])
# What the tests of several programs work with: compiled once. HEADERS are a room_headers. Each
# source stays apart, so that a program takes in what it needs.
function(room_test_support name)
  cmake_parse_arguments(ROOM "" "HEADERS" "SOURCES;DEPENDS" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ROOM_DEPENDS} PRIVATE room_test_flags GTest::gmock)
  if(ROOM_HEADERS)
    target_precompile_headers(${name} REUSE_FROM ${ROOM_HEADERS})
  endif()
endfunction()

# room_test(NAME_test SOURCES a_test.cpp ... [ALONE b_test.cpp ...] [HEADERS name] DEPENDS lib ...
#           [LABELS l ...] [FIXTURES f ...])
# One GoogleTest program; each suite in it becomes a ctest test, NAME.Suite. Under the sanitizers a
# program is one test, as its start and its search for leaks take longer than most tests.
function(room_test name)
  cmake_parse_arguments(ROOM "" "HEADERS" "SOURCES;ALONE;DEPENDS;LABELS;FIXTURES" ${ARGN})
  add_executable(${name} ${ROOM_SOURCES} ${ROOM_ALONE})
  room_join_sources(${name} "${ROOM_ALONE}" ${ROOM_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE
    room_test_flags ${ROOM_DEPENDS} GTest::gmock GTest::gtest_main)
  if(NOT ROOM_HEADERS)
    set(ROOM_HEADERS room_test_headers)
  endif()
  target_precompile_headers(${name} REUSE_FROM ${ROOM_HEADERS})
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES
      TIMEOUT 600 LABELS "${ROOM_LABELS}" FIXTURES_REQUIRED "${ROOM_FIXTURES}")
  else()
    room_test_suites(${name} "${ROOM_LABELS}" "${ROOM_FIXTURES}")
  endif()
endfunction()

# Finds the suites when the program was linked. Until then a test stands for them that fails.
function(room_test_suites name labels fixtures)
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}.cmake)
  if(NOT EXISTS ${list})
    file(WRITE ${list} "add_test(${name}_IS_NOT_BUILT ${name}_IS_NOT_BUILT)\n")
  endif()
  set(script ${PROJECT_SOURCE_DIR}/cmake/test_suites.cmake)
  add_custom_command(TARGET ${name} POST_BUILD VERBATIM COMMAND ${CMAKE_COMMAND}
    -D NAME=${name} -D PROGRAM=$<TARGET_FILE:${name}> -D LIST=${list}
    -D "EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}"
    -D "LABELS=${labels}" -D "FIXTURES=${fixtures}" -P ${script})
  set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${script})
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${list})
endfunction()
