#pragma once

#include "ResourceFormat/PublishedResources.h"

#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <QStringList>

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

    /// The good dimension files with their display sizes. The others are logged when they become bad; if none is good,
    /// the answer is an error.
    QDBusVariant getSupportedScreenSizes();

private:
    const ResourceFormat::PublishedResources resources;
    QStringList loggedProblems;
};

} // namespace TarnisModule
