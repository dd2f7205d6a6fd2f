#include "ResourceFormat/DisplaySize.h"

#include <QRegularExpression>

namespace ResourceFormat::DisplaySize
{

QSize fromName(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([1-9][0-9]{0,8})x([1-9][0-9]{0,8})\\z"));
    const QRegularExpressionMatch match = pattern.match(name);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

QString toName(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

} // namespace ResourceFormat::DisplaySize
