// The platform's text catalog behind the installed headers: one language without fallbacks.

#include "Common/TextTools/LanguageDefinitions.h"
#include "Common/TextTools/TextManager.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

class TextManager::Private
{
public:
    QJsonObject read(const QString& filename) const
    {
        QFile file(directory + '/' + filename);
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    }

    void load(const QString& name)
    {
        language = name;
        texts = read(name + ".json");
    }

    QString directory;
    QString language;
    QJsonObject texts;
};

const QString& LanguageDefinitions::getSecondFallbackLanguageFilename()
{
    static const QString filename("en.json");
    return filename;
}

TextManagerBase::~TextManagerBase() = default;

TextManager::TextManager(const QString& directory, const QString& language, QObject* parent)
    : TextManagerBase(parent)
    , d(new Private{directory, language, {}})
{
    d->load(language);
}

TextManager::~TextManager() = default;

void TextManager::setLanguage(const QString& name)
{
    d->load(name);
    Q_EMIT languageReloaded();
}

QString TextManager::getLanguageName() const
{
    return d->language;
}

QList<QString> TextManager::getAvailableUrls(const QString& languageFilename) const
{
    return d->read(languageFilename).keys();
}

QString TextManager::getText(const QString& url, const QString& /*languageName*/) const
{
    return d->texts.value(url).toString(url);
}
