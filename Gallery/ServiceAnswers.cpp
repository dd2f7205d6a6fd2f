#include "Gallery/ServiceAnswers.h"

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include <QFileInfo>

namespace Gallery
{

ServiceAnswers ServiceAnswers::ask()
{
    ServiceAnswers answers;
    const TarnisDeviceUiResourcesDBusConnector deviceUiResources;
    const TarnisIconProviderDBusConnector iconProvider;
    const auto noteFailure = [&answers] { answers.isReached = false; };
    QObject::connect(&deviceUiResources, &DBusConnectorBase::dBusConnectionError, noteFailure);
    QObject::connect(&iconProvider, &DBusConnectorBase::dBusConnectionError, noteFailure);
    answers.colorIniFilePath = deviceUiResources.getColorIniFilePath();
    answers.fontIniFilePath = deviceUiResources.getFontIniFilePath();
    answers.displaySizes = deviceUiResources.getSupportedDisplaySizes();
    answers.iconBasePath = iconProvider.getIconResourcesBasePath();
    answers.iconMappingTable = iconProvider.getIconResourcesMappingTable(QString());
    return answers;
}

QString ServiceAnswers::directory() const
{
    const QString path = colorIniFilePath.isEmpty() ? iconBasePath : colorIniFilePath;
    return path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
}

} // namespace Gallery
