# What is installed, and the packages that are made of it: a .deb, and a folder that runs where it is
# unpacked.
#
# The program stands in lib/dravelin with what it looks for beside itself, and is found through a
# link in bin.

include(GNUInstallDirs)
set(DRAVELIN_HOME "lib/dravelin")
set(recorder_dir "thirdparty/capture/obs")

install(TARGETS dravelin DESTINATION "${DRAVELIN_HOME}")
install(TARGETS recorder DESTINATION "${DRAVELIN_HOME}/${recorder_dir}")
install(FILES ${DRAVELIN_CATALOGUES} DESTINATION "${DRAVELIN_HOME}/translations")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/link")
file(CREATE_LINK "../${DRAVELIN_HOME}/dravelin" "${CMAKE_BINARY_DIR}/link/dravelin" SYMBOLIC)
install(FILES "${CMAKE_BINARY_DIR}/link/dravelin" DESTINATION "${CMAKE_INSTALL_BINDIR}")
add_subdirectory(packaging)

# By this mark beside it the program knows that it must not write there, and who updates it.
file(WRITE "${CMAKE_BINARY_DIR}/packaged" "")
install(FILES "${CMAKE_BINARY_DIR}/packaged" DESTINATION "${DRAVELIN_HOME}"
    COMPONENT packaged EXCLUDE_FROM_ALL)

# The folder: the same, with the libraries of Qt that a system without Qt lacks.
set(portable COMPONENT portable EXCLUDE_FROM_ALL)
install(TARGETS dravelin DESTINATION . ${portable})
install(TARGETS recorder DESTINATION "${recorder_dir}" ${portable})
install(FILES ${DRAVELIN_CATALOGUES} DESTINATION translations ${portable})
install(FILES LICENSE DESTINATION . ${portable})
install(FILES packaging/portable.txt DESTINATION . RENAME README.txt ${portable})
find_program(PATCHELF patchelf DOC "Needed by the portable folder only")
configure_file(cmake/PortableFolder.cmake.in PortableFolder.cmake @ONLY)
install(SCRIPT "${CMAKE_BINARY_DIR}/PortableFolder.cmake" ${portable})

set(CPACK_PACKAGE_NAME dravelin)
set(CPACK_PACKAGE_VENDOR "The Dravelin authors")
set(CPACK_PACKAGE_CONTACT "The Dravelin authors <maintainers@dravelin.example>")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "pen for the whole screen")
set(CPACK_PACKAGE_DESCRIPTION "\
Dravelin is a small palette at the edge of the desktop. One click, and you
draw over everything that is shown: strokes, lines, shapes, arrows, text and
numbered marks. Another click, and the desktop has its pointer back. The
screen can be captured as a picture or recorded as a video with sound.")
set(CPACK_OUTPUT_FILE_PREFIX "${CMAKE_BINARY_DIR}/packages")
string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" CPACK_SYSTEM_NAME)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/cmake/PackageKinds.cmake")
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded only when the program runs: the interface's modules, the texts of Qt, the encoder
# of the recorder, and letters for the languages of the interface.
file(STRINGS scripts/packages.txt runtime REGEX "^(qml6-module|ffmpeg|qt6-translations)")
list(TRANSFORM runtime REPLACE " .*" "")
list(JOIN runtime ", " runtime)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${runtime}, fonts-noto-cjk | fonts-wqy-zenhei | fonts-droid-fallback")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")

set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
include(CPack)
