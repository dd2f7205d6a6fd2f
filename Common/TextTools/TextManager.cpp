#include "Common/TextTools/TextManager.h"

#include "Common/FileTools/RegularFile.h"
#include "Common/TextTools/LanguageDefinitions.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

namespace
{

Q_LOGGING_CATEGORY(platformText, "platform.text")

// The files in which a text of the language is looked for, in this order.
QStringList fallbackFilenames(const QString& language)
{
    const QString extension = QStringLiteral(".json");
    QStringList filenames(language + extension);
    const int territory = language.indexOf(QLatin1Char('_'));
    if (territory >= 0)
        filenames.append(language.left(territory) + extension);
    filenames.append(LanguageDefinitions::getSecondFallbackLanguageFilename());
    return filenames;
}

void warnOfSyntax(const QString& path, const QByteArray& content, const QJsonParseError& error)
{
    const QByteArray before = content.left(error.offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    qCWarning(platformText).noquote().nospace() << path << ':' << line << ':' << column << ": " << error.errorString();
}

} // namespace

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
    return catalogue(languageFilename).urls;
}

QString TextManager::getText(const QString& url, const QString& languageName) const
{
    for (const Catalogue& catalogue : fallbackChain(languageName).catalogues) {
        const auto text = catalogue.texts.constFind(url);
        if (text != catalogue.texts.constEnd())
            return *text;
    }
    return url;
}

void TextManager::load(const QString& name)
{
    language = name;
    catalogues.clear();
    lastChain = FallbackChain();
    fallbackChain(name);
}

const TextManager::FallbackChain& TextManager::fallbackChain(const QString& languageName) const
{
    if (lastChain.catalogues.isEmpty() || lastChain.language != languageName) {
        // Reading may log, and the message handler may ask for a text of another language.
        FallbackChain chain{languageName, {}};
        for (const QString& filename : fallbackFilenames(languageName))
            chain.catalogues.append(catalogue(filename));
        lastChain = chain;
    }
    return lastChain;
}

const TextManager::Catalogue& TextManager::catalogue(const QString& filename) const
{
    auto found = catalogues.find(filename);
    if (found == catalogues.end())
        found = catalogues.insert(filename, readCatalogue(filename));
    return *found;
}

TextManager::Catalogue TextManager::readCatalogue(const QString& filename) const
{
    Catalogue result;
    const QString path = QDir(directory).filePath(filename);
    QString reason;
    const QByteArray content = RegularFile::readAll(path, reason);
    if (!reason.isNull()) {
        qCWarning(platformText).noquote().nospace() << "Cannot read \"" << path << "\": " << reason;
        return result;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError)
        warnOfSyntax(path, content, error);
    else if (!document.isObject())
        qCWarning(platformText).noquote().nospace() << path << ": not a JSON object";
    const QJsonObject object = document.object();
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString url = member.key();
        const QJsonValue text = member.value();
        if (text.isString())
            result.texts.insert(url, text.toString());
        else
            qCWarning(platformText).noquote().nospace() << path << ": \"" << url << "\" is not a string";
    }
    // Not from the object: it may hold a name twice, with and without a byte-order mark in front.
    result.urls = result.texts.keys();
    result.urls.sort();
    return result;
}
