#pragma once

#include "Gallery/catalog/Catalog.h"

#include <QString>
#include <QVariantList>

namespace Gallery
{

/// The sizes of the font file.
class FontCatalog : public Catalog
{
    Q_OBJECT

public:
    explicit FontCatalog(const TarnisUi& tarnisUi);

    /// A list of Entry whose values are pixels, in the order of the file, without the font families.
    Q_INVOKABLE QVariantList entries(const QString& search) const;

    /// The font family that is drawn for this one: itself if it is installed.
    Q_INVOKABLE QString usedFamily(const QString& family) const;

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;

    QVariantList all;
};

} // namespace Gallery
