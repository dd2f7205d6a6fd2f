#include "Common/TextTools/TextManager.h"

#include "ResourceFormat/Language.h"
#include "ResourceFormat/RegularFile.h"

#include <QDir>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QVector>

namespace
{

Q_LOGGING_CATEGORY(platformText, "platform.text")

struct Catalog {
    QStringList urls; // sorted
    QHash<QString, QString> texts;
};

void warnOfSyntax(const QString& path, const QByteArray& content, const QJsonParseError& error)
{
    const QByteArray before = content.left(error.offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    qCWarning(platformText).noquote().nospace() << path << ':' << line << ':' << column << ": " << error.errorString();
}

// Empty, and logged, if the file is not a JSON object.
QJsonObject readObject(const QString& path)
{
    QString reason;
    const QByteArray content = ResourceFormat::RegularFile::readAll(path, reason);
    if (!reason.isNull()) {
        qCWarning(platformText).noquote().nospace() << "Cannot read \"" << path << "\": " << reason;
        return QJsonObject();
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError)
        warnOfSyntax(path, content, error);
    else if (!document.isObject())
        qCWarning(platformText).noquote().nospace() << path << ": not a JSON object";
    return document.object();
}

Catalog readCatalog(const QString& path)
{
    Catalog catalog;
    const QJsonObject object = readObject(path);
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString url = member.key();
        const QJsonValue text = member.value();
        if (text.isString())
            catalog.texts.insert(url, text.toString());
        else
            qCWarning(platformText).noquote().nospace() << path << ": \"" << url << "\" is not a string";
    }
    // Not from the object: it may contain a name twice, with and without a byte-order mark.
    catalog.urls = catalog.texts.keys();
    catalog.urls.sort();
    return catalog;
}

} // namespace

class TextManager::Private
{
public:
    explicit Private(const QString& path)
        : directoryPath(path)
    {
    }

    void load(const QString& name)
    {
        language = name;
        catalogs.clear();
        lastChain = Chain();
        chain(name);
    }

    const Catalog& catalog(const QString& fileName)
    {
        auto found = catalogs.find(fileName);
        if (found == catalogs.end())
            found = catalogs.insert(fileName, readCatalog(pathOf(fileName)));
        return *found;
    }

    // The catalogs in which a text of the language is looked up, in this order.
    const QVector<Catalog>& chain(const QString& languageName)
    {
        if (lastChain.catalogs.isEmpty() || lastChain.language != languageName) {
            // Reading may log, and the message handler may ask for a text of another language.
            Chain fresh{languageName, {}};
            for (const QString& name : ResourceFormat::Language::fallbackChain(languageName))
                fresh.catalogs.append(catalog(ResourceFormat::Language::fileName(name)));
            lastChain = fresh;
        }
        return lastChain.catalogs;
    }

    QString language;

private:
    // Empty without a directory: a relative path would start at the working directory.
    QString pathOf(const QString& fileName) const
    {
        return directoryPath.isEmpty() ? QString() : QDir(directoryPath).filePath(fileName);
    }

    struct Chain {
        QString language;
        QVector<Catalog> catalogs;
    };

    const QString directoryPath;
    QHash<QString, Catalog> catalogs; // by file name
    Chain lastChain;                  // callers ask for many texts of one language
};

TextManager::TextManager(const QString& directory, const QString& language, QObject* parent)
    : TextManagerBase(parent)
    , d(std::make_unique<Private>(directory))
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
    return d->catalog(languageFilename).urls;
}

QString TextManager::getText(const QString& url, const QString& languageName) const
{
    for (const Catalog& catalog : d->chain(languageName)) {
        const auto text = catalog.texts.constFind(url);
        if (text != catalog.texts.constEnd())
            return *text;
    }
    return url;
}
