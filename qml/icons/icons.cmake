# dravelin_add_icons(target): an object library with every drawing of this folder, rendered to PNG
# at one, two and three times its natural size, as resources ":/icons/<name>.png",
# ":/icons/<name>@2x.png" and ":/icons/<name>@3x.png"; the program icon is ":/icon.ico".
#
# The natural size is the one a drawing states in its own width and height. The palette shows a
# picture at exactly this size at scale 1, so that the strokes fall on whole pixels.

set(DRAVELIN_ICON_DIR "${CMAKE_CURRENT_LIST_DIR}")

# Sets `output_variable` to the three pictures that the build renders from `drawing`.
function(_dravelin_render_icon drawing build_dir output_variable)
    get_filename_component(name "${drawing}" NAME_WE)
    set(pictures "")
    set(commands "")
    foreach(zoom 1 2 3)
        set(suffix "@${zoom}x")
        if(zoom EQUAL 1)
            set(suffix "")
        endif()
        set(picture "${build_dir}/icons/${name}${suffix}.png")
        list(APPEND pictures "${picture}")
        list(APPEND commands
            COMMAND "${RSVG_CONVERT}" --zoom ${zoom} --output "${picture}" "${drawing}")
    endforeach()
    add_custom_command(OUTPUT ${pictures} ${commands}
        DEPENDS "${drawing}"
        COMMENT "Rendering icon ${name}"
        VERBATIM)
    set(${output_variable} ${pictures} PARENT_SCOPE)
endfunction()

function(_dravelin_render_program_icon drawing build_dir)
    set(pictures "")
    set(commands "")
    foreach(size 16 20 24 32 48 64 128 256)
        set(picture "${build_dir}/program-icon-${size}.png")
        list(APPEND pictures "${picture}")
        list(APPEND commands COMMAND "${RSVG_CONVERT}" --width ${size} --height ${size}
            --output "${picture}" "${drawing}")
    endforeach()
    add_custom_command(OUTPUT "${build_dir}/icon.ico" ${commands}
        COMMAND "${ICOTOOL}" --create --output "${build_dir}/icon.ico" ${pictures}
        BYPRODUCTS ${pictures}
        DEPENDS "${drawing}"
        COMMENT "Packing the program icon"
        VERBATIM)
endfunction()

function(dravelin_add_icons target)
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    find_program(ICOTOOL icotool REQUIRED)
    set(build_dir "${CMAKE_CURRENT_BINARY_DIR}/rendered")
    file(MAKE_DIRECTORY "${build_dir}/icons")

    _dravelin_render_program_icon("${DRAVELIN_ICON_DIR}/logo.svg" "${build_dir}")
    set(files "${build_dir}/icon.ico")
    file(GLOB drawings CONFIGURE_DEPENDS "${DRAVELIN_ICON_DIR}/*.svg")
    foreach(drawing IN LISTS drawings)
        _dravelin_render_icon("${drawing}" "${build_dir}" pictures)
        list(APPEND files ${pictures})
    endforeach()

    set(entries "")
    foreach(file IN LISTS files)
        file(RELATIVE_PATH alias "${build_dir}" "${file}")
        string(APPEND entries "<file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    set(qrc "${CMAKE_CURRENT_BINARY_DIR}/${target}.qrc")
    file(CONFIGURE OUTPUT "${qrc}" @ONLY
        CONTENT "<RCC><qresource prefix=\"/\">\n${entries}</qresource></RCC>\n")
    qt_add_resources(resources "${qrc}")

    add_library(${target} OBJECT ${resources})
    set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_link_libraries(${target} PUBLIC Qt6::Core)
endfunction()
