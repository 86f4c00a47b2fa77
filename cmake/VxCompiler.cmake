# Compiler settings for every target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# All shared objects are in one folder, where they find each other.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH $ORIGIN)

# A compiler cache, if there is one, is shared by all checkouts: paths are relative to the root of each.
find_program(VX_CCACHE ccache)
if(PROJECT_IS_TOP_LEVEL AND VX_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
      ${VX_CCACHE})
endif()

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

# Linked privately: users of the libraries choose their own warnings.
add_library(vx_options INTERFACE)
target_include_directories(vx_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(vx_options INTERFACE
  # The same bytes on every machine: no fused multiply-add, no excess precision.
  -ffp-contract=off
  # gcc 12 drops the rounding to float when it narrows and widens two adjacent doubles at once (compiler_test.cpp).
  $<$<CXX_COMPILER_ID:GNU>:-fno-tree-slp-vectorize>
  -fno-strict-aliasing
  # No program replaces functions of the libraries at load time, so calls within a library may be inlined; clang's default.
  $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wcast-qual
  -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion -Wformat=2 -Wundef
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -Wuseless-cast>
  $<$<CXX_COMPILER_ID:Clang>:-Wno-unknown-warning-option>)
if(VX_WARNINGS_AS_ERRORS)
  target_compile_options(vx_options INTERFACE -Werror)
endif()
if(VX_SANITIZE)
  target_compile_options(vx_options INTERFACE -fsanitize=${VX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(vx_options INTERFACE -fsanitize=${VX_SANITIZE})
else()
  target_link_options(vx_options INTERFACE -Wl,--no-undefined)
endif()
target_link_options(vx_options INTERFACE -Wl,--as-needed)

# The sources of a folder, collected again at every build.
function(vx_glob result)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS ${ARGN})
  set(${result} ${files} PARENT_SCOPE)
endfunction()
