#include "QmlHost/QuietIconHandler.h"

namespace QmlHost
{

QuietIconHandler::QuietIconHandler(QObject* parent)
    : TarnisIconHandler(QString(), QStringLiteral("{}"), parent)
{
}

QString QuietIconHandler::getIconPath(const QString& /*aliasName*/, const QString& /*context*/) const
{
    return QString();
}

QString QuietIconHandler::getIconPathAsFileUrl(const QString& /*aliasName*/, const QString& /*context*/) const
{
    return QString();
}

} // namespace QmlHost
