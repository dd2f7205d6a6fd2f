#include "Gallery/UiResources.h"

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include <QFileInfo>

namespace
{

// What the service says. No handler asks it anything later.
struct Answers {
    QString colorIniFilePath;
    QString fontIniFilePath;
    QList<QPair<QSize, QString>> displaySizes;
    QString iconBasePath;
    QString iconMappingTable;
    QString problem;
};

Answers askService()
{
    Answers answers;
    const TarnisDeviceUiResourcesDBusConnector deviceUiResources;
    const TarnisIconProviderDBusConnector iconProvider;
    const auto noteProblem = [&answers] {
        answers.problem = QStringLiteral("The service Module.Tarnis cannot be reached on the system bus. "
                                         "Start tarnis-module, then ask again.");
    };
    QObject::connect(&deviceUiResources, &DBusConnectorBase::dBusConnectionError, noteProblem);
    QObject::connect(&iconProvider, &DBusConnectorBase::dBusConnectionError, noteProblem);
    answers.colorIniFilePath = deviceUiResources.getColorIniFilePath();
    answers.fontIniFilePath = deviceUiResources.getFontIniFilePath();
    answers.displaySizes = deviceUiResources.getSupportedDisplaySizes();
    answers.iconBasePath = iconProvider.getIconResourcesBasePath();
    answers.iconMappingTable = iconProvider.getIconResourcesMappingTable(QString());
    return answers;
}

// The catalogue of texts belongs to the host. This one finds it beside the colours.
QString textDirectory(const Answers& answers)
{
    if (answers.colorIniFilePath.isEmpty())
        return QString();
    return QFileInfo(answers.colorIniFilePath).absolutePath() + QStringLiteral("/texts");
}

} // namespace

struct UiResources::Handlers {
    Handlers(const Answers& serviceAnswers, const QString& language)
        : answers(serviceAnswers)
        , textManager(textDirectory(answers), language)
        , colors(answers.colorIniFilePath)
        , fonts(answers.fontIniFilePath)
        , dimensions(answers.displaySizes)
        , icons(answers.iconBasePath, answers.iconMappingTable)
        , texts(textManager)
    {
    }

    Answers answers;
    TextManager textManager;
    TarnisColorHandler colors;
    TarnisFontHandler fonts;
    TarnisElementDimensionHandler dimensions;
    TarnisIconHandler icons;
    TarnisTextHandler texts; // after the text manager, which must outlive it
};

UiResources::UiResources(const QString& language)
    : language(language)
    , handlers(std::make_unique<Handlers>(askService(), language))
{
}

UiResources::~UiResources() = default;

TarnisColorHandler* UiResources::colors() const
{
    return &handlers->colors;
}

TarnisFontHandler* UiResources::fonts() const
{
    return &handlers->fonts;
}

TarnisElementDimensionHandler* UiResources::dimensions() const
{
    return &handlers->dimensions;
}

TarnisTextHandler* UiResources::texts() const
{
    return &handlers->texts;
}

TarnisIconHandler* UiResources::icons() const
{
    return &handlers->icons;
}

QString UiResources::problem() const
{
    return handlers->answers.problem;
}

QString UiResources::colorIniFilePath() const
{
    return handlers->answers.colorIniFilePath;
}

QString UiResources::fontIniFilePath() const
{
    return handlers->answers.fontIniFilePath;
}

QString UiResources::iconMappingTable() const
{
    return handlers->answers.iconMappingTable;
}

void UiResources::reload()
{
    // QML lets go of the old handlers when it hears of the new ones.
    const std::unique_ptr<Handlers> old = std::exchange(handlers, std::make_unique<Handlers>(askService(), language));
    Q_EMIT reloaded();
}
