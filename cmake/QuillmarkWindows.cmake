# What an installed Quillmark consists of on Windows: the programs, what they load and the licences of all of it in one
# folder. scripts/make-windows-package makes the installer and the zip of it. Included by QuillmarkPackage.cmake.
enable_language(RC)

string(REPLACE "." "," version_numbers "${PROJECT_VERSION}")
set(version_numbers "${version_numbers},0,0")

# quillmark_program(TARGET DESCRIPTION): its icon, version and manifest, and its place in the installation. The
# description is what the system shows for it in its list of running programs.
function(quillmark_program target description)
  if(NOT TARGET ${target})
    return()
  endif()
  set(resources ${CMAKE_BINARY_DIR}/package/${target}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in ${resources} @ONLY)
  set_property(SOURCE ${resources} TARGET_DIRECTORY ${target} PROPERTY OBJECT_DEPENDS
               "${CMAKE_SOURCE_DIR}/packaging/windows/quillmark.ico;${CMAKE_SOURCE_DIR}/packaging/windows/program.manifest")
  target_sources(${target} PRIVATE ${resources})
  add_dependencies(package_contents ${target})
  install(TARGETS ${target} RUNTIME DESTINATION .)
endfunction()

quillmark_program(quillmark "Quillmark")
quillmark_program(quillmark-cli "Quillmark, command line")
if(Qt6Pdf_FOUND)
  quillmark_program(quillmark-preview "Quillmark, page maker")
endif()

file(GLOB sample_jobs CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/*.dat)
install(FILES ${sample_jobs} DESTINATION samples)

# What is linked in, and whoever made the compiler's libraries: each with its licence.
set(packages /usr/share/doc)
install(DIRECTORY ${QUILLMARK_WINDOWS_PREFIX}/share/licenses/ DESTINATION licenses PATTERN googletest.txt EXCLUDE)
install(FILES ${packages}/nlohmann-json3-dev/copyright DESTINATION licenses RENAME nlohmann-json.txt)
install(FILES ${packages}/libcli11-dev/copyright DESTINATION licenses RENAME cli11.txt)
install(FILES ${packages}/gcc-mingw-w64-base/copyright DESTINATION licenses RENAME gcc-runtime.txt)
install(FILES ${packages}/mingw-w64-common/copyright DESTINATION licenses RENAME mingw-w64-winpthreads.txt)
install(FILES ${packages}/libz-mingw-w64/copyright DESTINATION licenses RENAME zlib.txt)
if(QUILLMARK_WINDOWS_SHARED)
  foreach(library libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll OUTPUT_VARIABLE file
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${file}")
      set(file /usr/x86_64-w64-mingw32/lib/${library}.dll)
    endif()
    install(PROGRAMS ${file} DESTINATION .)
  endforeach()
endif()
# Of Qt those that the desktop uses; what they load by themselves is named here.
if(TARGET quillmark)
  foreach(library Core Gui Widgets Network PrintSupport)
    install(PROGRAMS ${QUILLMARK_WINDOWS_QT}/bin/Qt6${library}.dll DESTINATION .)
  endforeach()
  foreach(plugin platforms/qwindows styles/qwindowsvistastyle tls/qschannelbackend imageformats/qico imageformats/qjpeg)
    get_filename_component(kind ${plugin} DIRECTORY)
    install(PROGRAMS ${QUILLMARK_WINDOWS_QT}/plugins/${plugin}.dll DESTINATION ${kind})
  endforeach()
  install(DIRECTORY ${QUILLMARK_WINDOWS_QT}/share/licenses/ DESTINATION licenses)
  install(FILES /usr/share/common-licenses/LGPL-3 /usr/share/common-licenses/GPL-3 /usr/share/common-licenses/GPL-2
          DESTINATION licenses)
endif()
