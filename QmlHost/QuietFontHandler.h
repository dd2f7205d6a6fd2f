#pragma once

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

namespace QmlHost
{

/// The fonts until there is a font file: QML lookups are empty or 0 and log nothing.
class QuietFontHandler : public TarnisFontHandler
{
    Q_OBJECT

public:
    explicit QuietFontHandler(QObject* parent);

    Q_INVOKABLE QString getFontFamily(const QString& fontGroup) const;
    Q_INVOKABLE double getFontPointSize(const QString& fontGroup, const QString& sizeKey) const;
};

} // namespace QmlHost
