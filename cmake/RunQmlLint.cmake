# Runs qmllint over every QML document under SOURCE_DIRS and fails when it reports a problem that
# breaks tools or code at run time: unqualified access, an unresolved or incompatible type, a
# missing property, a failing import. Other findings are printed as information only.
#
#   cmake -D QMLLINT=<qmllint> -D IMPORT_DIRS=<dir;dir> -D SOURCE_DIRS=<dir;dir>
#         -D SOURCE_ROOT=<dir> -D WORK_DIR=<dir> -P RunQmlLint.cmake
#
# IMPORT_DIRS are the QML import paths a developer's tools use: the build's QML import directory
# (the native types' descriptions, the host's modules) and the source folder of the component
# library. qmllint only reads qmldir and qmltypes files; it never loads a plugin. Documents are
# named relative to SOURCE_ROOT in the summary.
foreach(required QMLLINT IMPORT_DIRS SOURCE_DIRS SOURCE_ROOT WORK_DIR)
    if(NOT DEFINED ${required})
        message(FATAL_ERROR "RunQmlLint.cmake needs -D ${required}=...")
    endif()
endforeach()

set(documents)
foreach(dir ${SOURCE_DIRS})
    file(GLOB_RECURSE found LIST_DIRECTORIES false ${dir}/*.qml)
    list(APPEND documents ${found})
endforeach()
list(SORT documents)
list(LENGTH documents document_count)
if(document_count EQUAL 0)
    message(FATAL_ERROR "No QML documents under ${SOURCE_DIRS}")
endif()

set(import_arguments)
foreach(dir ${IMPORT_DIRS})
    list(APPEND import_arguments -I ${dir})
endforeach()

# The categories that fail the check; every other category only informs.
set(failing_categories unqualified type property import)
set(informing_categories alias deferred-property-id deprecated inheritance-cycle multiline-strings
    plugin required signal unused-imports with)
set(level_arguments)
foreach(category ${failing_categories})
    list(APPEND level_arguments --${category} warning)
endforeach()
foreach(category ${informing_categories})
    list(APPEND level_arguments --${category} info)
endforeach()

file(MAKE_DIRECTORY ${WORK_DIR})
set(report ${WORK_DIR}/qmllint.json)
file(REMOVE ${report})
execute_process(
    COMMAND ${QMLLINT} ${level_arguments} ${import_arguments} --json ${report} ${documents}
    WORKING_DIRECTORY ${WORK_DIR}
    OUTPUT_QUIET ERROR_QUIET)
if(NOT EXISTS ${report})
    message(FATAL_ERROR "qmllint wrote no report")
endif()

# Every finding of a failing category, one line each.
file(READ ${report} json)
string(JSON file_count LENGTH "${json}" files)
set(findings "")
if(file_count GREATER 0)
    math(EXPR last_file "${file_count} - 1")
    foreach(f RANGE ${last_file})
        string(JSON path GET "${json}" files ${f} filename)
        file(RELATIVE_PATH document ${SOURCE_ROOT} ${path})
        string(JSON warning_count LENGTH "${json}" files ${f} warnings)
        if(warning_count EQUAL 0)
            continue()
        endif()
        math(EXPR last_warning "${warning_count} - 1")
        foreach(w RANGE ${last_warning})
            string(JSON type GET "${json}" files ${f} warnings ${w} type)
            if(NOT type STREQUAL "warning")
                continue()
            endif()
            string(JSON text GET "${json}" files ${f} warnings ${w} message)
            # A finding about the whole document (a failed import) may have no line.
            string(JSON line ERROR_VARIABLE no_line GET "${json}" files ${f} warnings ${w} line)
            if(no_line)
                set(line "?")
            endif()
            # Only the first line: the rest repeats the source.
            string(REGEX REPLACE "\n.*" "" text "${text}")
            string(APPEND findings "  ${document}:${line}: ${text}\n")
        endforeach()
    endforeach()
endif()

if(NOT findings STREQUAL "")
    # The readable report, with the source lines.
    execute_process(
        COMMAND ${QMLLINT} ${level_arguments} ${import_arguments} ${documents}
        WORKING_DIRECTORY ${WORK_DIR}
        OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    message("${output}")
    message(FATAL_ERROR "qmllint: problems in the QML documents (${document_count} checked):\n${findings}")
endif()
message("qmllint: ${document_count} QML documents checked")
