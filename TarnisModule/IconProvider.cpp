#include "TarnisModule/IconProvider.h"

#include "TarnisModule/Answer.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

IconProvider::IconProvider(const QString& directory, QObject* parent)
    : QObject(parent)
    , iconDirectory(directory + QStringLiteral("/icons"))
{
}

QDBusVariant IconProvider::getIconResourcesBasePath() const
{
    if (QFileInfo(iconDirectory).isDir())
        return Answer::value(iconDirectory);
    return Answer::error(QStringLiteral("%1 is not a directory").arg(iconDirectory));
}

QDBusVariant IconProvider::getIconResourcesMappingTable(const QString& name) const
{
    if (name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.')))
        return Answer::error(QStringLiteral("\"%1\" is not the name of a mapping table").arg(name));
    const QString filename =
        name.isEmpty() ? QStringLiteral("mapping.json") : QStringLiteral("mapping.%1.json").arg(name);
    const QString path = iconDirectory + QLatin1Char('/') + filename;
    const QString problem = Answer::fileProblem(path);
    if (!problem.isNull())
        return Answer::error(problem);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Answer::error(QStringLiteral("%1: %2").arg(path, file.errorString()));
    const QByteArray table = file.readAll();
    if (table.contains('\0'))
        return Answer::error(QStringLiteral("%1: a null character, which the bus does not carry").arg(path));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(table, &error);
    if (error.error != QJsonParseError::NoError)
        return Answer::error(QStringLiteral("%1: offset %2: %3").arg(path).arg(error.offset).arg(error.errorString()));
    if (!document.isObject())
        return Answer::error(QStringLiteral("%1: not a JSON object").arg(path));
    return Answer::value(QString::fromUtf8(table));
}
