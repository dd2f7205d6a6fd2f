#include "Gallery/catalog/DimensionCatalog.h"

#include "Gallery/catalog/Entry.h"
#include "ResourceFormat/DisplaySize.h"

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

bool DimensionCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.displaySizes == old.displaySizes)
        return false;
    displayNames.clear();
    valuesByDisplay.clear();
    for (const auto& [size, path] : fresh.displaySizes.value) {
        const QString display = ResourceFormat::DisplaySize::toName(size);
        displayNames.append(display);
        const QVariantList entries = Entry::ofFile(path);
        for (const QVariant& variant : entries) {
            const auto entry = variant.value<Entry>();
            valuesByDisplay[display].insert(entry.name(), entry.value);
        }
    }
    return true;
}

} // namespace Gallery
