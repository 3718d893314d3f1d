# Toolchain of the presets windows and windows-desktop: mingw-w64 with the posix thread model.
#
# The libraries are found in QUILLMARK_WINDOWS_PREFIX and nowhere else; where they are missing or of an older state of
# windows_dependencies.sh, this script builds them on configuration. Without the desktop everything is linked
# statically. The desktop (QUILLMARK_DESKTOP=ON) takes Qt as libraries of their own from QUILLMARK_WINDOWS_QT, which
# the same script builds once for all checkouts, and shares the compiler's libraries with it.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

get_filename_component(quillmark_root ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
set(quillmark_dependencies ${CMAKE_CURRENT_LIST_DIR}/windows_dependencies.sh)
set(QUILLMARK_WINDOWS_PREFIX ${quillmark_root}/build/windows-dependencies
    CACHE PATH "Where the libraries for Windows are installed")
set(QUILLMARK_WINDOWS_QT "" CACHE PATH "Where Qt for Windows is installed")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUILLMARK_WINDOWS_PREFIX QUILLMARK_WINDOWS_QT QUILLMARK_DESKTOP
     QUILLMARK_WINDOWS_SHARED)

# The script itself configures with this file.
if(NOT DEFINED ENV{QUILLMARK_WINDOWS_DEPENDENCIES_RUN})
  set(quillmark_state "")
  if(EXISTS ${QUILLMARK_WINDOWS_PREFIX}/complete)
    file(STRINGS ${QUILLMARK_WINDOWS_PREFIX}/complete quillmark_state)
  endif()
  file(SHA256 ${quillmark_dependencies} quillmark_wanted)
  if(QUILLMARK_WINDOWS_PREFIX STREQUAL "${quillmark_root}/build/windows-dependencies"
     AND NOT quillmark_state STREQUAL quillmark_wanted)
    message(STATUS "Building the libraries for Windows in ${QUILLMARK_WINDOWS_PREFIX}")
    execute_process(COMMAND ${quillmark_dependencies} ${QUILLMARK_WINDOWS_PREFIX} COMMAND_ERROR_IS_FATAL ANY)
  endif()
  if(QUILLMARK_DESKTOP STREQUAL "ON" AND NOT QUILLMARK_WINDOWS_QT)
    message(STATUS "Qt for Windows, built where it is not at hand (20 minutes of two processors)")
    execute_process(COMMAND ${quillmark_dependencies} --qt OUTPUT_VARIABLE quillmark_qt
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE ".*\n" "" quillmark_qt "${quillmark_qt}")
    set(QUILLMARK_WINDOWS_QT ${quillmark_qt} CACHE PATH "Where Qt for Windows is installed" FORCE)
  endif()
endif()

if(QUILLMARK_DESKTOP STREQUAL "ON")
  set(QUILLMARK_WINDOWS_SHARED ON)
  # This machine's own tools of Qt run in the build.
  set(QT_HOST_PATH /usr CACHE PATH "")
  file(GLOB quillmark_host_qt /usr/lib/*/cmake/Qt6)
  get_filename_component(quillmark_host_qt "${quillmark_host_qt}" DIRECTORY)
  set(QT_HOST_PATH_CMAKE_DIR ${quillmark_host_qt} CACHE PATH "")
endif()
if(NOT QUILLMARK_WINDOWS_SHARED)
  set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
endif()

set(CMAKE_FIND_ROOT_PATH ${QUILLMARK_WINDOWS_PREFIX} ${QUILLMARK_WINDOWS_QT} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${QUILLMARK_WINDOWS_PREFIX}/lib/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")

# Tests of this build (-DQUILLMARK_TESTS=ON) run where there is wine, which Debian keeps out of the way.
find_program(quillmark_wine NAMES wine64 wine HINTS /usr/lib/wine)
if(quillmark_wine)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${quillmark_wine})
endif()
