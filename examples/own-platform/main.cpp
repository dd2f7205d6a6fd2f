// A host whose platform has its own implementation of the classes that the library needs: the other sources here.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const TarnisDeviceUiResourcesDBusConnector resources;
    const TarnisIconProviderDBusConnector iconProvider;
    const QString colorIniFilePath = resources.getColorIniFilePath();
    const TextManager textManager(QFileInfo(colorIniFilePath).path() + "/texts", "de");

    const TarnisColorHandler colors(colorIniFilePath);
    const TarnisFontHandler fonts(resources.getFontIniFilePath());
    const TarnisElementDimensionHandler dimensions(resources.getSupportedDisplaySizes());
    const TarnisTextHandler texts(textManager);
    const TarnisIconHandler icons(iconProvider.getIconResourcesBasePath(),
                                  iconProvider.getIconResourcesMappingTable(QString()));

    QTextStream(stdout) << colors.getColor("Day", "Text") << '\n'
                        << fonts.getFontFamily("Text") << '\n'
                        << dimensions.uiElementDimensions().value("Button/height").toInt() << '\n'
                        << texts.translatedTexts().value("text://Button/Cancel").toString() << '\n'
                        << icons.getIconPath("home", "nightMode") << '\n';
}
