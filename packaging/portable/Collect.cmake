# Part of the installation of the portable folder: Qt's plugins, the libraries that program and
# plugins need, and everybody's licence. Given: program, qt_plugins, and of what else is brought the
# translations and the folder of the fonts.
if(NOT EXISTS ${program})
    message(FATAL_ERROR "Please build the target `portable`; it packs by itself.")
endif()
set(target $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX})

set(plugins "")
foreach(plugin
        platforms/libqxcb platforms/libqwayland-generic platforms/libqoffscreen
        wayland-shell-integration/libxdg-shell wayland-decoration-client/libbradient
        imageformats/libqjpeg imageformats/libqgif imageformats/libqsvg iconengines/libqsvgicon
        platforminputcontexts/libcomposeplatforminputcontextplugin
        platforminputcontexts/libibusplatforminputcontextplugin
        printsupport/libcupsprintersupport)
    if(NOT EXISTS ${qt_plugins}/${plugin}.so)
        message(FATAL_ERROR "The portable folder needs Qt's plugin ${plugin}; is qt6-wayland here?")
    endif()
    get_filename_component(kind ${plugin} DIRECTORY)
    file(INSTALL ${qt_plugins}/${plugin}.so DESTINATION ${target}/plugins/${kind})
    list(APPEND plugins ${qt_plugins}/${plugin}.so)
endforeach()

# What every desktop has, in a version that only it can know: the C and C++ run time, the window
# system, graphics drivers, fonts, the bus and the print service. docs/installing.md has this list.
set(of_the_desktop
    "ld-linux" "libc" "libm" "libdl" "libpthread" "librt" "libresolv" "libgcc_s" "libstdc[+][+]"
    "libX11" "libX11-xcb" "libxcb" "libSM" "libICE" "libwayland-client"
    "libEGL" "libGL" "libGLX" "libGLdispatch"
    "libfontconfig" "libfreetype" "libharfbuzz" "libexpat" "libz" "libglib-2.0" "libdbus-1"
    "libcups")
list(TRANSFORM of_the_desktop PREPEND "/")
list(TRANSFORM of_the_desktop APPEND "(-x86-64)?[.]so([.][0-9.]+)?$")
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${program} MODULES ${plugins}
    RESOLVED_DEPENDENCIES_VAR libraries UNRESOLVED_DEPENDENCIES_VAR missing
    POST_EXCLUDE_REGEXES ${of_the_desktop})
if(missing)
    message(FATAL_ERROR "Not found: ${missing}")
endif()
foreach(library ${libraries})
    # Under the one name by which it is asked for.
    get_filename_component(name ${library} NAME)
    file(REAL_PATH ${library} file)
    configure_file(${file} ${target}/lib/${name} COPYONLY)
    file(CHMOD ${target}/lib/${name}
         PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    list(APPEND brought ${file})
endforeach()

# Debian's copyright files point to these.
foreach(licence LGPL-2.1 LGPL-3 GPL-2 GPL-3)
    if(EXISTS /usr/share/common-licenses/${licence})
        configure_file(/usr/share/common-licenses/${licence} ${target}/licences/${licence} COPYONLY)
    endif()
endforeach()
find_program(dpkg_query dpkg-query)
if(dpkg_query)
    foreach(file ${brought} ${plugins} ${translations} ${fonts}/LiberationSans-Regular.ttf)
        execute_process(COMMAND ${dpkg_query} -S *${file} OUTPUT_VARIABLE owner ERROR_QUIET)
        string(REGEX REPLACE ":.*" "" owner "${owner}")
        if(EXISTS /usr/share/doc/${owner}/copyright)
            configure_file(/usr/share/doc/${owner}/copyright
                           ${target}/licences/${owner}.txt COPYONLY)
        endif()
    endforeach()
endif()
