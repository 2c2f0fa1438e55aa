# The program's data files: desktop entry, icon, AppStream metainfo, manual
# pages and the help pages, from share/ of the source tree.

set(QV_APP_ID org.quorvel.quorvel)
set(QV_SHARE ${CMAKE_SOURCE_DIR}/share)

if(TARGET quorvel)
  install(FILES ${QV_SHARE}/applications/${QV_APP_ID}.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT program)
  install(FILES ${QV_SHARE}/icons/hicolor/scalable/apps/${QV_APP_ID}.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT program)
  install(FILES ${QV_SHARE}/metainfo/${QV_APP_ID}.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT program)
endif()

file(GLOB qv_man_pages CONFIGURE_DEPENDS ${QV_SHARE}/man/man1/*.1)
install(FILES ${qv_man_pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)

# The help pages of the help pop-up.
if(EXISTS ${QV_SHARE}/help)
  install(DIRECTORY ${QV_SHARE}/help DESTINATION ${CMAKE_INSTALL_DATADIR}/quorvel COMPONENT program)
endif()

# The scenario scripts, as examples of quorvel-script.
file(GLOB qv_example_scripts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/examples/*.qvs)
install(FILES ${qv_example_scripts} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/quorvel/examples COMPONENT program)
