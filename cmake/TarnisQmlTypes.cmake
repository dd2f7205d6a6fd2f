# Makes the type description of the QML module Tarnis, for Qt Creator and qmllint, from the meta-objects of these
# headers.
set(headers QmlHost/QmlTypes.h QmlHost/Ui.h
    TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h
    TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h
    TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h
    TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h
    TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h)
set(includes $<TARGET_PROPERTY:QmlHost,INCLUDE_DIRECTORIES>)
tarnis_qt_program(qmltyperegistrar qmltyperegistrar)
get_target_property(qt_core ${qt}::Core LOCATION)
cmake_path(GET qt_core PARENT_PATH qt_libraries)
file(GLOB qt_core_types ${qt_libraries}/metatypes/qt${TARNIS_QT_MAJOR}core_*metatypes.json)

set(descriptions)
foreach(header IN LISTS headers)
    get_filename_component(name ${header} NAME_WE)
    set(output ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc)
    add_custom_command(OUTPUT ${output}.json BYPRODUCTS ${output} DEPENDS ${PROJECT_SOURCE_DIR}/${header}
        COMMAND ${qt}::moc "-I$<JOIN:${includes},;-I>" --output-json -o ${output} ${PROJECT_SOURCE_DIR}/${header}
        COMMAND_EXPAND_LISTS VERBATIM)
    list(APPEND descriptions ${output}.json)
endforeach()

# QML does not know the namespace. The readers of Qt 6 expect the major version in each revision and the dependencies in
# the qmldir file, QString in properties, and they would look up keys of a QVariantMap in the type of that name.
add_custom_command(OUTPUT tarnis.qmltypes DEPENDS ${descriptions}
    COMMAND ${qt}::moc --collect-json -o types.json ${descriptions}
    COMMAND sed -i s/QmlHost::// types.json
    COMMAND ${qmltyperegistrar} --generate-qmltypes=tarnis.qmltypes --import-name=Tarnis
        --major-version=1 --minor-version=0 --foreign-types=${qt_core_types}
        -o registration.cpp types.json
    COMMAND sed -i -e "/dependencies:/d" -e "s/Revisions: .0./Revisions: [256]/" -e s/QVariantMap/QVariant/
        -e "/Property/s/.string./\"QString\"/"
        tarnis.qmltypes
    VERBATIM)
add_custom_target(tarnis-qmltypes ALL DEPENDS tarnis.qmltypes)
# Qt Creator looks beside the modules of Qt. The qmllint of Qt 6 must not see those of Qt 5, so it gets a folder of its
# own.
foreach(imports IN ITEMS ${CMAKE_INSTALL_LIBDIR}/qt${TARNIS_QT_MAJOR}/qml ${CMAKE_INSTALL_DATADIR}/tarnis${qt_suffix}/qml)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/tarnis.qmltypes ${PROJECT_SOURCE_DIR}/QmlHost/qmldir
        DESTINATION ${imports}/Tarnis COMPONENT development)
endforeach()
