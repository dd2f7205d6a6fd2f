#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include "TarnisLibrary/TarnisDefinitions.h"

TarnisIconProviderDBusConnector::TarnisIconProviderDBusConnector()
    : DBusConnectorBase(TarnisDefinitions::getModuleName(), TarnisDefinitions::getObjectNameIconProvider(),
                        TarnisDefinitions::getInterfaceNameIconProvider(), nullptr, SystemBus)
{
}

TarnisIconProviderDBusConnector::~TarnisIconProviderDBusConnector() = default;

QString TarnisIconProviderDBusConnector::getIconResourcesBasePath() const
{
    const DBusReply reply = syncCallHelper(QStringLiteral("getIconResourcesBasePath"));
    if (reply.isError()) {
        qWarning() << "Fetching base path to icon resources failed with the follwoing error:"
                   << reply.getError().getErrorMessage();
        return QString();
    }
    const QVariant value = reply.getValue();
    if (!value.canConvert<QString>()) {
        qWarning() << "Expected base path to icon resources to be of type string!";
        return QString();
    }
    return value.toString();
}

QString TarnisIconProviderDBusConnector::getIconResourcesMappingTable(const QString& name) const
{
    QVariant argument(name);
    const DBusReply reply = syncCallHelper(QStringLiteral("getIconResourcesMappingTable"), argument);
    if (reply.isError()) {
        qWarning() << "Fetching mapping table failed with the follwoing error:" << reply.getError().getErrorMessage();
        return QString();
    }
    const QVariant value = reply.getValue();
    if (!value.canConvert<QString>()) {
        qWarning() << "Expected mapping table to be of type string!";
        return QString();
    }
    return value.toString();
}
