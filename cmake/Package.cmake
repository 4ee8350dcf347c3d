# What is installed, and the two packages made of it:
#   system    <prefix>/bin/kaartwerkje, its libraries in share/kaartwerkje, and what a desktop wants
#             to know of a program. `cmake --install`, and the Debian package: target `deb`.
#   portable  one folder that brings all it needs and works in itself: target `portable`.
set(id nl.kaartwerkje.Kaartwerkje)
set(packaging ${CMAKE_SOURCE_DIR}/packaging)

# Neither waits for the tests.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# The libraries of the box, as folders in <destination>.
function(kaart_install_box component destination)
    set(folders ${KAART_FOLDERS})
    list(TRANSFORM folders PREPEND ${CMAKE_SOURCE_DIR}/data/)
    foreach(folder ${folders})
        if(EXISTS ${folder})
            install(DIRECTORY ${folder} DESTINATION ${destination} COMPONENT ${component} ${ARGN})
        endif()
    endforeach()
endfunction()

if(UNIX)
    include(PackageSystem)
endif()
include(PackagePortable)

set(CPACK_PACKAGE_NAME mijn-kaartwerkje)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Mijn Kaartwerkje")
set(CPACK_PACKAGE_CONTACT "Mijn Kaartwerkje <info@kaartwerkje.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design greeting cards and print them")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_SYSTEM_NAME ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_PROJECT_CONFIG_FILE ${packaging}/Generators.cmake)
set(CPACK_GENERATOR DEB)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Beside what the program is linked to: the Dutch of standard buttons and file dialogs, and the
# fonts that stand in for Arial.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cups, qt6-wayland, xdg-desktop-portal")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
file(READ ${packaging}/debian/description CPACK_DEBIAN_PACKAGE_DESCRIPTION)
string(STRIP "${CPACK_DEBIAN_PACKAGE_DESCRIPTION}" CPACK_DEBIAN_PACKAGE_DESCRIPTION)
include(CPack)

set(cpack ${CMAKE_CPACK_COMMAND} --config ${CMAKE_BINARY_DIR}/CPackConfig.cmake)
add_custom_target(deb COMMAND ${cpack} -G DEB DEPENDS kaartwerkje USES_TERMINAL)
add_custom_target(portable COMMAND ${cpack} -G TGZ DEPENDS kaartwerkje USES_TERMINAL)
if(TARGET kaartwerkje_portable)
    add_dependencies(portable kaartwerkje_portable)
endif()
