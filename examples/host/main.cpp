// A complete host: it asks the service where the resources lie, and offers them to QML as the singleton Ui of the
// module Tarnis, which is what Qt Creator and qmllint know from the installed types.

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
    // Each call to the service blocks for 5 s at the most; what fails is said in the log.
    Ui(const TarnisDeviceUiResourcesDBusConnector& resources, const TarnisIconProviderDBusConnector& iconProvider)
        : colorIniFilePath(resources.getColorIniFilePath())
        , colors(colorIniFilePath)
        , fonts(resources.getFontIniFilePath())
        , dimensions(resources.getSupportedDisplaySizes())
        , icons(iconProvider.getIconResourcesBasePath(), iconProvider.getIconResourcesMappingTable(QString()))
        // The catalogue of texts is the host's own. The sample's lies beside the colours.
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
    TarnisTextHandler texts; // after the text manager, which must outlive it
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
