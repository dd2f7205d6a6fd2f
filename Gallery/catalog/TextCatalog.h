#pragma once

#include "Gallery/catalog/Catalog.h"
#include "Gallery/catalog/TextTable.h"

#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <QVariantList>

#include <memory>

namespace Gallery
{

/// The texts of all languages. A worker thread reads them.
class TextCatalog : public Catalog
{
    Q_OBJECT

    Q_PROPERTY(QStringList languages READ languages NOTIFY languagesChanged)
    Q_PROPERTY(QStringList pseudoLanguages READ pseudoLanguages NOTIFY languagesChanged)
    /// Whether the page of the texts shows only those that at least one language misses.
    Q_PROPERTY(bool isMissingOnly MEMBER isMissingOnly NOTIFY choiceChanged)
    /// Whether that page shows the pseudo languages, too.
    Q_PROPERTY(bool hasPseudoColumns MEMBER hasPseudoColumns NOTIFY choiceChanged)

public:
    explicit TextCatalog(const TarnisUi& tarnisUi);

    /// Those of the directory, sorted.
    QStringList languages() const;

    /// Those that are made from the English texts: none without English texts.
    QStringList pseudoLanguages() const;

    /// What to call the language in a list of languages.
    Q_INVOKABLE QString label(const QString& language) const;

    /// Sorted. `search` is looked up in the texts of all languages, too.
    Q_INVOKABLE QStringList urls(const QString& search, bool missingOnly = false) const;

    /// A list of TextCell, in the order of the languages and then the pseudo languages; empty for an unknown URL.
    Q_INVOKABLE QVariantList cells(const QString& url) const;

    /// How many URLs there are.
    Q_INVOKABLE int count() const;

    /// How many texts are missing, counted in each language.
    Q_INVOKABLE int countMissing() const;

    /// How many texts are identical to the English ones.
    Q_INVOKABLE int countIdentical() const;

    /// Whether a change is still being read.
    bool isReading() const;

    /// What has been read last; never null.
    std::shared_ptr<const TextTable> table() const;

Q_SIGNALS:
    void languagesChanged();
    void choiceChanged();
    void tableRead(int number, const std::shared_ptr<const TextTable>& fresh); // from the worker thread

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;
    void take(int number, const std::shared_ptr<const TextTable>& fresh);
    int countCells(bool TextCell::*fact) const;
    bool isMissingInAnyLanguage(int index) const;

    QStringList languageNames;
    std::shared_ptr<const TextTable> texts; // never null
    int requested = 0;                      // number of the last reading
    int taken = 0;                          // number of the last reading whose result is here
    bool isMissingOnly = false;
    bool hasPseudoColumns = false;
    QThreadPool worker; // its destructor waits for the reading in progress
};

} // namespace Gallery

Q_DECLARE_METATYPE(std::shared_ptr<const Gallery::TextTable>)
