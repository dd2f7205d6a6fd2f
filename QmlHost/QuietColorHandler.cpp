#include "QmlHost/QuietColorHandler.h"

namespace QmlHost
{

QuietColorHandler::QuietColorHandler(QObject* parent)
    : TarnisColorHandler(QString(), parent)
{
}

QString QuietColorHandler::getColor(const QString& /*group*/, const QString& /*key*/) const
{
    return QString();
}

} // namespace QmlHost
