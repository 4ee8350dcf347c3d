# One call per room: every source directly in its folder becomes one static library.
# kaart_room(<target> <folder> USES <libraries...>)
function(kaart_room target folder)
    cmake_parse_arguments(ROOM "" "" "USES" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h ${folder}/platform/*.cpp
         ${folder}/platform/*.h)
    if(NOT KAART_BUS)
        list(FILTER sources EXCLUDE REGEX "/platform/(Portal|Plasma)")
    endif()
    add_library(${target} STATIC ${sources})
    target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
    target_link_libraries(${target} PUBLIC ${ROOM_USES})
    # Only in the second build: in the first one each source must include what it uses, and
    # clang-tidy reads along.
    if(KAART_SANITIZE AND target STREQUAL "controls")
        target_precompile_headers(controls PRIVATE <QtWidgets>)
    elseif(KAART_SANITIZE AND folder MATCHES "window$")
        target_precompile_headers(${target} REUSE_FROM controls)
    endif()
endfunction()

# What the program reads and writes in its folder.
set(KAART_FOLDERS Data Lijsten Ontwerpen Frames Templates Achtergronden Maskers Stickers Vectors)

# The program itself, and beside it the folders that it reads at run time.
function(kaart_program)
    file(GLOB sources CONFIGURE_DEPENDS app/*.cpp app/*.h)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(app STATIC ${sources})
    target_include_directories(app PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(app PUBLIC design_window output_window pictures_window
                          addresses_window puzzle_window packs_window generators_window
                          libraries_window)

    set(icons ${CMAKE_SOURCE_DIR}/packaging/icons)
    file(GLOB files CONFIGURE_DEPENDS ${icons}/*.png)
    qt_add_resources(app program PREFIX /program BASE ${icons} FILES ${files})

    add_executable(kaartwerkje app/main.cpp)
    target_link_libraries(kaartwerkje PRIVATE app)
    set_target_properties(kaartwerkje PROPERTIES WIN32_EXECUTABLE ON)

    set(bin ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    foreach(folder ${KAART_FOLDERS})
        file(MAKE_DIRECTORY ${bin}/${folder})
        file(GLOB files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/${folder}/*)
        foreach(file ${files})
            file(COPY ${file} DESTINATION ${bin}/${folder})
        endforeach()
    endforeach()
endfunction()

# Icons and drawings become resources of a room: :/icons/<name>.svg and :/art/<name>.svg.
function(kaart_pictures target)
    foreach(folder icons art)
        file(GLOB files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/${folder}/*.svg)
        if(files)
            qt_add_resources(${target} ${folder} PREFIX /${folder}
                             BASE ${CMAKE_SOURCE_DIR}/data/${folder} FILES ${files})
        endif()
    endforeach()
endfunction()
