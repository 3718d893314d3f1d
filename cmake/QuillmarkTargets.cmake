# How every folder under src/ becomes a library, and every folder under tests/ a test program.

add_library(quillmark_options INTERFACE)
target_compile_options(quillmark_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion)
# The standard library's strings draw false warnings from g++ 12 when optimised.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(quillmark_options INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
target_include_directories(quillmark_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# Half of the time of compiling goes into headers that are the same for all: they are compiled once. A compiler cache
# does that work in its own way, and cannot do both.
set(precompiled_default ON)
if(CMAKE_CXX_COMPILER_LAUNCHER)
  set(precompiled_default OFF)
endif()
option(QUILLMARK_PRECOMPILED "Compile common headers once, beforehand" ${precompiled_default})
if(QUILLMARK_PRECOMPILED AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # More false warnings about the standard library's strings, from which it is no shelter any longer to be a system header.
  target_compile_options(quillmark_options INTERFACE -Wno-stringop-overflow -Wno-array-bounds)
endif()

# quillmark_precompile(TARGET HEADER...): compiles these headers, named as in an #include line, for TARGET and for those
# that share them.
function(quillmark_precompile target)
  if(QUILLMARK_PRECOMPILED)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# quillmark_share_precompiled(TARGET OWNER): what was compiled beforehand for OWNER is used for TARGET too, which must be
# compiled with the same options.
function(quillmark_share_precompiled target owner)
  if(QUILLMARK_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM ${owner})
  endif()
endfunction()

set(quillmark_common_headers
    <algorithm> <array> <chrono> <filesystem> <functional> <map> <memory> <optional> <set> <span> <stdexcept> <string>
    <string_view> <unordered_map> <utility> <variant> <vector> <fmt/format.h>)

# quillmark_folder(NAME [USES folder...] [LIBRARIES target...] [PRIVATE_LIBRARIES target...])
# One static library of all sources below the current folder, which may use the named folders and libraries.
function(quillmark_folder name)
  cmake_parse_arguments(ARG "" "" "USES;LIBRARIES;PRIVATE_LIBRARIES" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(quillmark_${name} STATIC ${sources})
  list(TRANSFORM ARG_USES PREPEND quillmark_)
  target_link_libraries(quillmark_${name} PUBLIC quillmark_options ${ARG_USES} ${ARG_LIBRARIES}
                                          PRIVATE ${ARG_PRIVATE_LIBRARIES})
  if(name STREQUAL "platform")
    quillmark_precompile(quillmark_platform ${quillmark_common_headers})
  else()
    quillmark_share_precompiled(quillmark_${name} quillmark_platform)
  endif()
endfunction()

set(quillmark_other_system windows)
set(quillmark_discovery POST_BUILD)
if(WIN32)
  set(quillmark_other_system posix)
  set(quillmark_discovery PRE_TEST)  # where they are built is not where they run
endif()

# quillmark_tests(FOLDER [LIBRARIES target...])
# One test program of the sources below the current folder; it links that folder's library and what it uses. What needs
# one system's own calls stands in a folder posix or windows.
function(quillmark_tests folder)
  cmake_parse_arguments(ARG "" "" "LIBRARIES" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/tests/.*/${quillmark_other_system}/")
  add_executable(${folder}_tests ${sources})
  target_link_libraries(${folder}_tests PRIVATE quillmark_${folder} quillmark_test_support ${ARG_LIBRARIES})
  quillmark_share_precompiled(${folder}_tests quillmark_test_support)
  gtest_discover_tests(${folder}_tests TEST_PREFIX "${folder}." DISCOVERY_TIMEOUT 60
                       DISCOVERY_MODE ${quillmark_discovery})
endfunction()
