#pragma once

#include <QList>
#include <QObject>
#include <QString>

/// A text catalog: texts by URL, in several languages.
class Q_DECL_EXPORT TextManagerBase : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~TextManagerBase() override;

    /// The name of the current language.
    virtual QString getLanguageName() const = 0;

    /// The text URLs in the language file with this name.
    virtual QList<QString> getAvailableUrls(const QString& languageFilename) const = 0;

    /// The text of the URL in the language, or its substitute.
    virtual QString getText(const QString& url, const QString& languageName) const = 0;

Q_SIGNALS:
    /// The current language has been reloaded.
    void languageReloaded();
};
