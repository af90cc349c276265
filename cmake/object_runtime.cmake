# The object runtime and Foundation that bridge/ and the desktop's runtime faces stand on here:
# GCC's libobjc and GNUstep Base. Linking objc::objc or gnustep::base always loads the library,
# even where no symbol of it is named, since classes are looked up by name at run time.
function(find_object_library target library package)
  string(TOUPPER ${library} upper)
  string(MAKE_C_IDENTIFIER ${upper}_LIBRARY variable)
  find_library(${variable} ${library} HINTS ${CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES})
  if(NOT ${variable})
    message(FATAL_ERROR "lib${library} was not found. Install it: apt-get install ${package}")
  endif()
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_link_libraries(${target} INTERFACE ${${variable}})
  target_link_options(${target} INTERFACE LINKER:--no-as-needed)
endfunction()

find_object_library(objc::objc objc libobjc-12-dev)
find_object_library(gnustep::base gnustep-base libgnustep-base-dev)
