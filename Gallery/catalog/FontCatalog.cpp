#include "Gallery/catalog/FontCatalog.h"

#include "Gallery/catalog/Entry.h"
#include "Gallery/catalog/GlyphCoverage.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>

namespace Gallery
{

FontCatalog::FontCatalog(const TarnisUi& tarnisUi, const TextCatalog& textCatalog)
    : Catalog(tarnisUi)
    , texts(textCatalog)
{
    connect(&texts, &Catalog::changed, this, [this] {
        coverages.clear();
        announce();
    });
    start();
}

QVariantList FontCatalog::entries(const QString& search) const
{
    return Entry::matching(all, search);
}

QString FontCatalog::usedFamily(const QString& family) const
{
    const bool isInstalled = QFontDatabase().families().contains(family, Qt::CaseInsensitive);
    return isInstalled ? family : QFontInfo(QFont(family)).family();
}

QVariantList FontCatalog::coverage(const QString& family) const
{
    const auto known = coverages.constFind(family);
    if (known != coverages.constEnd())
        return *known;
    QVariantList list;
    const QRawFont rawFont = GlyphCoverage::rawFont(family);
    for (const TextColumn& column : texts.table().columns) {
        if (texts.languages().contains(column.language))
            list.append(QVariant::fromValue(GlyphCoverage::of(rawFont, column)));
    }
    coverages.insert(family, list);
    return list;
}

QString FontCatalog::defaultSample(const QString& language) const
{
    const TextColumn* const column = texts.table().column(language);
    return column == nullptr ? QStringLiteral("0123456789") : column->sample;
}

bool FontCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.fontFile == old.fontFile)
        return false;
    all = Entry::ofFile(fresh.fontFile.value);
    const auto isFamily = [](const QVariant& entry) {
        return entry.value<Entry>().key == TarnisFontHandler::familyKey;
    };
    all.erase(std::remove_if(all.begin(), all.end(), isFamily), all.end());
    return true;
}

} // namespace Gallery
