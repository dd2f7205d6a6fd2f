#pragma once

#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QString>

/// The names under which the Tarnis module publishes its objects on the D-Bus.
///
/// Every call of a function returns a reference to the same string, valid until the library is unloaded.
class TARNISLIBRARY_EXPORT TarnisDefinitions
{
public:
    TarnisDefinitions() = delete;

    static const QString& getModuleName();
    static const QString& getObjectNameDeviceUiResources();
    static const QString& getInterfaceNameDeviceUiResources();
    static const QString& getObjectNameIconProvider();
    static const QString& getInterfaceNameIconProvider();
};
