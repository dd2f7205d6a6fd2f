#include "Gallery/catalog/FontCatalog.h"

#include "Gallery/catalog/Entry.h"
#include "Gallery/catalog/GlyphCoverage.h"
#include "Gallery/compare/Pictures.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <algorithm>

namespace Gallery
{

FontCatalog::FontCatalog(const TarnisUi& tarnisUi, const TextCatalog& textCatalog)
    : Catalog(tarnisUi)
    , texts(textCatalog)
{
    worker.setMaxThreadCount(1);
    connect(&texts, &Catalog::changed, this, &FontCatalog::findCoverage);
    connect(this, &FontCatalog::coverageFound, this, &FontCatalog::takeCoverage, Qt::QueuedConnection);
    start();
}

QVariantList FontCatalog::entries(const QString& search) const
{
    return Entry::matching(all, search);
}

QString FontCatalog::usedFamily(const QString& family) const
{
    return Pictures::usedFamily(family);
}

QVariantMap FontCatalog::coverage() const
{
    return coverages;
}

bool FontCatalog::isReading() const
{
    return taken != requested;
}

QString FontCatalog::defaultSample(const QString& language) const
{
    const TextColumn* const column = texts.table()->column(language);
    return column == nullptr ? QStringLiteral("0123456789") : column->sample;
}

bool FontCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.fontFile == old.fontFile)
        return false;
    families.clear();
    all.clear();
    for (const QVariant& entry : Entry::ofFile(fresh.fontFile.value)) {
        if (entry.value<Entry>().key == TarnisFontHandler::familyKey)
            families.append(entry.value<Entry>().value);
        else
            all.append(entry);
    }
    families.removeDuplicates();
    findCoverage();
    return true;
}

void FontCatalog::findCoverage()
{
    worker.clear();
    const auto find = [this, number = ++requested, names = families, table = texts.table(),
                       languages = texts.languages()] {
        QVariantMap fresh;
        for (const QString& family : names) {
            const QRawFont rawFont = GlyphCoverage::rawFont(family);
            QVariantList list;
            for (const TextColumn& column : table->columns) {
                if (languages.contains(column.language))
                    list.append(QVariant::fromValue(GlyphCoverage::of(rawFont, column)));
            }
            fresh.insert(family, list);
        }
        Q_EMIT coverageFound(number, fresh);
    };
    worker.start(find);
}

void FontCatalog::takeCoverage(int number, const QVariantMap& fresh)
{
    taken = number;
    coverages = fresh;
    Q_EMIT coverageChanged();
}

} // namespace Gallery
