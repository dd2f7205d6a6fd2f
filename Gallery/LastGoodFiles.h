#pragma once

#include "Gallery/FileFaults.h"
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

    /// Reads a file and appends its faults, which `findFaults` tells from its content. Writes the content to `copy`, a
    /// path in copies(), unless the content has faults and that of the copy has none. Returns the path to show: that of
    /// the copy, or of the file if the copy cannot be written.
    QString update(const QString& path, const QString& copy, FileFaults::Finder findFaults, QStringList& faults);

private:
    const QTemporaryDir directory;
    QSet<QString> goodCopies; // the paths of those without faults
};

} // namespace Gallery
