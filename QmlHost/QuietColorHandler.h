#pragma once

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"

namespace QmlHost
{

/// The colors until there is a color file: QML lookups are empty and log nothing.
class QuietColorHandler : public TarnisColorHandler
{
    Q_OBJECT

public:
    explicit QuietColorHandler(QObject* parent);

    Q_INVOKABLE QString getColor(const QString& group, const QString& key) const;
};

} // namespace QmlHost
