# cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DOUTSIDE_HOST_DIR=... -DGENERATOR=... -DQML_TOOL=...
#       -DQML_IMPORT_DIR=(relative to the prefix)
#       [-DCXX_COMPILER=...] [-DPRELOAD=...] -P InstallAndRunOutsideHost.cmake
#
# Installs the build into a staging prefix outside the build and source trees, then builds and runs
# a host project against that prefix alone. Fails when anything installed still points into the
# build or source tree: a RUNPATH, a text file (qmldir, type descriptions, the CMake package), the
# outside host's own build files, or a library the running host mapped. The same document then runs
# in Qt's qml tool, which links none of the project's libraries: the plugin has to find them itself.
foreach(variable BUILD_DIR SOURCE_DIR OUTSIDE_HOST_DIR GENERATOR QML_TOOL QML_IMPORT_DIR)
    if(NOT DEFINED ${variable})
        message(FATAL_ERROR "${variable} is not set")
    endif()
endforeach()
set(forbidden_dirs ${BUILD_DIR} ${SOURCE_DIR})

function(run description)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${description} failed (${result}):\n${output}")
    endif()
    set(run_output "${output}" PARENT_SCOPE)
endfunction()

function(forbid_tree_paths description text)
    foreach(dir ${forbidden_dirs})
        string(FIND "${text}" "${dir}/" at)
        if(NOT at EQUAL -1)
            message(FATAL_ERROR "${description} refers to ${dir}")
        endif()
    endforeach()
endfunction()

if(DEFINED ENV{TMPDIR})
    set(temporary $ENV{TMPDIR})
else()
    set(temporary /tmp)
endif()
string(RANDOM LENGTH 8 suffix)
set(staging ${temporary}/qtcomponents-install-${suffix})
set(prefix ${staging}/prefix)
file(REMOVE_RECURSE ${staging})

run("Installing into ${prefix}" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

file(GLOB_RECURSE installed LIST_DIRECTORIES false ${prefix}/*)
set(elf_files "")
foreach(file ${installed})
    if(file MATCHES "\\.(cmake|qmltypes|qml|js|xml|txt|json)$" OR file MATCHES "/qmldir$")
        file(READ ${file} content)
        forbid_tree_paths(${file} "${content}")
    elseif(file MATCHES "\\.so(\\.[0-9.]+)?$" OR file MATCHES "/bin/[^/]+$")
        list(APPEND elf_files ${file})
    endif()
endforeach()
list(LENGTH elf_files elf_count)
if(elf_count LESS 4)
    message(FATAL_ERROR "Expected the kit, the core library, the plugin and the demo; installed: ${elf_files}")
endif()
foreach(file ${elf_files})
    run("Reading ${file}" readelf -d ${file})
    string(REGEX MATCHALL "R(UN)?PATH[^\n]*" runpaths "${run_output}")
    forbid_tree_paths("The RUNPATH of ${file}" "${runpaths}")
endforeach()

file(COPY ${OUTSIDE_HOST_DIR}/ DESTINATION ${staging}/source)
set(configure_arguments -S ${staging}/source -B ${staging}/build -G ${GENERATOR}
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH=${prefix})
if(DEFINED CXX_COMPILER)
    list(APPEND configure_arguments -DCMAKE_CXX_COMPILER=${CXX_COMPILER})
endif()
run("Configuring the outside host" ${CMAKE_COMMAND} ${configure_arguments})
run("Building the outside host" ${CMAKE_COMMAND} --build ${staging}/build)
file(READ ${staging}/build/build.ninja build_rules)
forbid_tree_paths("The outside host's build rules" "${build_rules}")

set(environment --unset=QML_IMPORT_PATH --unset=QML2_IMPORT_PATH --unset=LD_LIBRARY_PATH
    --unset=QT_PLUGIN_PATH QT_QPA_PLATFORM=offscreen)
if(PRELOAD)
    list(APPEND environment LD_PRELOAD=${PRELOAD})
endif()
run("Running the outside host" ${CMAKE_COMMAND} -E env ${environment}
    ${staging}/build/OutsideHost ${staging}/source/OutsideHostCheck.qml ${prefix} ${forbidden_dirs})
message(STATUS "${run_output}")
run("Running the document in the qml tool" ${CMAKE_COMMAND} -E env ${environment}
    ${QML_TOOL} -I ${prefix}/${QML_IMPORT_DIR} ${staging}/source/OutsideHostCheck.qml)
file(REMOVE_RECURSE ${staging})
