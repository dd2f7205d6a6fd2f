#[[
Checks a resource directory with tarnis-resource-check whenever the product is built, and in its tests:

    tarnis_check_resources(DIR <directory> [QML <directory>...] [ARGUMENTS <argument>...])

DIR        the resource directory
QML        the directories of the front end's QML files, which are then checked against the resources
ARGUMENTS  further options, such as --werror; what holds for every check belongs in <directory>/.tarnis-check.ini

Relative paths start at the current source directory. The build fails on errors; it checks again after a change of the
resources, of the QML or of the checker. Target and test have the name check-<directory>, with the directory as seen
from the top of the sources and a "-" for whatever is no letter or digit.
]]
function(tarnis_check_resources)
    cmake_parse_arguments(PARSE_ARGV 0 check "" "DIR" "QML;ARGUMENTS")
    if(NOT check_DIR OR check_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "write: tarnis_check_resources(DIR <directory> [QML <directory>...] [ARGUMENTS <argument>...])")
    endif()
    set(checker Tarnis::tarnis-resource-check)
    if(TARGET tarnis-resource-check)
        set(checker tarnis-resource-check)
    endif()

    cmake_path(ABSOLUTE_PATH check_DIR NORMALIZE)
    set(patterns ${check_DIR}/*)
    set(command $<TARGET_FILE:${checker}> ${check_ARGUMENTS})
    foreach(directory IN LISTS check_QML)
        cmake_path(ABSOLUTE_PATH directory NORMALIZE)
        list(APPEND patterns ${directory}/*.qml ${directory}/*.js)
        list(APPEND command --qml ${directory})
    endforeach()
    list(APPEND command ${check_DIR})
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${patterns})

    file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR} ${check_DIR})
    string(REGEX REPLACE "[^A-Za-z0-9]+" "-" name check-${name})
    set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}.stamp)
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${command}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${checker} ${files}
        COMMENT "Checking ${check_DIR}"
        VERBATIM)
    add_custom_target(${name} ALL DEPENDS ${stamp})
    add_test(NAME ${name} COMMAND ${command})
endfunction()
