#include "Gallery/catalog/DimensionCatalog.h"

#include "Gallery/catalog/Entry.h"
#include "ResourceFormat/DisplaySize.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace Gallery
{

DimensionCatalog::DimensionCatalog(const TarnisUi& tarnisUi)
    : Catalog(tarnisUi)
{
    start();
}

QStringList DimensionCatalog::displays() const
{
    return displayNames;
}

QStringList DimensionCatalog::names(const QString& search) const
{
    QStringList all;
    for (const QVariantMap& values : valuesByDisplay)
        all += values.keys();
    all.removeDuplicates();
    all.sort();
    return all.filter(search, Qt::CaseInsensitive);
}

QVariant DimensionCatalog::value(const QString& display, const QString& name) const
{
    return valuesByDisplay.value(display).value(name);
}

QString DimensionCatalog::remark(const QString& display, const QString& name) const
{
    const auto index = displayNames.indexOf(display);
    return index < 0 ? QString() : outliers.remark(static_cast<int>(index), name);
}

QString DimensionCatalog::shownDisplay(TarnisElementDimensionHandler* handler) const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (handler == nullptr || screen == nullptr)
        return QString();
    const QSize size = handler->nearestNeighbourScreenSize(screen->geometry().size()).first;
    return size.isValid() ? ResourceFormat::DisplaySize::toName(size) : QString();
}

QSize DimensionCatalog::box(const QString& display, const QString& name) const
{
    static const QVector<QPair<QString, QString>> sides{{QStringLiteral("width"), QStringLiteral("height")},
                                                        {QStringLiteral("Width"), QStringLiteral("Height")}};
    for (const auto& [width, height] : sides) {
        if (name.endsWith(width))
            return {pixels(display, name), pixels(display, name.chopped(width.size()) + height)};
        if (name.endsWith(height))
            return {pixels(display, name.chopped(height.size()) + width), pixels(display, name)};
    }
    return {pixels(display, name), 0};
}

int DimensionCatalog::pixels(const QString& display, const QString& name) const
{
    return std::max(0, value(display, name).toInt());
}

bool DimensionCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.displaySizes == old.displaySizes)
        return false;
    displayNames.clear();
    valuesByDisplay.clear();
    QVector<QPair<QSize, DimensionOutliers::Values>> written;
    for (const auto& [size, path] : fresh.displaySizes.value) {
        const QString display = ResourceFormat::DisplaySize::toName(size);
        displayNames.append(display);
        const QVariantList entries = Entry::ofFile(path);
        written.append({size, {}});
        for (const QVariant& variant : entries) {
            const auto entry = variant.value<Entry>();
            valuesByDisplay[display].insert(entry.name(), entry.value);
            written.last().second.insert(entry.name(), entry.value);
        }
    }
    outliers = DimensionOutliers(written);
    return true;
}

} // namespace Gallery
