#pragma once

#include <QFileInfo>
#include <QHash>
#include <QMultiHash>
#include <QString>
#include <QStringList>

namespace ResourceCheck
{

/// The directory with the icon files. All paths are relative to it, as in mapping tables.
class IconDirectory
{
public:
    explicit IconDirectory(const QString& path);

    /// The path of the directory itself.
    const QString& path() const { return directory; }

    /// Whether the path leads out of the directory.
    static bool isOutside(const QString& relativePath);

    /// The file as it was when it was asked for first.
    QFileInfo file(const QString& relativePath) const;

    /// Whether the path leads to a file inside the directory.
    bool contains(const QString& relativePath) const;

    /// The path of a file whose path differs at most in upper and lower case; null if there is none.
    QString pathInAnyCase(const QString& relativePath) const;

    /// The paths of all files that are not hidden, in any order.
    QStringList files() const;

private:
    QString directory;
    QMultiHash<QString, QString> pathsByFoldedPath;
    mutable QHash<QString, QFileInfo> askedFiles; // each keeps what it asks the system
};

} // namespace ResourceCheck
