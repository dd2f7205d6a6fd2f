#pragma once

#include "ResourceFormat/Directory.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace Gallery
{

/// Keeps copies of files, so that a file that has become faulty can still be shown as it was before. The copies are
/// deleted with this object.
class LastGoodFiles
{
public:
    /// Where the copies are: a resource directory.
    ResourceFormat::Directory copies() const;

    /// Reads an INI file or a flat JSON object and appends its faults, with file and line. Writes the content to
    /// `copy`, a path in copies(), unless the content has faults and that of the copy has none. Returns the path to
    /// show: that of the copy, or of the file if the copy cannot be written.
    QString update(const QString& path, const QString& copy, QStringList& faults);

    /// The fault that keeps the text from being JSON, with file, line and column; null if there is none.
    static QString jsonFault(const QString& path, const QByteArray& content);

private:
    const QTemporaryDir directory;
    QSet<QString> goodCopies; // the paths of those without faults
};

} // namespace Gallery
