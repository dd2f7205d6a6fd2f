#include "QmlHost/QuietFontHandler.h"

namespace QmlHost
{

QuietFontHandler::QuietFontHandler(QObject* parent)
    : TarnisFontHandler(QString(), parent)
{
}

QString QuietFontHandler::getFontFamily(const QString& /*fontGroup*/) const
{
    return QString();
}

double QuietFontHandler::getFontPointSize(const QString& /*fontGroup*/, const QString& /*sizeKey*/) const
{
    return 0.0;
}

} // namespace QmlHost
