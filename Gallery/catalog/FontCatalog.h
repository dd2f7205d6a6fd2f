#pragma once

#include "Gallery/catalog/Catalog.h"
#include "Gallery/catalog/TextCatalog.h"

#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <QVariantList>
#include <QVariantMap>

namespace Gallery
{

/// The sizes of the font file, and what its families draw. Also changes when the texts do.
class FontCatalog : public Catalog
{
    Q_OBJECT

    /// The text that the user has written to see it in every size; empty at first.
    Q_PROPERTY(QString sample MEMBER sample NOTIFY sampleChanged)
    /// Whether the page shows many of the characters that a family lacks instead of a few.
    Q_PROPERTY(bool showsManyMissing MEMBER showsManyMissing NOTIFY sampleChanged)
    /// A map from the name of each family of the file to a list of GlyphCoverage, one for each language of the
    /// directory. A worker thread makes the lists; a family is left out until its list is there.
    Q_PROPERTY(QVariantMap coverage READ coverage NOTIFY coverageChanged)

public:
    /// The texts must outlive the fonts.
    FontCatalog(const TarnisUi& tarnisUi, const TextCatalog& textCatalog);

    /// A list of Entry whose values are pixels, in the order of the file, without the font families.
    Q_INVOKABLE QVariantList entries(const QString& search) const;

    /// The font family that is drawn for this one: itself if it is installed.
    Q_INVOKABLE QString usedFamily(const QString& family) const;

    QVariantMap coverage() const;

    /// Whether the worker thread is busy.
    bool isReading() const;

    /// A text of the directory in this language with many different letters.
    Q_INVOKABLE QString defaultSample(const QString& language) const;

Q_SIGNALS:
    void sampleChanged();
    void coverageChanged();
    void coverageFound(int number, const QVariantMap& fresh); // from the worker thread

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;

    void findCoverage();
    void takeCoverage(int number, const QVariantMap& fresh);

    const TextCatalog& texts;
    QVariantList all;
    QStringList families;
    QString sample;
    bool showsManyMissing = false;
    QVariantMap coverages;
    int requested = 0;  // number of the last search for coverage
    int taken = 0;      // number of the last one whose result is here
    QThreadPool worker; // its destructor waits for the search in progress
};

} // namespace Gallery
