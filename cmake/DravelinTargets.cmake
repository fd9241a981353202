# What every target of this project shares: warnings, sanitizers, include root.

add_library(dravelin_options INTERFACE)
target_include_directories(dravelin_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(dravelin_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wcast-qual -Wdouble-promotion -Wimplicit-fallthrough)
target_compile_definitions(dravelin_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
if(DRAVELIN_SANITIZE)
    target_compile_options(dravelin_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(dravelin_options INTERFACE -fsanitize=address,undefined)
endif()

# CMake 3.24 knows CMAKE_COMPILE_WARNING_AS_ERROR by itself; older ones need the flag.
if(CMAKE_COMPILE_WARNING_AS_ERROR AND CMAKE_VERSION VERSION_LESS 3.24)
    target_compile_options(dravelin_options INTERFACE -Werror)
endif()

# dravelin_add_library(name SOURCES... LINK libs...): a static library with the shared options.
function(dravelin_add_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE dravelin_options)
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
endfunction()
