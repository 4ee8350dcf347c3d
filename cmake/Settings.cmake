# Language, warnings and sanitizers, the same for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

option(KAART_SANITIZE "Build with AddressSanitizer and UBSan" OFF)
option(KAART_BUS "Ask the desktop's bus (D-Bus) for screenshots and wallpapers" ${UNIX})
option(KAART_TESTS "Build the tests and the benchmarks" ${UNIX})

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE ccache)
if(CCACHE)
    # Precompiled headers change their time, not their content.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

if(MSVC)
    # Its /fp:precise doesn't fuse either.
    add_compile_options(/W4 /utf-8 /permissive- /fp:precise)
    add_compile_definitions(NOMINMAX)
else()
    add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Werror)
    # Kernels promise results exact to the bit: no fused multiply-add behind their back.
    add_compile_options(-ffp-contract=off)
endif()
add_compile_definitions(QT_NO_FOREACH)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess) # for ccache
endif()

# Vector kernels: on x86-64 every processor since 2009, and those with AVX2 found at run time. More
# kinds would cost more to compile than they give.
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    if(NOT MSVC)
        add_compile_options(-march=x86-64-v2)
    endif()
    add_compile_definitions(HWY_DISABLE_PCLMUL_AES "HWY_DISABLED_TARGETS=(HWY_AVX3|HWY_AVX3_DL)")
endif()

if(KAART_SANITIZE)
    # Line numbers are all that a report needs.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -O1 -g1)
    add_link_options(-fsanitize=address,undefined)
endif()
