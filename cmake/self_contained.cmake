# Programs that start often hold small libraries inside themselves: each library that the dynamic
# loader maps costs a start a tenth of a millisecond, the C++ library half of one.

# A library in both its forms: the archive for programs made by make_self_contained, else the
# shared one. Its headers are the same.
function(add_library_of_both_forms target shared archive)
  find_library(ARCHIVE_${archive} NAMES ${archive})
  mark_as_advanced(ARCHIVE_${archive})
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} INTERFACE
    $<TARGET_PROPERTY:${shared},INTERFACE_INCLUDE_DIRECTORIES>)
  if(ARCHIVE_${archive})
    target_link_libraries(${target} INTERFACE
      "$<IF:$<BOOL:$<TARGET_PROPERTY:SELF_CONTAINED>>,${ARCHIVE_${archive}},${shared}>")
  else()
    target_link_libraries(${target} INTERFACE ${shared})
  endif()
endfunction()

find_package(pugixml REQUIRED)
find_package(ZLIB REQUIRED)
add_library_of_both_forms(both_forms::pugixml pugixml::pugixml libpugixml.a)
add_library_of_both_forms(both_forms::zlib ZLIB::ZLIB libz.a)

# make_self_contained(TARGET): a program that needs the C library and nothing else to start. What it
# maps later has a C++ library of its own, so no exception may pass between the two. The sanitizers
# want the shared libraries.
function(make_self_contained target)
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    return()
  endif()
  set_target_properties(${target} PROPERTIES SELF_CONTAINED ON)
  target_link_options(${target} PRIVATE
    -static-libstdc++ -static-libgcc LINKER:--gc-sections LINKER:-O1)
endfunction()
