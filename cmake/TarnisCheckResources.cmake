#[[
Checks a resource directory with tarnis-resource-check in every build and in the tests of a project:

    tarnis_check_resources(DIR <directory> [QML <directory>...] [ARGUMENTS <argument>...])

DIR        the resource directory
QML        the directories of the front end's QML files; their lookups are checked too
ARGUMENTS  further options, such as --werror; put options for every check into <directory>/.tarnis-check.ini

Relative paths are relative to the current source directory. Errors make the build fail. The check runs again after a
change of the resources, the QML files or the checker. The target and the test are both named check-<directory>, where
<directory> is relative to the top-level source directory and has "-" in place of other characters than letters and
digits.
]]
function(tarnis_check_resources)
    cmake_parse_arguments(PARSE_ARGV 0 check "" "DIR" "QML;ARGUMENTS")
    if(NOT check_DIR OR check_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "tarnis_check_resources: wrong arguments; use "
            "tarnis_check_resources(DIR <directory> [QML <directory>...] [ARGUMENTS <argument>...])")
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
