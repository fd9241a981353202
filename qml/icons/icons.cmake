# dravelin_add_icons(target): renders every drawing of this folder to PNG at one, two and three
# times its natural size and puts them into the target's resources as ":/icons/<name>.png",
# ":/icons/<name>@2x.png" and ":/icons/<name>@3x.png"; the program icon becomes ":/icon.ico".
#
# The natural size is the one a drawing states in its own width and height. The palette shows a
# picture at exactly this size at scale 1, so that the strokes fall on whole pixels.

set(DRAVELIN_ICON_DIR "${CMAKE_CURRENT_LIST_DIR}")

function(_dravelin_render_icon drawing output_variable)
    get_filename_component(name "${drawing}" NAME_WE)
    set(outputs)
    set(commands)
    foreach(zoom 1 2 3)
        set(suffix "@${zoom}x")
        if(zoom EQUAL 1)
            set(suffix "")
        endif()
        set(output "${DRAVELIN_ICON_BUILD_DIR}/icons/${name}${suffix}.png")
        list(APPEND outputs "${output}")
        list(APPEND commands COMMAND "${RSVG_CONVERT}" --zoom ${zoom} --output "${output}" "${drawing}")
    endforeach()
    add_custom_command(OUTPUT ${outputs} ${commands} DEPENDS "${drawing}"
        COMMENT "Rendering icon ${name}" VERBATIM)
    set(${output_variable} ${outputs} PARENT_SCOPE)
endfunction()

function(_dravelin_render_program_icon output)
    set(drawing "${DRAVELIN_ICON_DIR}/logo.svg")
    set(commands)
    set(pictures)
    foreach(size 16 20 24 32 48 64 128 256)
        set(picture "${DRAVELIN_ICON_BUILD_DIR}/program-icon-${size}.png")
        list(APPEND pictures "${picture}")
        list(APPEND commands COMMAND "${RSVG_CONVERT}" --width ${size} --height ${size}
            --output "${picture}" "${drawing}")
    endforeach()
    add_custom_command(OUTPUT "${output}" ${commands}
        COMMAND "${ICOTOOL}" --create --output "${output}" ${pictures}
        BYPRODUCTS ${pictures} DEPENDS "${drawing}"
        COMMENT "Packing the program icon" VERBATIM)
endfunction()

function(dravelin_add_icons target)
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    find_program(ICOTOOL icotool REQUIRED)
    set(DRAVELIN_ICON_BUILD_DIR "${CMAKE_CURRENT_BINARY_DIR}/rendered")
    file(MAKE_DIRECTORY "${DRAVELIN_ICON_BUILD_DIR}/icons")

    file(GLOB drawings CONFIGURE_DEPENDS "${DRAVELIN_ICON_DIR}/*.svg")
    set(files "${DRAVELIN_ICON_BUILD_DIR}/icon.ico")
    _dravelin_render_program_icon("${DRAVELIN_ICON_BUILD_DIR}/icon.ico")
    foreach(drawing IN LISTS drawings)
        _dravelin_render_icon("${drawing}" rendered)
        list(APPEND files ${rendered})
    endforeach()
    qt_add_resources(${target} "dravelin_icons" PREFIX "/" BASE "${DRAVELIN_ICON_BUILD_DIR}"
        FILES ${files})
endfunction()
