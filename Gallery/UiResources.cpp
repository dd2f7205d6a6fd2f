#include "Gallery/UiResources.h"

#include "ResourceFormat/Directory.h"

namespace Gallery
{

namespace
{

// The service does not publish the texts: a host finds them itself, here beside the colors.
QString textDirectory(const ServiceAnswers& answers)
{
    const QString directory = answers.directory();
    return directory.isEmpty() ? QString() : ResourceFormat::Directory(directory).textFolder();
}

QList<QPair<QSize, QString>> onlyDisplay(const QList<QPair<QSize, QString>>& displaySizes, const QSize& size)
{
    QList<QPair<QSize, QString>> only;
    for (const auto& displaySize : displaySizes) {
        if (!size.isValid() || displaySize.first == size)
            only.append(displaySize);
    }
    return only;
}

} // namespace

struct UiResources::Handlers {
    Handlers(const ServiceAnswers& serviceAnswers, const QString& language, const QSize& displaySize)
        : answers(serviceAnswers)
        , textManager(textDirectory(answers), language)
        , colors(answers.colorIniFilePath)
        , fonts(answers.fontIniFilePath)
        , dimensions(std::make_unique<TarnisElementDimensionHandler>(onlyDisplay(answers.displaySizes, displaySize)))
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
    : handlers(std::make_unique<Handlers>(ServiceAnswers::ask(), language, onlyDisplaySize))
{
}

UiResources::~UiResources() = default;

bool UiResources::reload(const std::function<bool(const ServiceAnswers&)>& accept)
{
    auto fresh = std::make_unique<Handlers>(ServiceAnswers::ask(), textManager().getLanguageName(), onlyDisplaySize);
    if (!accept(fresh->answers))
        return false;
    handlers.swap(fresh); // the old handlers live until QML has taken the new ones
    Q_EMIT reloaded();
    return true;
}

void UiResources::setLanguage(const QString& name)
{
    handlers->textManager.setLanguage(name);
}

QSize UiResources::displaySize() const
{
    return onlyDisplaySize;
}

void UiResources::setDisplaySize(const QSize& size)
{
    onlyDisplaySize = size;
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

} // namespace Gallery
