#include "TarnisModule/IconProvider.h"

#include "ResourceFormat/RegularFile.h"
#include "TarnisModule/Answer.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace TarnisModule
{

IconProvider::IconProvider(const ResourceFormat::Directory& resourceDirectory)
    : directory(resourceDirectory)
{
}

QDBusVariant IconProvider::getIconResourcesBasePath() const
{
    const QString folder = directory.iconFolder();
    if (QFileInfo(folder).isDir())
        return Answer::value(folder);
    return Answer::error(QStringLiteral("%1 is not a directory").arg(folder));
}

QDBusVariant IconProvider::getIconResourcesMappingTable(const QString& name) const
{
    if (name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.')))
        return Answer::error(QStringLiteral("\"%1\" is not a valid mapping table name").arg(name));
    const QString path = directory.mappingTable(name);
    const QString problem = Answer::fileProblem(path);
    if (!problem.isNull())
        return Answer::error(problem);
    QString reason;
    const QByteArray table = ResourceFormat::RegularFile::readAll(path, reason);
    if (!reason.isNull())
        return Answer::error(QStringLiteral("%1: %2").arg(path, reason));
    if (table.contains('\0'))
        return Answer::error(QStringLiteral("%1: a null character, which cannot be sent over the bus").arg(path));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(table, &error);
    if (error.error != QJsonParseError::NoError)
        return Answer::error(QStringLiteral("%1: offset %2: %3").arg(path).arg(error.offset).arg(error.errorString()));
    if (!document.isObject())
        return Answer::error(QStringLiteral("%1: not a JSON object").arg(path));
    return Answer::value(QString::fromUtf8(table));
}

} // namespace TarnisModule
