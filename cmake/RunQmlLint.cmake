# Runs qmllint over every QML document under SOURCE_DIRS and fails when it reports a problem that
# breaks tools or code at run time: unqualified access, an unresolved or incompatible type, a
# missing property, a failing import. Other findings are printed as information only.
#
#   cmake -D QMLLINT=<qmllint> -D IMPORT_DIRS=<dir;dir> -D SOURCE_DIRS=<dir;dir>
#         -D SOURCE_ROOT=<dir> -D WORK_DIR=<dir> [-D KNOWN_WARNINGS=<file>] -P RunQmlLint.cmake
#
# IMPORT_DIRS are the QML import paths a developer's tools use: the build's QML import directory
# (the native types' descriptions, the host's modules) and the source folder of the component
# library. qmllint only reads qmldir and qmltypes files; it never loads a plugin.
#
# KNOWN_WARNINGS lists findings not fixed yet, one "count<TAB>document<TAB>message" a line, the
# document relative to SOURCE_ROOT. A document may have at most that many findings with that
# message: anything new fails, and a line whose findings are gone is reported so it can be removed.
# With -D WRITE_KNOWN_WARNINGS=ON the file is rewritten from the current findings instead.
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

# Findings per document and message, as "document<TAB>message" keys with counts.
file(READ ${report} json)
string(JSON file_count LENGTH "${json}" files)
set(keys)
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
            # Only the first line: the rest repeats the source.
            string(REGEX REPLACE "\n.*" "" text "${text}")
            string(REPLACE ";" "," text "${text}")
            set(key "${document}\t${text}")
            string(MD5 id "${key}")
            if(NOT DEFINED found_${id})
                set(found_${id} 0)
                set(key_${id} "${key}")
                list(APPEND keys ${id})
            endif()
            math(EXPR found_${id} "${found_${id}} + 1")
        endforeach()
    endforeach()
endif()

if(WRITE_KNOWN_WARNINGS)
    set(lines "")
    foreach(id ${keys})
        string(APPEND lines "${found_${id}}\t${key_${id}}\n")
    endforeach()
    file(WRITE ${KNOWN_WARNINGS}.lines "${lines}")
    execute_process(COMMAND sort -t "\t" -k2,2 -k3,3 ${KNOWN_WARNINGS}.lines OUTPUT_VARIABLE sorted)
    file(REMOVE ${KNOWN_WARNINGS}.lines)
    file(READ ${KNOWN_WARNINGS} previous)
    string(REGEX MATCH "^(#[^\n]*\n)*" header "${previous}")
    file(WRITE ${KNOWN_WARNINGS} "${header}${sorted}")
    message("qmllint: ${KNOWN_WARNINGS} rewritten")
    return()
endif()

set(known_ids)
if(DEFINED KNOWN_WARNINGS AND EXISTS ${KNOWN_WARNINGS})
    file(STRINGS ${KNOWN_WARNINGS} known_lines REGEX "^[0-9]+\t")
    foreach(line ${known_lines})
        string(REGEX MATCH "^([0-9]+)\t(.*)$" ignored "${line}")
        string(MD5 id "${CMAKE_MATCH_2}")
        set(known_${id} ${CMAKE_MATCH_1})
        set(key_${id} "${CMAKE_MATCH_2}")
        list(APPEND known_ids ${id})
    endforeach()
endif()

set(new_findings "")
foreach(id ${keys})
    set(allowed 0)
    if(DEFINED known_${id})
        set(allowed ${known_${id}})
    endif()
    if(found_${id} GREATER allowed)
        string(APPEND new_findings "  ${found_${id}}\t${key_${id}} (known: ${allowed})\n")
    endif()
endforeach()
set(fixed_findings "")
foreach(id ${known_ids})
    set(found 0)
    if(DEFINED found_${id})
        set(found ${found_${id}})
    endif()
    if(found LESS known_${id})
        string(APPEND fixed_findings "  ${found}\t${key_${id}} (known: ${known_${id}})\n")
    endif()
endforeach()

if(NOT new_findings STREQUAL "")
    # The readable report, with the source lines.
    execute_process(
        COMMAND ${QMLLINT} ${level_arguments} ${import_arguments} ${documents}
        WORKING_DIRECTORY ${WORK_DIR}
        OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    message("${output}")
    message(FATAL_ERROR "qmllint: new problems in the QML documents (${document_count} checked):\n"
        "${new_findings}")
endif()
if(NOT fixed_findings STREQUAL "")
    message("qmllint: fewer problems than listed in ${KNOWN_WARNINGS}; lower these lines:\n"
        "${fixed_findings}")
endif()
message("qmllint: ${document_count} QML documents checked")
