# What differs between Qt 5 and Qt 6: names of packages, targets and programs. Everything that is installed for Qt 6 has
# the suffix -qt6, so that both can be installed side by side.
set(TARNIS_QT_MAJOR 5 CACHE STRING "Major version of Qt: 5 or 6")
set_property(CACHE TARNIS_QT_MAJOR PROPERTY STRINGS 5 6)
set(qt Qt${TARNIS_QT_MAJOR})
if(TARNIS_QT_MAJOR EQUAL 5)
    set(qt_minimum 5.15)
    set(qt_suffix "")
elseif(TARNIS_QT_MAJOR EQUAL 6)
    set(qt_minimum 6.4)
    set(qt_suffix -qt6)
    # The sizes of Qt's containers are int in Qt 5 and 64-bit in Qt 6. The build with Qt 5 checks all other conversions.
    set(qt_warnings -Wno-conversion -Wfloat-conversion)
    # This qmllint also looks for types, but the programs bring theirs along. It checks the syntax, as that of Qt 5 does.
    set(qmllint_options --import disable --unqualified disable --type disable --property disable
        --deferred-property-id disable)
    set(QT_NO_PRIVATE_MODULE_WARNING ON)
else()
    message(FATAL_ERROR "TARNIS_QT_MAJOR is ${TARNIS_QT_MAJOR}; use 5 or 6")
endif()
find_package(${qt} ${qt_minimum} REQUIRED COMPONENTS Core DBus Gui)

set(header_directory ${CMAKE_INSTALL_INCLUDEDIR}/tarnis${qt_suffix})
set(package TarnisLibrary${qt_suffix})
set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/${package})

# Gives the file of a target the suffix.
function(tarnis_qt_suffix name)
    set_target_properties(${name} PROPERTIES OUTPUT_NAME ${name}${qt_suffix})
endfunction()

# The path of a program that belongs to this Qt.
function(tarnis_qt_program variable name)
    if(TARGET ${qt}::${name})
        set(${variable} $<TARGET_FILE:${qt}::${name}> PARENT_SCOPE)
    else()
        get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
        get_filename_component(programs ${qmake} DIRECTORY)
        set(${variable} ${programs}/${name} PARENT_SCOPE)
    endif()
endfunction()

# Qt's own QML parser. Qt 5 has it in a static library for tools, Qt 6 in the library of the QML engine.
function(tarnis_link_qml_parser target)
    if(TARNIS_QT_MAJOR EQUAL 6)
        find_package(Qt6 ${qt_minimum} REQUIRED COMPONENTS Qml)
        target_link_libraries(${target} PUBLIC Qt6::QmlPrivate)
    else()
        find_package(Qt5QmlDevTools ${qt_minimum} REQUIRED)
        # The library file alone: its target would also link the Qt of the build machine.
        target_link_libraries(${target} PUBLIC $<TARGET_FILE:Qt5::QmlDevTools>)
        target_include_directories(${target} SYSTEM PRIVATE ${Qt5QmlDevTools_PRIVATE_INCLUDE_DIRS})
    endif()
endfunction()
