# Turns a configuration for Windows into one that only checks the sources: each is parsed by the
# Windows compiler against Qt's headers; archives and programs are empty files.

set(CMAKE_CXX_COMPILE_OBJECT
    "<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> -fsyntax-only <SOURCE>"
    "${CMAKE_COMMAND} -E touch <OBJECT>")
set(CMAKE_CXX_CREATE_STATIC_LIBRARY "${CMAKE_COMMAND} -E touch <TARGET>")
set(CMAKE_CXX_LINK_EXECUTABLE "${CMAKE_COMMAND} -E touch <TARGET>")

# Qt as installed is Qt for Linux. Its headers serve both; its platform definitions do not, and its
# targets lack the import libraries that CMake expects of libraries for Windows.
file(TOUCH "${CMAKE_BINARY_DIR}/none.lib")
get_property(targets DIRECTORY PROPERTY IMPORTED_TARGETS)
foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY")
        set_target_properties(${target} PROPERTIES
            IMPORTED_IMPLIB "${CMAKE_BINARY_DIR}/none.lib"
            IMPORTED_IMPLIB_NONE "${CMAKE_BINARY_DIR}/none.lib"
            IMPORTED_IMPLIB_RELEASE "${CMAKE_BINARY_DIR}/none.lib")
    endif()
    get_target_property(includes ${target} INTERFACE_INCLUDE_DIRECTORIES)
    if(includes)
        string(REPLACE "mkspecs/linux-g++" "mkspecs/win32-g++" includes "${includes}")
        # Linux's own headers must not help a source to compile.
        list(REMOVE_ITEM includes /usr/include)
        set_target_properties(${target} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "${includes}")
    endif()
endforeach()

# OpenSSL's headers are the same everywhere, but stand among those of Linux: link them apart.
set(OPENSSL_INCLUDE_DIR "${CMAKE_BINARY_DIR}/headers")
file(GLOB headers /usr/include/openssl/*.h /usr/include/x86_64-linux-gnu/openssl/*.h)
file(MAKE_DIRECTORY "${OPENSSL_INCLUDE_DIR}/openssl")
foreach(header IN LISTS headers)
    get_filename_component(name "${header}" NAME)
    file(CREATE_LINK "${header}" "${OPENSSL_INCLUDE_DIR}/openssl/${name}" SYMBOLIC)
endforeach()
set(LIB_EAY "${CMAKE_BINARY_DIR}/none.lib")
set(SSL_EAY "${CMAKE_BINARY_DIR}/none.lib")
