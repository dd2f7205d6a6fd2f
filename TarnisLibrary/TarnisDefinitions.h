#pragma once

#include "TarnisLibrary/TarnisLibraryExport.h"

#include <QString>

/// The names under which the Tarnis module publishes its objects on the D-Bus.
///
/// Each function always returns a reference to the same string, valid until the library is unloaded.
class TARNISLIBRARY_EXPORT TarnisDefinitions
{
public:
    TarnisDefinitions() = delete;

    /// `Tarnis`: the bus name is `Module.Tarnis`.
    static const QString& getModuleName();

    /// `DeviceUiResources`: the object path is `/Tarnis/DeviceUiResources`.
    static const QString& getObjectNameDeviceUiResources();

    /// `Interface.DeviceUiResources`.
    static const QString& getInterfaceNameDeviceUiResources();

    /// `IconProvider`: the object path is `/Tarnis/IconProvider`.
    static const QString& getObjectNameIconProvider();

    /// `Interface.IconProvider`.
    static const QString& getInterfaceNameIconProvider();
};
