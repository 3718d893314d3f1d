# What an installed Quillmark consists of, and the Debian package that `cpack` makes of it. Windows has its own
# (QuillmarkWindows.cmake); on macOS only the programs are installed.
include(GNUInstallDirs)
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)  # installing needs the target package_contents, not tests and benchmarks
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

add_custom_target(package_contents)
if(WIN32)
  include(cmake/QuillmarkWindows.cmake)
  return()
endif()
foreach(program quillmark-cli quillmark quillmark-preview)
  if(TARGET ${program})
    add_dependencies(package_contents ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  endif()
endforeach()
if(APPLE)
  return()
endif()

# quillmark_compressed(SOURCE NAME DESTINATION): SOURCE with the version filled in, compressed as NAME.gz.
function(quillmark_compressed source name destination)
  set(plain ${CMAKE_BINARY_DIR}/package/${name})
  configure_file(${source} ${plain} @ONLY)
  execute_process(COMMAND gzip -9 --no-name --keep --force ${plain} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${plain}.gz DESTINATION ${destination})
endfunction()

set(packaging ${CMAKE_SOURCE_DIR}/packaging)
set(documentation ${CMAKE_INSTALL_DATADIR}/doc/quillmark)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${packaging}/icons/quillmark.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 32 48 128 256)
  install(FILES ${packaging}/icons/quillmark-${size}.png RENAME quillmark.png
          DESTINATION ${icons}/${size}x${size}/apps)
endforeach()
if(TARGET quillmark)
  install(FILES ${packaging}/quillmark.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${packaging}/org.quillmark.Quillmark.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  quillmark_compressed(${packaging}/man/quillmark.1 quillmark.1 ${CMAKE_INSTALL_MANDIR}/man1)
endif()
quillmark_compressed(${packaging}/man/quillmark-cli.1 quillmark-cli.1 ${CMAKE_INSTALL_MANDIR}/man1)
quillmark_compressed(${packaging}/changelog changelog ${documentation})
install(FILES ${packaging}/copyright DESTINATION ${documentation})

# What a new program folder begins with; for the command line also to copy from.
file(GLOB sample_jobs CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/*.dat)
install(FILES ${sample_jobs} DESTINATION ${CMAKE_INSTALL_DATADIR}/quillmark/data)
install(FILES ${packaging}/firm/package.def ${packaging}/firm/OP236.pdf DESTINATION ${CMAKE_INSTALL_DATADIR}/quillmark)

# The user's guide: as web pages where the Markdown program is at hand, else as it stands.
find_program(CMARK_GFM cmark-gfm)
file(GLOB guide_pages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/guide/*.md)
set(guide ${documentation}/guide)
if(CMARK_GFM)
  set(html ${CMAKE_BINARY_DIR}/package/guide)
  add_custom_command(
    OUTPUT ${html}/index.html
    COMMAND ${CMAKE_COMMAND} -D CMARK_GFM=${CMARK_GFM} -D OUT=${html} -D "PAGES=${guide_pages}"
            -P ${CMAKE_SOURCE_DIR}/cmake/GuideHtml.cmake
    DEPENDS ${guide_pages} ${CMAKE_SOURCE_DIR}/cmake/GuideHtml.cmake VERBATIM)
  add_custom_target(guide_html DEPENDS ${html}/index.html)
  add_dependencies(package_contents guide_html)
  install(DIRECTORY ${html}/ DESTINATION ${guide})
else()
  install(FILES ${guide_pages} DESTINATION ${guide})
endif()
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/guide/images DESTINATION ${guide})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillmark)
set(CPACK_PACKAGE_VENDOR Quillmark)
set(CPACK_PACKAGE_CONTACT "Quillmark <support@quillmark.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "documents of Connecticut real-estate closings")
set(CPACK_PACKAGE_DESCRIPTION
    "Quillmark makes the papers of a real-estate closing in Connecticut for
attorneys and paralegals. A job says who sells what to whom; from it
Quillmark types every document, clause by clause, into one Word document,
ready to be signed and recorded.
.
The package holds the desktop program, the command line quillmark-cli for
making documents in bulk, a sample job and the user's guide.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libreoffice-writer, qt6-qpa-plugins, hicolor-icon-theme")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
