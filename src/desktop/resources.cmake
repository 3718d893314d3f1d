# What is compiled into the desktop: the user's guide, the icon, the files that a new program folder begins with. Resources
# of a library that are listed in a .qrc file would be left out of the program by the linker.
file(GLOB guide_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/guide/*.md ${CMAKE_SOURCE_DIR}/docs/guide/images/*.png)
file(GLOB icon_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/packaging/icons/*.png)
set(sample_job "${CMAKE_SOURCE_DIR}/data/Whitcomb - 27 Beech Hill Road.dat")
set_source_files_properties("${sample_job}" PROPERTIES QT_RESOURCE_ALIAS "sample.dat")

qt6_add_resources(quillmark_desktop guide PREFIX /guide BASE ${CMAKE_SOURCE_DIR}/docs/guide FILES ${guide_files})
qt6_add_resources(quillmark_desktop icons PREFIX /icons BASE ${CMAKE_SOURCE_DIR}/packaging/icons FILES ${icon_files})
qt6_add_resources(quillmark_desktop seeds PREFIX /seeds BASE ${CMAKE_SOURCE_DIR}/packaging/firm
                  FILES "${sample_job}" ${CMAKE_SOURCE_DIR}/packaging/firm/package.def
                  ${CMAKE_SOURCE_DIR}/packaging/firm/OP236.pdf)
