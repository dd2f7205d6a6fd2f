#pragma once

#include "Gallery/catalog/Catalog.h"
#include "Gallery/catalog/TextCatalog.h"

#include <QHash>
#include <QString>
#include <QVariantList>

namespace Gallery
{

/// The sizes of the font file, and what its families draw. Also changes when the texts do.
class FontCatalog : public Catalog
{
    Q_OBJECT

    /// The text that the user has written to see it in every size; empty at first.
    Q_PROPERTY(QString sample MEMBER sample NOTIFY sampleChanged)
    /// Whether the page shows all characters that a family lacks instead of the first ones.
    Q_PROPERTY(bool showsAllMissing MEMBER showsAllMissing NOTIFY sampleChanged)

public:
    /// The texts must outlive the fonts.
    FontCatalog(const TarnisUi& tarnisUi, const TextCatalog& textCatalog);

    /// A list of Entry whose values are pixels, in the order of the file, without the font families.
    Q_INVOKABLE QVariantList entries(const QString& search) const;

    /// The font family that is drawn for this one: itself if it is installed.
    Q_INVOKABLE QString usedFamily(const QString& family) const;

    /// A list of GlyphCoverage, one for each language of the directory. It is found once and then remembered until the
    /// texts change.
    Q_INVOKABLE QVariantList coverage(const QString& family) const;

    /// A text of the directory in this language with many different letters.
    Q_INVOKABLE QString defaultSample(const QString& language) const;

Q_SIGNALS:
    void sampleChanged();

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;

    const TextCatalog& texts;
    QVariantList all;
    QString sample;
    bool showsAllMissing = false;
    mutable QHash<QString, QVariantList> coverages; // by family
};

} // namespace Gallery
