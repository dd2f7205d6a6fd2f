#include "Gallery/catalog/ColorCatalog.h"

#include "Gallery/catalog/Entry.h"
#include "ResourceFormat/Contrast.h"

#include <QColor>

namespace Gallery
{

ColorCatalog::ColorCatalog(const TarnisUi& tarnisUi)
    : Catalog(tarnisUi)
{
    start();
}

QVariantList ColorCatalog::entries(const QString& search) const
{
    return Entry::matching(all, search);
}

bool ColorCatalog::isColor(const QString& text) const
{
    return QColor::isValidColor(text);
}

double ColorCatalog::contrast(const QString& text, const QString& background) const
{
    if (!isColor(text) || !isColor(background))
        return 0;
    return ResourceFormat::Contrast::ratio(QColor(text), QColor(background));
}

bool ColorCatalog::update(const QmlHost::Answers& old, const QmlHost::Answers& fresh)
{
    if (fresh.colorFile == old.colorFile)
        return false;
    all = Entry::ofFile(fresh.colorFile.value);
    return true;
}

} // namespace Gallery
