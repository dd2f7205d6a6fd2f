#pragma once

#include "ResourceFormat/Directory.h"

#include <QList>
#include <QPair>
#include <QSize>
#include <QString>
#include <QStringList>

namespace ResourceFormat
{

/// What a resource directory offers to a host, by the rules of the service, as it is at the time of the call.
///
/// Each function opens the files in question. A file is not offered if it is missing, unreadable or bad, or if a link
/// leads to it out of the directory; then the result is null or empty and `problem` names the file. Otherwise `problem`
/// is null. Links in the path of the directory itself are followed.
class PublishedResources
{
public:
    explicit PublishedResources(const Directory& resourceDirectory);

    QString colorFile(QString& problem) const;

    QString fontFile(QString& problem) const;

    /// The good dimension files with their display sizes in pixels, by ascending width, then ascending height.
    /// `problems` names each file that is left out because of its name or its content: one that cannot be read, or that
    /// has faults but no entry. It is not empty if the result is.
    QList<QPair<QSize, QString>> displaySizes(QStringList& problems) const;

    QString iconFolder(QString& problem) const;

    /// The JSON text of the mapping table with this name; the empty name is the default table. A name that contains
    /// "/", begins with "." or has more than 200 characters is a problem.
    QString mappingTable(const QString& name, QString& problem) const;

    /// The folder of the language files, which are read by their names. So a language file outside of the directory is
    /// a problem of the folder.
    QString textFolder(QString& problem) const;

private:
    QString readableFile(const QString& path, QString& problem) const;

    const Directory directory;
};

} // namespace ResourceFormat
