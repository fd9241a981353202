# The interface documents and the native QML module, as object libraries: whoever links one gets
# its resources and registration objects whole, which a linker would drop from an archive.

# Import paths under which qmlcachegen and qmllint find this project's modules and Qt's own.
set(DRAVELIN_QML_MODULES_DIR "${CMAKE_BINARY_DIR}/qml_modules")
set(DRAVELIN_QML_IMPORT_ARGS
    -I "${DRAVELIN_QML_MODULES_DIR}" -I "${CMAKE_BINARY_DIR}/qml"
    -I "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_QML}")

# dravelin_compile_in_batches(target sources...): compiles these sources of the target many at a
# time, and each of the others by itself.
function(dravelin_compile_in_batches target)
    get_target_property(others ${target} SOURCES)
    list(REMOVE_ITEM others ${ARGN})
    set_source_files_properties(${others} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
endfunction()

# dravelin_add_qml_documents(target DOCUMENTS files...): compiles the documents ahead of time and
# places each at the resource root under its bare name, whatever folder it lies in. Defines the
# targets `target` (object library) and `target_qmllint`.
function(dravelin_add_qml_documents target)
    cmake_parse_arguments(ARG "" "" "DOCUMENTS" ${ARGN})
    set(cache_dir "${CMAKE_CURRENT_BINARY_DIR}/qmlcache")
    set(qrc "${CMAKE_CURRENT_BINARY_DIR}/${target}.qrc")
    set(qrc_text "<RCC><qresource prefix=\"/\">\n")
    set(paths "")
    foreach(document IN LISTS ARG_DOCUMENTS)
        get_filename_component(name "${document}" NAME)
        if("/${name}" IN_LIST paths)
            message(FATAL_ERROR "Two interface documents are called ${name}")
        endif()
        list(APPEND paths "/${name}")
        string(APPEND qrc_text "<file alias=\"${name}\">${document}</file>\n")
    endforeach()
    string(APPEND qrc_text "</qresource></RCC>\n")
    file(CONFIGURE OUTPUT "${qrc}" CONTENT "${qrc_text}" @ONLY)

    set(sources "")
    foreach(document IN LISTS ARG_DOCUMENTS)
        get_filename_component(name "${document}" NAME)
        set(output "${cache_dir}/${name}.cpp")
        add_custom_command(OUTPUT "${output}"
            COMMAND ${CMAKE_COMMAND} -E make_directory "${cache_dir}"
            COMMAND Qt6::qmlcachegen --bare --resource-path "/${name}" ${DRAVELIN_QML_IMPORT_ARGS}
                --resource "${qrc}" -o "${output}" "${document}"
            DEPENDS "${document}" "${qrc}" Qt6::qmlcachegen
            COMMENT "Compiling ${name}"
            VERBATIM)
        list(APPEND sources "${output}")
    endforeach()

    set(loader "${cache_dir}/${target}_qmlcache_loader.cpp")
    add_custom_command(OUTPUT "${loader}"
        COMMAND Qt6::qmlcachegen --resource-name "qmlcache_${target}" --resource "${qrc}"
            -o "${loader}" ${paths}
        DEPENDS "${qrc}" Qt6::qmlcachegen
        COMMENT "Listing the compiled documents"
        VERBATIM)
    qt_add_resources(resources "${qrc}")

    add_library(${target} OBJECT ${sources} "${loader}" ${resources})
    set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    # What is generated from a document is small beside the headers that it includes, and stands in
    # a namespace of its own.
    dravelin_compile_in_batches(${target} ${sources} "${loader}")
    target_link_libraries(${target} PUBLIC Qt6::Qml)

    add_custom_target(${target}_qmllint
        COMMAND Qt6::qmllint --bare ${DRAVELIN_QML_IMPORT_ARGS} --resource "${qrc}" ${ARG_DOCUMENTS}
        DEPENDS ${ARG_DOCUMENTS} "${qrc}"
        COMMENT "Checking the interface documents"
        VERBATIM)
endfunction()

# dravelin_add_qml_module(target URI uri TYPEINFO file CLASSES libraries...): registers the
# QML_ELEMENT classes of the given static libraries under `uri` 1.0, before main() runs. The
# module definition and the type information land in the build tree for tooling; only the
# definition is a resource.
function(dravelin_add_qml_module target)
    cmake_parse_arguments(ARG "" "URI;TYPEINFO" "CLASSES" ${ARGN})
    string(REPLACE "." "/" module_path "${ARG_URI}")
    set(module_dir "${DRAVELIN_QML_MODULES_DIR}/${module_path}")
    set(resource_dir "/qt/qml/${module_path}")

    set(definition "module ${ARG_URI}\ntypeinfo ${ARG_TYPEINFO}\nprefer :${resource_dir}/\n\n")
    set(qmldir "${CMAKE_CURRENT_BINARY_DIR}/${target}/qmldir")
    file(GENERATE OUTPUT "${qmldir}" CONTENT "${definition}" NEWLINE_STYLE CRLF)
    # Tools also want to know where the base classes come from.
    file(GENERATE OUTPUT "${module_dir}/qmldir"
        CONTENT "module ${ARG_URI}\ntypeinfo ${ARG_TYPEINFO}\ndepends QtQuick\nprefer :${resource_dir}/\n")
    file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${target}.qrc" CONTENT
        "<RCC><qresource prefix=\"${resource_dir}\"><file alias=\"qmldir\">${qmldir}</file></qresource></RCC>\n"
        @ONLY)
    qt_add_resources(resources "${CMAKE_CURRENT_BINARY_DIR}/${target}.qrc")

    set(class_files "")
    set(include_dirs "")
    foreach(library IN LISTS ARG_CLASSES)
        qt_extract_metatypes(${library})
        get_target_property(class_file ${library} INTERFACE_QT_META_TYPES_BUILD_FILE)
        get_target_property(source_dir ${library} SOURCE_DIR)
        list(APPEND class_files "${class_file}")
        list(APPEND include_dirs "${source_dir}")
    endforeach()
    set(foreign_types "${CMAKE_CURRENT_BINARY_DIR}/${target}_foreign_types.txt")
    set(registration "${CMAKE_CURRENT_BINARY_DIR}/${target}_qmltyperegistrations.cpp")
    add_custom_command(OUTPUT "${registration}" "${module_dir}/${ARG_TYPEINFO}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${module_dir}"
        COMMAND Qt6::qmltyperegistrar "--generate-qmltypes=${module_dir}/${ARG_TYPEINFO}"
            "--import-name=${ARG_URI}" --major-version=1 --minor-version=0
            "@${foreign_types}"
            -o "${registration}" ${class_files}
        DEPENDS ${class_files} "${foreign_types}" Qt6::qmltyperegistrar
        COMMENT "Registering ${ARG_URI}"
        VERBATIM)

    add_library(${target} OBJECT "${registration}" ${resources})
    set_target_properties(${target} PROPERTIES
        AUTOMOC OFF AUTOUIC OFF AUTORCC OFF QT_CONSUMES_METATYPES TRUE)
    # Qt's own classes, from which ours derive, come with Qt's targets as metatypes "sources".
    set(metatypes "$<FILTER:$<TARGET_PROPERTY:${target},SOURCES>,INCLUDE,qt6.*metatypes.json$>")
    file(GENERATE OUTPUT "${foreign_types}"
        CONTENT "--foreign-types=$<JOIN:$<REMOVE_DUPLICATES:${metatypes}>,$<COMMA>>\n")
    target_include_directories(${target} PRIVATE ${include_dirs})
    target_link_libraries(${target} PUBLIC ${ARG_CLASSES} Qt6::Qml PRIVATE dravelin_options)
    # What Qt generates does not follow this project's warnings.
    target_compile_options(${target} PRIVATE -w)
    dravelin_use_common_headers(${target})
    add_custom_target(${target}_typeinfo DEPENDS "${module_dir}/${ARG_TYPEINFO}")
endfunction()
