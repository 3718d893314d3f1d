# Toolchain of the windows preset: mingw-w64 with the posix thread model, everything linked statically.
#
# The libraries are found in QUILLMARK_WINDOWS_PREFIX and nowhere else. Without one given, they are built from
# the distribution's source packages on the first configuration (windows_dependencies.sh).

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

get_filename_component(quillmark_root ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
set(QUILLMARK_WINDOWS_PREFIX ${quillmark_root}/build/windows-dependencies
    CACHE PATH "Where the libraries for Windows are installed")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUILLMARK_WINDOWS_PREFIX)

if(QUILLMARK_WINDOWS_PREFIX STREQUAL "${quillmark_root}/build/windows-dependencies"
   AND NOT EXISTS ${QUILLMARK_WINDOWS_PREFIX}/complete
   AND NOT DEFINED ENV{QUILLMARK_WINDOWS_DEPENDENCIES_RUN})
  message(STATUS "Building the libraries for Windows in ${QUILLMARK_WINDOWS_PREFIX}")
  execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/windows_dependencies.sh ${QUILLMARK_WINDOWS_PREFIX}
                  COMMAND_ERROR_IS_FATAL ANY)
endif()

set(CMAKE_FIND_ROOT_PATH ${QUILLMARK_WINDOWS_PREFIX} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${QUILLMARK_WINDOWS_PREFIX}/lib/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")

# Tests of this build (-DQUILLMARK_TESTS=ON) run where there is wine.
find_program(quillmark_wine NAMES wine64 wine)
if(quillmark_wine)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${quillmark_wine})
endif()
