// A complete host. It asks the service where the resources are and offers the handlers to QML as the singleton Ui of
// the module Tarnis. Qt Creator and qmllint know this singleton from the installed types.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QtQml>

class Ui : public QObject
{
    Q_OBJECT

    Q_PROPERTY(TarnisColorHandler* colors READ getColors CONSTANT)
    Q_PROPERTY(TarnisFontHandler* fonts READ getFonts CONSTANT)
    Q_PROPERTY(TarnisElementDimensionHandler* dimensions READ getDimensions CONSTANT)
    Q_PROPERTY(TarnisTextHandler* texts READ getTexts CONSTANT)
    Q_PROPERTY(TarnisIconHandler* icons READ getIcons CONSTANT)

public:
    // Each call to the service blocks for at most 5 s. Failed calls are logged.
    Ui(const TarnisDeviceUiResourcesDBusConnector& resources, const TarnisIconProviderDBusConnector& iconProvider)
        : colorIniFilePath(resources.getColorIniFilePath())
        , colors(colorIniFilePath)
        , fonts(resources.getFontIniFilePath())
        , dimensions(resources.getSupportedDisplaySizes())
        , icons(iconProvider.getIconResourcesBasePath(), iconProvider.getIconResourcesMappingTable(QString()))
        // The service does not publish texts. In the sample, their directory is next to the color file.
        , textManager(QFileInfo(colorIniFilePath).path() + "/texts", "en")
        , texts(textManager)
    {
    }

    TarnisColorHandler* getColors() { return &colors; }
    TarnisFontHandler* getFonts() { return &fonts; }
    TarnisElementDimensionHandler* getDimensions() { return &dimensions; }
    TarnisTextHandler* getTexts() { return &texts; }
    TarnisIconHandler* getIcons() { return &icons; }

private:
    QString colorIniFilePath;
    TarnisColorHandler colors;
    TarnisFontHandler fonts;
    TarnisElementDimensionHandler dimensions;
    TarnisIconHandler icons;
    TextManager textManager;
    TarnisTextHandler texts; // declared after the text manager, which must outlive it
};

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    const TarnisDeviceUiResourcesDBusConnector resources;
    const TarnisIconProviderDBusConnector iconProvider;
    Ui ui(resources, iconProvider);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Ui", &ui);
    const QQmlApplicationEngine engine(QUrl("qrc:/main.qml"));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}

#include "main.moc"
