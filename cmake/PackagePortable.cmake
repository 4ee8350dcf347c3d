# The component `portable`: everything in one folder, which is the program folder.
kaart_install_box(portable . EXCLUDE_FROM_ALL)
install(DIRECTORY DESTINATION Ontwerpen COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES ${packaging}/portable/LEESMIJ.txt DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}/qtbase_nl.qm
        DESTINATION translations COMPONENT portable EXCLUDE_FROM_ALL)

if(WIN32)
    # windeployqt adds the rest.
    install(TARGETS kaartwerkje RUNTIME DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
    return()
endif()

# The same program, but it looks for its libraries in its own folder first; so do the libraries and
# plugins that it loads, which the newer kind of path would not give.
add_executable(kaartwerkje_portable EXCLUDE_FROM_ALL app/main.cpp)
target_link_libraries(kaartwerkje_portable PRIVATE app)
target_link_options(kaartwerkje_portable PRIVATE -Wl,--disable-new-dtags)
set_target_properties(kaartwerkje_portable PROPERTIES OUTPUT_NAME kaartwerkje
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/portable BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH $ORIGIN/lib)
# OPTIONAL, since it isn't built with all the rest; Collect.cmake sees to it that it is there.
install(TARGETS kaartwerkje_portable OPTIONAL RUNTIME DESTINATION . COMPONENT portable
        EXCLUDE_FROM_ALL)

find_path(KAART_LIBERATION LiberationSans-Regular.ttf
          PATHS /usr/share/fonts/truetype/liberation /usr/share/fonts/truetype/liberation2)
if(KAART_LIBERATION)
    install(DIRECTORY ${KAART_LIBERATION}/ DESTINATION fonts COMPONENT portable EXCLUDE_FROM_ALL
            FILES_MATCHING PATTERN "*.ttf")
endif()
install(FILES ${packaging}/portable/qt.conf DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(CODE "
    set(program \"${CMAKE_BINARY_DIR}/portable/kaartwerkje\")
    set(qt_plugins \"${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}\")
    set(translations \"${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}/qtbase_nl.qm\")
    set(fonts \"${KAART_LIBERATION}\")
    " COMPONENT portable EXCLUDE_FROM_ALL)
install(SCRIPT ${packaging}/portable/Collect.cmake COMPONENT portable EXCLUDE_FROM_ALL)
