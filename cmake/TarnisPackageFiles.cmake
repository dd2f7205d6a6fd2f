# Runs after the files of all packages have been copied to the staging directory, and gives them the form that Debian
# requires.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} name)
    set(root ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
    set(documents ${root}/share/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME})
    file(COPY ${CPACK_TARNIS_DOCUMENTS} DESTINATION ${documents}
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    file(RENAME ${documents}/changelog ${documents}/changelog.Debian)
    file(GLOB_RECURSE texts ${root}/share/man/* ${documents}/changelog.Debian)
    execute_process(COMMAND gzip -9n ${texts} COMMAND_ERROR_IS_FATAL ANY)
    # Programs and the QML module find the library in the system's library directory.
    file(GLOB programs ${root}/bin/* ${root}/lib/*/tarnis*/qml/Tarnis/*.so)
    foreach(program IN LISTS programs)
        file(RPATH_REMOVE FILE ${program})
    endforeach()
endforeach()
