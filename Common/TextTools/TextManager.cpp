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
    return catalogue(languageFilename).keys();
}

QString TextManager::getText(const QString& url, const QString& languageName) const
{
    for (const QString& filename : fallbackFilenames(languageName)) {
        const Catalogue& texts = catalogue(filename);
        const auto text = texts.constFind(url);
        if (text != texts.constEnd())
            return *text;
    }
    return url;
}

void TextManager::load(const QString& name)
{
    language = name;
    catalogues.clear();
    for (const QString& filename : fallbackFilenames(name))
        catalogue(filename);
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
    Catalogue texts;
    const QString path = QDir(directory).filePath(filename);
    QString reason;
    const QByteArray content = RegularFile::readAll(path, reason);
    if (!reason.isNull()) {
        qCWarning(platformText).noquote().nospace() << "Cannot read \"" << path << "\": " << reason;
        return texts;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError)
        warnOfSyntax(path, content, error);
    else if (!document.isObject())
        qCWarning(platformText).noquote().nospace() << path << ": not a JSON object";
    const QJsonObject object = document.object();
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member->isString())
            texts.insert(member.key(), member->toString());
        else
            qCWarning(platformText).noquote().nospace() << path << ": \"" << member.key() << "\" is not a string";
    }
    return texts;
}
