#include "ResourceFormat/PublishedResources.h"

#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/RegularFile.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QStringList>

#include <algorithm>

namespace
{

// A supported display size in pixels, and the path of its dimension file.
using Display = QPair<QSize, QString>;

bool isSmaller(const Display& left, const Display& right)
{
    return qMakePair(left.first.width(), left.first.height()) < qMakePair(right.first.width(), right.first.height());
}

// Why the path is not a readable regular file; null if it is one.
QString fileProblem(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return QStringLiteral("%1 does not exist").arg(path);
    if (!info.isFile())
        return QStringLiteral("%1 is not a regular file").arg(path);
    if (!info.isReadable())
        return QStringLiteral("%1 is not readable").arg(path);
    return QString();
}

QString readableFile(const QString& path, QString& problem)
{
    problem = fileProblem(path);
    return problem.isNull() ? path : QString();
}

// Why the text is not a mapping table; null if it is one.
QString tableProblem(const QByteArray& table)
{
    if (table.contains('\0'))
        return QStringLiteral("a null character, which cannot be sent over the bus");
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(table, &error);
    if (error.error != QJsonParseError::NoError)
        return QStringLiteral("offset %1: %2").arg(error.offset).arg(error.errorString());
    return document.isObject() ? QString() : QStringLiteral("not a JSON object");
}

} // namespace

namespace ResourceFormat
{

PublishedResources::PublishedResources(const Directory& resourceDirectory)
    : directory(resourceDirectory)
{
}

QString PublishedResources::colorFile(QString& problem) const
{
    return readableFile(directory.colorFile(), problem);
}

QString PublishedResources::fontFile(QString& problem) const
{
    return readableFile(directory.fontFile(), problem);
}

QList<QPair<QSize, QString>> PublishedResources::displaySizes(QString& problem) const
{
    QList<Display> displays;
    QStringList problems;
    for (const QFileInfo& file : directory.dimensionFiles()) {
        const QString path = file.filePath();
        const QSize size = DisplaySize::fromName(file.completeBaseName());
        const QString reason =
            size.isValid() ? fileProblem(path) : QStringLiteral("%1 is not named WIDTHxHEIGHT.ini").arg(path);
        if (reason.isNull())
            displays.append({size, path});
        else
            problems.append(reason);
    }
    if (displays.isEmpty() && problems.isEmpty())
        problems.append(QStringLiteral("%1 contains no dimension file").arg(directory.dimensionFolder()));
    problem = problems.isEmpty() ? QString() : problems.join(QStringLiteral("; "));
    if (!problem.isNull())
        return {};
    std::sort(displays.begin(), displays.end(), isSmaller);
    return displays;
}

QString PublishedResources::iconFolder(QString& problem) const
{
    const QString folder = directory.iconFolder();
    const bool isFolder = QFileInfo(folder).isDir();
    problem = isFolder ? QString() : QStringLiteral("%1 is not a directory").arg(folder);
    return isFolder ? folder : QString();
}

QString PublishedResources::mappingTable(const QString& name, QString& problem) const
{
    if (name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.'))) {
        problem = QStringLiteral("\"%1\" is not a valid mapping table name").arg(name);
        return QString();
    }
    const QString path = readableFile(directory.mappingTable(name), problem);
    if (!problem.isNull())
        return QString();
    const QByteArray table = RegularFile::readAll(path, problem);
    if (problem.isNull())
        problem = tableProblem(table);
    if (problem.isNull())
        return QString::fromUtf8(table);
    problem = QStringLiteral("%1: %2").arg(path, problem);
    return QString();
}

} // namespace ResourceFormat
