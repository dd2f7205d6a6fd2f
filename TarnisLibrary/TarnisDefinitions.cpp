#include "TarnisLibrary/TarnisDefinitions.h"

const QString& TarnisDefinitions::getModuleName()
{
    static const QString name = QStringLiteral("Tarnis");
    return name;
}

const QString& TarnisDefinitions::getObjectNameDeviceUiResources()
{
    static const QString name = QStringLiteral("DeviceUiResources");
    return name;
}

const QString& TarnisDefinitions::getInterfaceNameDeviceUiResources()
{
    static const QString name = QStringLiteral("Interface.DeviceUiResources");
    return name;
}

const QString& TarnisDefinitions::getObjectNameIconProvider()
{
    static const QString name = QStringLiteral("IconProvider");
    return name;
}

const QString& TarnisDefinitions::getInterfaceNameIconProvider()
{
    static const QString name = QStringLiteral("Interface.IconProvider");
    return name;
}
