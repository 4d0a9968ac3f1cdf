# What lies where on a machine that has the program installed, and its Debian package.
include(GNUInstallDirs)

install(TARGETS corvana RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${CORVANA_DATA}/langit.csv ${CORVANA_DATA}/langen.csv
        DESTINATION ${CMAKE_INSTALL_DATADIR}/corvana)
install(DIRECTORY ${CORVANA_DATA}/note DESTINATION ${CMAKE_INSTALL_DATADIR}/corvana)
install(FILES data/desktop/org.corvana.Corvana.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES data/desktop/org.corvana.Corvana.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES data/desktop/org.corvana.Corvana.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# Debian wants its pages and changes compressed, the same to the byte at each build.
set(packed ${PROJECT_BINARY_DIR}/packed)
file(MAKE_DIRECTORY ${packed})
add_custom_command(OUTPUT ${packed}/corvana.1.gz ${packed}/changelog.gz
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/data/desktop/corvana.1 > ${packed}/corvana.1.gz
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/data/desktop/changelog > ${packed}/changelog.gz
    DEPENDS data/desktop/corvana.1 data/desktop/changelog VERBATIM)
add_custom_target(corvana_packed ALL DEPENDS ${packed}/corvana.1.gz ${packed}/changelog.gz)
install(FILES ${packed}/corvana.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${packed}/changelog.gz data/desktop/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/corvana)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME corvana)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_CONTACT "The Corvana developers <corvana@localhost.localdomain>")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "timgm6mb-soundfont")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "learn to read notes, keep time and train the ear
 Corvana shows notes on the double staff, listens for their names and keeps the
 score. A metronome with patterns of the learner's own lies in the same window.
 It sounds through a built-in synthesiser or any MIDI output.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
