# The component `system`: a program among others, below a prefix such as /usr.
install(TARGETS kaartwerkje RUNTIME DESTINATION bin COMPONENT system)
kaart_install_box(system share/kaartwerkje)

install(FILES ${packaging}/${id}.desktop DESTINATION share/applications COMPONENT system)
install(FILES ${packaging}/${id}.metainfo.xml DESTINATION share/metainfo COMPONENT system)
install(FILES ${CMAKE_SOURCE_DIR}/data/icons/kaartwerkje.svg RENAME ${id}.svg
        DESTINATION share/icons/hicolor/scalable/apps COMPONENT system)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES ${packaging}/icons/${size}.png RENAME ${id}.png
            DESTINATION share/icons/hicolor/${size}x${size}/apps COMPONENT system)
endforeach()

# Manual pages and change log are packed, without a name or a time in them.
# kaart_install_gz(<file> <folder> <name>)
function(kaart_install_gz file folder name)
    find_program(GZIP gzip REQUIRED)
    install(CODE "
        file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}\")
        execute_process(COMMAND \"${GZIP}\" -9nc \"${file}\" COMMAND_ERROR_IS_FATAL ANY
            OUTPUT_FILE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}/${name}.gz\")
        " COMPONENT system)
endfunction()

kaart_install_gz(${packaging}/man/kaartwerkje.1 share/man/man1 kaartwerkje.1)
kaart_install_gz(${packaging}/man/nl/kaartwerkje.1 share/man/nl/man1 kaartwerkje.1)
kaart_install_gz(${packaging}/debian/changelog share/doc/mijn-kaartwerkje changelog)
install(FILES ${packaging}/debian/copyright DESTINATION share/doc/mijn-kaartwerkje
        COMPONENT system)
