#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QStringBuilder>

const QString TarnisIconHandler::defaultContextPathKey = QStringLiteral("defaultContext");

TarnisIconHandler::TarnisIconHandler(const QString& iconBasePath, const QString& mappingTable, QObject* parent)
    : QObject(parent)
    , iconBaseDirectory(QString())
{
    // QDir alone would keep one of several slashes at the end of the path.
    if (QDir(iconBasePath).exists())
        iconBaseDirectory = QDir(QDir::cleanPath(iconBasePath));
    else
        qWarning() << "Unable to create object icon base path directory does not exist";
    iconMap = parseMappingTable(mappingTable);
}

QString TarnisIconHandler::getIconPath(const QString& aliasName, const QString& context) const
{
    if (aliasName.isEmpty())
        return QString();
    const auto contexts = iconMap.constFind(aliasName);
    if (contexts == iconMap.constEnd()) {
        qWarning() << "Unknown alias name (" << aliasName << ")";
        return QString();
    }
    const auto relativePath = findContext(*contexts, context);
    if (relativePath == contexts->constEnd()) {
        qWarning() << "Unknown context (" << defaultContextPathKey << ")";
        return QString();
    }
    QString path = iconBaseDirectory.absolutePath() % QLatin1Char('/') % *relativePath;
    if (!QFile::exists(path)) {
        qWarning() << "Icon file" << path << "does not exist";
        return QString();
    }
    return path;
}

QString TarnisIconHandler::getIconPathAsFileUrl(const QString& aliasName, const QString& context) const
{
    const QString path = getIconPath(aliasName, context);
    return path.isEmpty() ? path : QStringLiteral("file:") % path;
}

// A QJsonObject lists its members sorted by name, so each one is inserted at the end of the map.
TarnisIconHandler::IconMap TarnisIconHandler::parseMappingTable(const QString& mappingTable) const
{
    IconMap icons;
    QJsonDocument document = QJsonDocument::fromJson(mappingTable.toUtf8());
    if (!document.isObject()) {
        qWarning() << "Failed to parse icon mapping json!"
                   << "Invalid json.";
        return icons;
    }
    QJsonObject aliases = document.object();
    document = QJsonDocument(); // otherwise the first change of the object would copy it
    for (auto alias = aliases.begin(); alias != aliases.end(); ++alias) {
        QJsonValueRef contexts = alias.value();
        icons.insert(icons.constEnd(), alias.key(), extractContextBaseMapping(contexts));
        contexts = QJsonValue(); // frees its memory before the next one takes more
    }
    return icons;
}

TarnisIconHandler::ContextMap TarnisIconHandler::extractContextBaseMapping(const QJsonValueRef& contexts) const
{
    ContextMap paths;
    const QJsonValue value = contexts;
    if (!value.isObject()) {
        qWarning() << "Failed to parse icon mapping json!"
                   << "Ivalid json.";
        return paths;
    }
    const QJsonObject members = value.toObject();
    for (auto member = members.constBegin(); member != members.constEnd(); ++member) {
        const QPair<QString, QString> context = extractOneContext(member);
        paths.insert(paths.constEnd(), context.first, context.second);
    }
    return paths;
}

QPair<QString, QString> TarnisIconHandler::extractOneContext(const QJsonObject::const_iterator& context) const
{
    const QJsonValue value = context.value();
    if (value.isString()) {
        const QString name = context.key();
        return {name == defaultContextPathKey ? defaultContextPathKey : name, value.toString()};
    }
    qWarning() << "Failed to parse icon mapping json!"
               << "Expected relative path to be of type string.";
    return {QString(), QString()};
}
