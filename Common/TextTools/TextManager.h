#pragma once

#include "Common/TextTools/TextManagerBase.h"

#include <memory>

/// The text catalog of a directory of `LANGUAGE.json` files, each one flat object of text URL to text.
///
/// Languages have locale names (`en`, `de`, `de_AT`). Each file is read when it is first needed, and again after
/// setLanguage(). A file that cannot be read or is not a JSON object, and each member that is not a string, is logged
/// as one warning in the category `platform.text`. Good members are kept.
class Q_DECL_EXPORT TextManager : public TextManagerBase
{
    Q_OBJECT

public:
    /// Reads the language and its fallbacks. `directory` is the one that contains the files; an empty path contains
    /// none.
    TextManager(const QString& directory, const QString& language, QObject* parent = nullptr);
    ~TextManager() override;

    /// Reads the language and its fallbacks again, then emits languageReloaded(), also if the name is the current one.
    void setLanguage(const QString& name);

    QString getLanguageName() const override;

    /// Sorted; empty if the file cannot be read.
    QList<QString> getAvailableUrls(const QString& languageFilename) const override;

    /// The text in that language, otherwise in the language without its territory, otherwise in the second fallback
    /// language, otherwise the URL itself, so that a missing text is visible.
    QString getText(const QString& url, const QString& languageName) const override;

private:
    class Private;

    std::unique_ptr<Private> d;
};
