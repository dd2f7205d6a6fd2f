#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"

#include "TarnisLibrary/TarnisDefinitions.h"

TarnisDeviceUiResourcesDBusConnector::TarnisDeviceUiResourcesDBusConnector()
    : DBusConnectorBase(TarnisDefinitions::getModuleName(), TarnisDefinitions::getObjectNameDeviceUiResources(),
                        TarnisDefinitions::getInterfaceNameDeviceUiResources(), nullptr, SystemBus)
{
}

QString TarnisDeviceUiResourcesDBusConnector::getFontIniFilePath() const
{
    return convertDBusReplyToString(syncCallHelper(QStringLiteral("getFontIniFilePath")), "fonts ini file");
}

QString TarnisDeviceUiResourcesDBusConnector::getColorIniFilePath() const
{
    return convertDBusReplyToString(syncCallHelper(QStringLiteral("getColorIniFilePath")), "colors ini file");
}

QList<QPair<QSize, QString>> TarnisDeviceUiResourcesDBusConnector::getSupportedDisplaySizes() const
{
    QList<QPair<QSize, QString>> displaySizes;
    const DBusReply reply = syncCallHelper(QStringLiteral("getSupportedScreenSizes"));
    if (reply.isError()) {
        qWarning() << "Fetching supported display sizes failed with the follwoing error:"
                   << reply.getError().getErrorMessage();
        return displaySizes;
    }
    // Anything but a QDBusArgument casts to an empty one. Reading an array of another signature would end the process.
    const auto argument = qvariant_cast<QDBusArgument>(reply.getValue());
    if (argument.currentSignature() != QLatin1String("a((ii)s)")) {
        qWarning() << "Unable to extract supported display sizes from dbus reply";
        return displaySizes;
    }
    argument >> displaySizes;
    return displaySizes;
}

QString TarnisDeviceUiResourcesDBusConnector::convertDBusReplyToString(const DBusReply& reply,
                                                                       const char* iniFile) const
{
    if (reply.isError()) {
        qWarning() << "Fetching path to" << iniFile
                   << "failed with the follwoing error:" << reply.getError().getErrorMessage();
        return QString();
    }
    const QVariant value = reply.getValue();
    if (!value.canConvert<QString>()) {
        qWarning() << "Expected path to" << iniFile << "to be of type string!";
        return QString();
    }
    return value.toString();
}
