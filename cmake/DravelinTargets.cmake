# What every target of this project shares: warnings, sanitizers, include root, and the headers that
# are compiled once for all of them.

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

# The headers that most sources include are parsed once and not a hundred times. Libraries and
# programs differ in how their code may be placed, so each would need their own; only the tests are
# programs enough for that. What a source must include by itself is held by the checks that compile
# without them (static analysis, Windows).
set(DRAVELIN_COMMON_HEADERS
    <algorithm> <array> <cmath> <functional> <memory> <optional> <vector>
    <QCoreApplication> <QDateTime> <QDebug> <QDir> <QFile> <QGuiApplication> <QImage> <QPainter>
    <QPainterPath> <QProcess> <QQmlEngine> <QQuickItem> <QQuickWindow> <QScreen> <QTimer>
    <QVariantMap>)
# Only the paths to the headers: what else a module defines differs between their users.
set(DRAVELIN_HEADER_MODULES Gui Qml Quick Network QmlModels QmlIntegration OpenGL)

function(_dravelin_precompile target)
    foreach(module IN LISTS DRAVELIN_HEADER_MODULES)
        target_include_directories(${target} SYSTEM PRIVATE
            $<TARGET_PROPERTY:Qt6::${module},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    target_link_libraries(${target} PRIVATE dravelin_options Qt6::Core)
    target_precompile_headers(${target} PRIVATE ${DRAVELIN_COMMON_HEADERS} ${ARGN})
    set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

# dravelin_use_common_headers(target): for targets that link Qt and dravelin_options.
function(dravelin_use_common_headers target)
    get_target_property(type ${target} TYPE)
    if(TARGET dravelin_program_headers AND type STREQUAL "EXECUTABLE")
        target_precompile_headers(${target} REUSE_FROM dravelin_program_headers)
    elseif(NOT type STREQUAL "EXECUTABLE")
        target_precompile_headers(${target} REUSE_FROM dravelin_library_headers)
    endif()
endfunction()

set(headers_source "${CMAKE_BINARY_DIR}/headers.cpp")
file(CONFIGURE OUTPUT "${headers_source}" CONTENT "int main() { }\n")
add_library(dravelin_library_headers STATIC "${headers_source}")
_dravelin_precompile(dravelin_library_headers)
if(DRAVELIN_BUILD_TESTS)
    add_executable(dravelin_program_headers "${headers_source}")
    _dravelin_precompile(dravelin_program_headers)
endif()

# dravelin_add_library(name SOURCES... LINK libs...): a static library with the shared options.
function(dravelin_add_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE dravelin_options)
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    dravelin_use_common_headers(${name})
endfunction()
