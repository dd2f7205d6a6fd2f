#pragma once

#include "ResourceFormat/PublishedResources.h"

#include <QDBusVariant>
#include <QObject>
#include <QString>

namespace TarnisModule
{

/// The object `/Tarnis/DeviceUiResources`. It tells where colors, fonts and dimensions are, from the resource directory
/// as it is at the time of the call. A missing or bad file is answered with an error that names it.
class DeviceUiResources : public QObject
{
    Q_OBJECT

public:
    explicit DeviceUiResources(const ResourceFormat::Directory& resourceDirectory);

    QDBusVariant getFontIniFilePath() const;
    QDBusVariant getColorIniFilePath() const;

    /// Every dimension file with its display size; a dimension file with another name is an error.
    QDBusVariant getSupportedScreenSizes() const;

private:
    const ResourceFormat::PublishedResources resources;
};

} // namespace TarnisModule
