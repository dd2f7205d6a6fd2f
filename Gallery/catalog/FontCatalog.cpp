#include "Gallery/catalog/FontCatalog.h"

#include "Gallery/catalog/Entry.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>

namespace Gallery
{

FontCatalog::FontCatalog(const TarnisUi& tarnisUi)
    : Catalog(tarnisUi)
{
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
