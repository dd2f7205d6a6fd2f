#pragma once

#include "Common/TextTools/TextManager.h"
#include "Gallery/catalog/Catalog.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace Gallery
{

/// The texts of all languages.
class TextCatalog : public Catalog
{
    Q_OBJECT

public:
    explicit TextCatalog(const TarnisUi& tarnisUi);

    /// URLs of the second fallback language, sorted. `search` is looked up in the texts of all languages, too.
    Q_INVOKABLE QStringList urls(const QString& search) const;

    /// The text that is shown in this language.
    Q_INVOKABLE QString text(const QString& url, const QString& language) const;

    /// Whether neither the language nor the one that it is a variant of has the text.
    Q_INVOKABLE bool isMissing(const QString& url, const QString& language) const;

private:
    bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) override;
    QStringList urlsOf(const QString& language) const;

    QStringList languages;
    std::unique_ptr<TextManager> textManager; // null without texts
};

} // namespace Gallery
