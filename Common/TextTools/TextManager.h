#pragma once

#include "Common/TextTools/TextManagerBase.h"

#include <QHash>
#include <QStringList>
#include <QVector>

/// The text catalogue of a directory of `LANGUAGE.json` files, each one flat object of text URL to text.
///
/// A language is named like a locale (`en`, `de`, `de_AT`). Each file is read when it is first asked for, and again
/// after setLanguage(). A file that cannot be read or is no JSON object, and each member that is no string, is logged
/// as one warning in the category `platform.text`; the good members are kept.
class Q_DECL_EXPORT TextManager : public TextManagerBase
{
    Q_OBJECT

public:
    /// Reads the language and its fall-backs from `directory`, the one that holds the files.
    TextManager(const QString& directory, const QString& language, QObject* parent = nullptr);

    /// Reads the language and its fall-backs anew, then emits languageReloaded(); also when the name is the current
    /// one.
    void setLanguage(const QString& name);

    QString getLanguageName() const override;

    /// Sorted; empty when the file cannot be read.
    QList<QString> getAvailableUrls(const QString& languageFilename) const override;

    /// The text in that language, else in the language without its territory, else in the second fall-back language,
    /// else the URL itself, so that a missing text is seen.
    QString getText(const QString& url, const QString& languageName) const override;

private:
    struct Catalogue {
        QStringList urls; // sorted
        QHash<QString, QString> texts;
    };

    /// The catalogues in which a text of the language is looked for, in this order.
    struct FallbackChain {
        QString language;
        QVector<Catalogue> catalogues;
    };

    void load(const QString& name);
    const Catalogue& catalogue(const QString& filename) const;
    Catalogue readCatalogue(const QString& filename) const;
    const FallbackChain& fallbackChain(const QString& languageName) const;

    QString directory;
    QString language;
    mutable QHash<QString, Catalogue> catalogues;
    mutable FallbackChain lastChain; // texts are asked for one language at a time
};
