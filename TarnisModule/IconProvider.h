#pragma once

#include "ResourceFormat/PublishedResources.h"

#include <QDBusVariant>
#include <QObject>
#include <QString>

namespace TarnisModule
{

/// The object `/Tarnis/IconProvider`. It tells where the icons are and returns the mapping table, from the resource
/// directory as it is at the time of the call. A missing or bad file is answered with an error that names it.
class IconProvider : public QObject
{
    Q_OBJECT

public:
    explicit IconProvider(const ResourceFormat::Directory& resourceDirectory);

    QDBusVariant getIconResourcesBasePath() const;

    /// The empty name is the default table. A name that contains "/" or begins with "." is an error.
    QDBusVariant getIconResourcesMappingTable(const QString& name) const;

private:
    const ResourceFormat::PublishedResources resources;
};

} // namespace TarnisModule
