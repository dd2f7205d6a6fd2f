#include "ResourceCheck/rules/IconFiles.h"

#include <QDir>
#include <QDirIterator>

IconFiles::IconFiles(const QString& directory)
{
    const QDir base(QDir(directory).absolutePath());
    for (QDirIterator iterator(base.path(), QDir::Files, QDirIterator::Subdirectories); iterator.hasNext();) {
        const QString path = base.relativeFilePath(iterator.next());
        filePaths.append(path);
        byFoldedPath.insert(path.toCaseFolded(), path);
    }
}

QString IconFiles::inOtherCase(const QString& path) const
{
    const QString cleaned = QDir::cleanPath(path);
    const QString other = byFoldedPath.value(cleaned.toCaseFolded());
    return other == cleaned ? QString() : other;
}
