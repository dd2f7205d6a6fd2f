#pragma once

#include "ResourceFormat/Directory.h"

#include <QList>
#include <QPair>
#include <QSize>
#include <QString>

namespace ResourceFormat
{

/// What a resource directory offers to a host, by the rules of the service, as it is at the time of the call.
///
/// Each function checks the files in question. If one of them is missing or bad, the result is null or empty and
/// `problem` names it; otherwise `problem` is null.
class PublishedResources
{
public:
    explicit PublishedResources(const Directory& resourceDirectory);

    QString colorFile(QString& problem) const;

    QString fontFile(QString& problem) const;

    /// Every dimension file with its display size in pixels, by ascending width, then ascending height. A dimension
    /// file with another name than a display size is a problem.
    QList<QPair<QSize, QString>> displaySizes(QString& problem) const;

    QString iconFolder(QString& problem) const;

    /// The JSON text of the mapping table with this name; the empty name is the default table. A name that contains
    /// "/" or begins with "." is a problem.
    QString mappingTable(const QString& name, QString& problem) const;

private:
    const Directory directory;
};

} // namespace ResourceFormat
