#pragma once

#include <QHash>
#include <QStringList>

/// The files below a directory that are not hidden. Their paths are relative to it.
class IconFiles
{
public:
    explicit IconFiles(const QString& directory);

    const QStringList& paths() const { return filePaths; }

    /// The file that the path would name if the case of letters did not count; null if there is none.
    QString inOtherCase(const QString& path) const;

private:
    QStringList filePaths;
    QHash<QString, QString> byFoldedPath;
};
