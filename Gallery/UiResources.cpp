#include "Gallery/UiResources.h"

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"

#include <QFileInfo>
#include <QtQml>

namespace
{

ServiceAnswers askService()
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

QString directoryOf(const ServiceAnswers& answers)
{
    const QString path = answers.colorIniFilePath.isEmpty() ? answers.iconBasePath : answers.colorIniFilePath;
    return path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
}

// The catalogue of texts is the host's own. This one finds it beside the colours.
QString textDirectory(const ServiceAnswers& answers)
{
    const QString directory = directoryOf(answers);
    return directory.isEmpty() ? QString() : directory + QStringLiteral("/texts");
}

QList<QPair<QSize, QString>> onlyDisplay(const QList<QPair<QSize, QString>>& displaySizes, const QSize& display)
{
    QList<QPair<QSize, QString>> only;
    for (const auto& displaySize : displaySizes) {
        if (!display.isValid() || displaySize.first == display)
            only.append(displaySize);
    }
    return only;
}

} // namespace

struct UiResources::Handlers {
    Handlers(const ServiceAnswers& serviceAnswers, const QString& language, const QSize& display)
        : answers(serviceAnswers)
        , textManager(textDirectory(answers), language)
        , colors(answers.colorIniFilePath)
        , fonts(answers.fontIniFilePath)
        , dimensions(std::make_unique<TarnisElementDimensionHandler>(onlyDisplay(answers.displaySizes, display)))
        , icons(answers.iconBasePath, answers.iconMappingTable)
        , texts(textManager)
    {
    }

    ServiceAnswers answers;
    TextManager textManager;
    TarnisColorHandler colors;
    TarnisFontHandler fonts;
    std::unique_ptr<TarnisElementDimensionHandler> dimensions;
    TarnisIconHandler icons;
    TarnisTextHandler texts; // after the text manager, which must outlive it
};

UiResources::UiResources(const QString& language)
    : handlers(std::make_unique<Handlers>(askService(), language, display))
{
}

UiResources::~UiResources() = default;

void UiResources::publish()
{
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Ui", this);
}

bool UiResources::reload(const std::function<bool(const ServiceAnswers&)>& accept)
{
    auto fresh = std::make_unique<Handlers>(askService(), textManager().getLanguageName(), display);
    if (!accept(fresh->answers))
        return false;
    handlers.swap(fresh); // QML lets go of the old handlers when it hears of the new ones
    Q_EMIT reloaded();
    return true;
}

void UiResources::setLanguage(const QString& name)
{
    handlers->textManager.setLanguage(name);
}

void UiResources::setDisplay(const QSize& size)
{
    display = size;
    auto fresh = std::make_unique<TarnisElementDimensionHandler>(onlyDisplay(handlers->answers.displaySizes, size));
    handlers->dimensions.swap(fresh);
    Q_EMIT reloaded();
}

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
    return handlers->dimensions.get();
}

TarnisTextHandler* UiResources::texts() const
{
    return &handlers->texts;
}

TarnisIconHandler* UiResources::icons() const
{
    return &handlers->icons;
}

const ServiceAnswers& UiResources::answers() const
{
    return handlers->answers;
}

const TextManager& UiResources::textManager() const
{
    return handlers->textManager;
}

QString UiResources::directory() const
{
    return directoryOf(handlers->answers);
}
