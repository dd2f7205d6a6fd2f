#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>

const QString TarnisIconHandler::defaultContextPathKey = QStringLiteral("defaultContext");

TarnisIconHandler::TarnisIconHandler(const QString& iconBasePath, const QString& mappingTable, QObject* parent)
    : QObject(parent)
    , iconBaseDirectory(QString())
{
    // QDir keeps one of several slashes at the end of a path.
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
    auto relativePath = contexts->constFind(context);
    if (relativePath == contexts->constEnd())
        relativePath = contexts->constFind(defaultContextPathKey);
    if (relativePath == contexts->constEnd()) {
        qWarning() << "Unknown context (" << defaultContextPathKey << ")";
        return QString();
    }
    QString path = iconBaseDirectory.absolutePath() + QLatin1Char('/') + *relativePath;
    if (!QFile::exists(path)) {
        qWarning() << "Icon file" << path << "does not exist";
        return QString();
    }
    return path;
}

QString TarnisIconHandler::getIconPathAsFileUrl(const QString& aliasName, const QString& context) const
{
    const QString path = getIconPath(aliasName, context);
    return path.isEmpty() ? path : QStringLiteral("file:") + path;
}

TarnisIconHandler::IconMap TarnisIconHandler::parseMappingTable(const QString& mappingTable) const
{
    IconMap icons;
    const QJsonDocument document = QJsonDocument::fromJson(mappingTable.toUtf8());
    if (!document.isObject()) {
        qWarning() << "Failed to parse icon mapping json!"
                   << "Invalid json.";
        return icons;
    }
    QJsonObject aliases = document.object();
    for (auto alias = aliases.begin(); alias != aliases.end(); ++alias)
        icons.insert(alias.key(), extractContextBaseMapping(alias.value()));
    return icons;
}

TarnisIconHandler::ContextMap TarnisIconHandler::extractContextBaseMapping(const QJsonValueRef& contexts) const
{
    ContextMap paths;
    if (!contexts.isObject()) {
        qWarning() << "Failed to parse icon mapping json!"
                   << "Ivalid json.";
        return paths;
    }
    const QJsonObject members = contexts.toObject();
    for (auto member = members.constBegin(); member != members.constEnd(); ++member) {
        const QPair<QString, QString> context = extractOneContext(member);
        paths.insert(context.first, context.second);
    }
    return paths;
}

QPair<QString, QString> TarnisIconHandler::extractOneContext(const QJsonObject::const_iterator& context) const
{
    if (context->isString())
        return {context.key(), context->toString()};
    qWarning() << "Failed to parse icon mapping json!"
               << "Expected relative path to be of type string.";
    return {QString(), QString()};
}
