# Qt Tests that run without a display, in settings and fonts of their own.

find_package(Qt6 6.4 REQUIRED COMPONENTS Test)

# dravelin_add_run(name COMMAND command... [ENVIRONMENT NAME=value...] [TIMEOUT seconds])
# Adds a run of a program to the tests. It happens on the offscreen platform, with an empty settings
# folder of its own, without a session bus (whose library leaks when it looks for one in vain) and
# with the fonts that tests/fonts.conf chooses; a finding of a sanitizer fails
# it.
function(dravelin_add_run name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "COMMAND;ENVIRONMENT" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()

    set(home "${CMAKE_CURRENT_BINARY_DIR}/${name}_home")
    set(sanitizers "${PROJECT_SOURCE_DIR}/tests/sanitizers")
    add_test(NAME ${name} COMMAND ${ARG_COMMAND})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;DBUS_SESSION_BUS_ADDRESS=disabled:;XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;FONTCONFIG_FILE=${PROJECT_SOURCE_DIR}/tests/fonts.conf;ASAN_OPTIONS=detect_leaks=1:abort_on_error=0;LSAN_OPTIONS=suppressions=${sanitizers}/leaks.txt:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1;${ARG_ENVIRONMENT}")
endfunction()

# dravelin_add_test(name SOURCES... [LINK libs...] [ENVIRONMENT NAME=value...] [TIMEOUT seconds])
# Builds a Qt Test and adds a run of it. The sources find their own folder in the source tree as
# DRAVELIN_TEST_DIR.
function(dravelin_add_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test dravelin_options)
    target_compile_definitions(${name} PRIVATE
        DRAVELIN_TEST_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
    dravelin_use_common_headers(${name})

    dravelin_add_run(${name} COMMAND ${name} TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT ${ARG_ENVIRONMENT})
endfunction()
