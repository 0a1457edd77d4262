# qtc_describe_qml_types(TARGET name LIBRARY library URI uri OUTPUT file)
#
# Generates, at build time, the type description (a .qmltypes file) that QML tools (qmllint, the
# QML language server, Qt Creator, qmlcachegen) read for a module whose native types are defined
# in LIBRARY: every class there that declares QML_NAMED_ELEMENT, and every QML_FOREIGN declaration
# for a class of another library. The custom target TARGET builds the file.
#
# The description comes from qmltyperegistrar, which would also write a registration function that
# registers the same types at import time. That function is deliberately not compiled: the types
# are registered by the plugin's registerTypes, in the module's registration order, and registering
# them twice would give each name two types. The generated source goes to a scratch file.
function(qtc_describe_qml_types)
    cmake_parse_arguments(arg "" "TARGET;LIBRARY;URI;OUTPUT" "" ${ARGN})
    qt_extract_metatypes(${arg_LIBRARY})
    # Lets the meta-types of every linked Qt module and library appear among the library's sources,
    # where the generator expression below collects them: base classes and property types come
    # from there.
    set_target_properties(${arg_LIBRARY} PROPERTIES QT_CONSUMES_METATYPES TRUE)
    get_target_property(own_metatypes ${arg_LIBRARY} INTERFACE_QT_META_TYPES_BUILD_FILE)

    set(foreign_metatypes
        "$<REMOVE_DUPLICATES:$<FILTER:$<TARGET_PROPERTY:${arg_LIBRARY},SOURCES>,INCLUDE,metatypes.json$>>")
    set(foreign_types_file ${CMAKE_CURRENT_BINARY_DIR}/${arg_TARGET}_foreign_types.rsp)
    file(GENERATE OUTPUT ${foreign_types_file}
        CONTENT "$<IF:$<BOOL:${foreign_metatypes}>,--foreign-types=$<JOIN:${foreign_metatypes},$<COMMA>>,>\n")

    set(unused_registration ${CMAKE_CURRENT_BINARY_DIR}/${arg_TARGET}_unused_registration.cpp)
    add_custom_command(
        OUTPUT ${arg_OUTPUT}
        BYPRODUCTS ${unused_registration}
        COMMAND Qt6::qmltyperegistrar
            --generate-qmltypes=${arg_OUTPUT}
            --import-name=${arg_URI}
            --major-version=1
            --minor-version=0
            @${foreign_types_file}
            -o ${unused_registration}
            ${own_metatypes}
        DEPENDS Qt6::qmltyperegistrar ${own_metatypes} ${foreign_types_file} ${foreign_metatypes}
        COMMENT "Describing the QML types of ${arg_URI}"
        COMMAND_EXPAND_LISTS
        VERBATIM)
    add_custom_target(${arg_TARGET} ALL DEPENDS ${arg_OUTPUT})
endfunction()
