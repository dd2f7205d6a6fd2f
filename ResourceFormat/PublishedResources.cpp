#include "ResourceFormat/PublishedResources.h"

#include "ResourceFormat/Descriptor.h"
#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/IniParser.h"
#include "ResourceFormat/RegularFile.h"

#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>

namespace ResourceFormat
{

namespace
{

// A supported display size in pixels, and the path of its dimension file.
using Display = QPair<QSize, QString>;

constexpr int mostDimensionFiles = 1000; // so that an answer fits into a message
constexpr int longestTableName = 200;    // a file name has at most 255 bytes

bool isSmaller(const Display& left, const Display& right)
{
    return qMakePair(left.first.width(), left.first.height()) < qMakePair(right.first.width(), right.first.height());
}

// Why the file cannot be offered; null if it can.
QString fileProblem(const Directory& directory, const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return QStringLiteral("%1 does not exist").arg(path);
    if (!info.isFile())
        return QStringLiteral("%1 is not a regular file").arg(path);
    if (!info.isReadable())
        return QStringLiteral("%1 is not readable").arg(path);
    const QString problem = RegularFile::problemIn(directory.path(), path);
    return problem.isNull() ? QString() : QStringLiteral("%1: %2").arg(path, problem);
}

// Why the folder cannot be offered; null if it can.
QString folderProblem(const Directory& directory, const QString& path)
{
    if (!QFileInfo(path).isDir())
        return QStringLiteral("%1 is not a directory").arg(path);
    const Descriptor folder = Descriptor::ofDirectory(path);
    const QString problem = folder.number() < 0 ? folder.problem() : folder.problemOfPlace(directory.path());
    return problem.isNull() ? QString() : QStringLiteral("%1: %2").arg(path, problem);
}

// Why the file has no entry to offer; null if it has, or is blank.
QString contentProblem(const Directory& directory, const QString& path)
{
    QString reason;
    const QByteArray content = RegularFile::readAllIn(directory.path(), path, reason);
    if (!reason.isNull())
        return QStringLiteral("%1: %2").arg(path, reason);
    const IniParser parser(content);
    if (parser.faults().isEmpty() || !parser.entries().isEmpty())
        return QString();
    const IniParser::Fault& fault = parser.faults().constFirst();
    return QStringLiteral("%1:%2: %3").arg(path).arg(fault.line).arg(fault.reason);
}

QString dimensionProblem(const Directory& directory, const QFileInfo& file)
{
    const QString path = file.filePath();
    if (!DisplaySize::fromName(file.completeBaseName()).isValid())
        return QStringLiteral("%1 is not named WIDTHxHEIGHT.ini").arg(path);
    const QString problem = fileProblem(directory, path);
    return problem.isNull() ? contentProblem(directory, path) : problem;
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

QString PublishedResources::readableFile(const QString& path, QString& problem) const
{
    problem = fileProblem(directory, path);
    return problem.isNull() ? path : QString();
}

QList<QPair<QSize, QString>> PublishedResources::displaySizes(QStringList& problems) const
{
    const QString folder = directory.dimensionFolder();
    const QFileInfoList files = directory.dimensionFiles();
    const QString problem = files.isEmpty() ? QStringLiteral("%1 contains no dimension file").arg(folder)
                                            : folderProblem(directory, folder);
    if (!problem.isNull()) {
        problems = QStringList(problem);
        return {};
    }
    problems.clear();
    if (files.size() > mostDimensionFiles)
        problems.append(QStringLiteral("%1: only the first %2 files are read").arg(folder).arg(mostDimensionFiles));
    QList<Display> displays;
    for (const QFileInfo& file : files.mid(0, mostDimensionFiles)) {
        const QString reason = dimensionProblem(directory, file);
        if (reason.isNull())
            displays.append({DisplaySize::fromName(file.completeBaseName()), file.filePath()});
        else
            problems.append(reason);
    }
    std::sort(displays.begin(), displays.end(), isSmaller);
    return displays;
}

QString PublishedResources::iconFolder(QString& problem) const
{
    problem = folderProblem(directory, directory.iconFolder());
    return problem.isNull() ? directory.iconFolder() : QString();
}

QString PublishedResources::mappingTable(const QString& name, QString& problem) const
{
    if (name.size() > longestTableName || name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.'))) {
        problem = QStringLiteral("\"%1\" is not a valid mapping table name").arg(name.left(longestTableName));
        return QString();
    }
    const QString path = readableFile(directory.mappingTable(name), problem);
    if (!problem.isNull())
        return QString();
    const QByteArray table = RegularFile::readAllIn(directory.path(), path, problem);
    if (problem.isNull())
        problem = tableProblem(table);
    if (problem.isNull())
        return QString::fromUtf8(table);
    problem = QStringLiteral("%1: %2").arg(path, problem);
    return QString();
}

QString PublishedResources::textFolder(QString& problem) const
{
    const QString folder = directory.textFolder();
    const QFileInfoList files = directory.languageFiles();
    problem = files.isEmpty() ? QString() : folderProblem(directory, folder);
    for (const QFileInfo& file : files) {
        const Descriptor opened = Descriptor::ofFile(file.filePath());
        const QString reason = opened.number() < 0 ? QString() : opened.problemOfPlace(directory.path());
        if (problem.isNull() && !reason.isNull())
            problem = QStringLiteral("%1: %2").arg(file.filePath(), reason);
    }
    return problem.isNull() ? folder : QString();
}

} // namespace ResourceFormat
