// The platform's catalogue of texts behind the installed headers: one language, and no other to fall back to.

#include "Common/TextTools/LanguageDefinitions.h"
#include "Common/TextTools/TextManager.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

const QString& LanguageDefinitions::getSecondFallbackLanguageFilename()
{
    static const QString filename("en.json");
    return filename;
}

TextManagerBase::~TextManagerBase() = default;

TextManager::TextManager(const QString& directory, const QString& language, QObject* parent)
    : TextManagerBase(parent)
    , directory(directory)
{
    load(language);
}

void TextManager::setLanguage(const QString& name)
{
    load(name);
    Q_EMIT languageReloaded();
}

QString TextManager::getLanguageName() const
{
    return language;
}

QList<QString> TextManager::getAvailableUrls(const QString& languageFilename) const
{
    return readCatalogue(languageFilename).urls;
}

QString TextManager::getText(const QString& url, const QString& /*languageName*/) const
{
    return catalogues.value(language).texts.value(url, url);
}

void TextManager::load(const QString& name)
{
    language = name;
    catalogues = {{name, readCatalogue(name + ".json")}};
}

TextManager::Catalogue TextManager::readCatalogue(const QString& filename) const
{
    Catalogue result;
    QFile file(directory + '/' + filename);
    if (!file.open(QIODevice::ReadOnly))
        return result;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    result.urls = object.keys();
    for (const QString& url : result.urls)
        result.texts.insert(url, object.value(url).toString());
    return result;
}
