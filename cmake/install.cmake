# What lies where on a machine that has the program installed, and its Debian package.
include(GNUInstallDirs)

# Hardened as a distribution's own programs are.
target_compile_options(corvana_strict INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong
                       -fstack-clash-protection -D_FORTIFY_SOURCE=2>)
foreach(linked corvana corvana_outputs_module)
    target_link_options(${linked} PRIVATE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
endforeach()

set(laid ${PROJECT_BINARY_DIR}/data)
set(desktop ${PROJECT_SOURCE_DIR}/data/desktop)
install(TARGETS corvana RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# Where the program looks for it, from its own folder.
install(TARGETS corvana_outputs_module LIBRARY DESTINATION ${CORVANA_MODULES})
file(GLOB languages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/lang??.csv)
install(FILES ${languages} DESTINATION ${CMAKE_INSTALL_DATADIR}/corvana)
install(FILES ${laid}/note/rok.wav ${laid}/note/rko.wav
        DESTINATION ${CMAKE_INSTALL_DATADIR}/corvana/note)
install(DIRECTORY ${laid}/help DESTINATION ${CMAKE_INSTALL_DATADIR}/corvana OPTIONAL)
install(DIRECTORY ${laid}/Melodie DESTINATION ${CMAKE_INSTALL_DATADIR}/corvana)
install(FILES ${desktop}/org.corvana.Corvana.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop}/org.corvana.Corvana.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${desktop}/org.corvana.Corvana.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# The type of a melody's file, and its picture under the type's name.
install(FILES ${desktop}/org.corvana.Corvana.mime.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME org.corvana.Corvana.xml)
install(FILES ${desktop}/application-x-corvana-melody.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes)

# Debian wants its pages and changes compressed, the same to the byte at each build.
set(packed ${PROJECT_BINARY_DIR}/packed)
file(MAKE_DIRECTORY ${packed})
foreach(page corvana.1 changelog)
    add_custom_command(OUTPUT ${packed}/${page}.gz
                       COMMAND gzip -9nc ${desktop}/${page} > ${packed}/${page}.gz
                       DEPENDS ${desktop}/${page} VERBATIM)
endforeach()
add_custom_target(corvana_packed ALL DEPENDS ${packed}/corvana.1.gz ${packed}/changelog.gz)
install(FILES ${packed}/corvana.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${packed}/changelog.gz ${desktop}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

# What cmake --install needs, without the benches.
add_custom_target(corvana_installed DEPENDS corvana corvana_cues corvana_packed)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME corvana)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_CONTACT "The Corvana developers <corvana@example.org>")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "timgm6mb-soundfont")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-inter, fonts-oflb-euterpe")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "learn to read notes, keep time and train the ear")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Corvana shows notes on the double staff, listens for their names and keeps the
score. A metronome with patterns of the learner's own lies in the same window.
It sounds through a built-in synthesiser or any MIDI output.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
