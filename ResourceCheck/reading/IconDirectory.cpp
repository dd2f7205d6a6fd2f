#include "ResourceCheck/reading/IconDirectory.h"

#include <QDir>
#include <QDirIterator>

namespace ResourceCheck
{

IconDirectory::IconDirectory(const QString& path)
    : directory(path)
{
    for (QDirIterator iterator(directory, QDir::Files, QDirIterator::Subdirectories); iterator.hasNext();) {
        const QString relativePath = iterator.next().mid(directory.size() + 1);
        pathsByFoldedPath.insert(relativePath.toCaseFolded(), relativePath);
    }
}

bool IconDirectory::isOutside(const QString& relativePath)
{
    const QString cleaned = QDir::cleanPath(relativePath);
    return relativePath.startsWith(QLatin1Char('/')) || cleaned == QLatin1String("..")
        || cleaned.startsWith(QLatin1String("../"));
}

QFileInfo IconDirectory::file(const QString& relativePath) const
{
    const auto asked = askedFiles.constFind(relativePath);
    if (asked != askedFiles.constEnd())
        return *asked;
    return *askedFiles.insert(relativePath, QFileInfo(directory + QLatin1Char('/') + relativePath));
}

bool IconDirectory::contains(const QString& relativePath) const
{
    return !isOutside(relativePath) && file(relativePath).isFile();
}

QString IconDirectory::pathInAnyCase(const QString& relativePath) const
{
    return pathsByFoldedPath.value(QDir::cleanPath(relativePath).toCaseFolded());
}

QStringList IconDirectory::files() const
{
    return pathsByFoldedPath.values();
}

} // namespace ResourceCheck
