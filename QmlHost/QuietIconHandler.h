#pragma once

#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

namespace QmlHost
{

/// The icons until there is a mapping table: QML lookups are empty and log nothing.
class QuietIconHandler : public TarnisIconHandler
{
    Q_OBJECT

public:
    explicit QuietIconHandler(QObject* parent);

    Q_INVOKABLE QString getIconPath(const QString& aliasName, const QString& context = defaultContextPathKey) const;
    Q_INVOKABLE QString getIconPathAsFileUrl(const QString& aliasName,
                                             const QString& context = defaultContextPathKey) const;
};

} // namespace QmlHost
