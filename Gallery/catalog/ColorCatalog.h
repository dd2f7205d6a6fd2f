#pragma once

#include "Gallery/catalog/Catalog.h"

#include <QString>
#include <QVariantList>

namespace Gallery
{

/// The colors of the color file.
class ColorCatalog : public Catalog
{
    Q_OBJECT

public:
    explicit ColorCatalog(const TarnisUi& tarnisUi);

    /// A list of Entry, in the order of the file.
    Q_INVOKABLE QVariantList entries(const QString& search) const;

    /// Whether QML accepts the text as a color.
    Q_INVOKABLE bool isColor(const QString& text) const;

    /// The contrast ratio of WCAG 2, from 1 to 21; 0 if one of the texts is not a color.
    Q_INVOKABLE double contrast(const QString& text, const QString& background) const;

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;

    QVariantList all;
};

} // namespace Gallery
