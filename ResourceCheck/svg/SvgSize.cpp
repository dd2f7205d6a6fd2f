#include "ResourceCheck/svg/SvgSize.h"

#include <QRegularExpression>

#include <cmath>

namespace ResourceCheck
{

namespace
{

struct Length {
    double number = 0;
    bool isPercentage = false;
};

Length lengthOf(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\s*([-+]?[0-9]*\\.?[0-9]*(?:[eE][-+]?[0-9]+)?)(.*)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    const QString unit = match.captured(2).trimmed();
    double factor = 1;
    if (unit == QLatin1String("pt"))
        factor = 1.25;
    else if (unit == QLatin1String("mm"))
        factor = 3.543307;
    else if (unit == QLatin1String("cm"))
        factor = 35.43307;
    else if (unit == QLatin1String("in"))
        factor = 90;
    return {match.captured(1).toDouble() * factor, unit == QLatin1String("%")};
}

QSizeF viewBoxOf(const QString& text)
{
    static const QRegularExpression separators(QStringLiteral("[ ,\\r\\n\\t]+"));
    const QStringList numbers = text.split(separators, Qt::SkipEmptyParts);
    return numbers.size() == 4 ? QSizeF(lengthOf(numbers.at(2)).number, lengthOf(numbers.at(3)).number) : QSizeF(0, 0);
}

} // namespace

std::optional<QSizeF> SvgSize::of(const QXmlStreamAttributes& attributes)
{
    const Length width = lengthOf(attributes.value(QLatin1String("width")).toString());
    const Length height = lengthOf(attributes.value(QLatin1String("height")).toString());
    const QSizeF box = viewBoxOf(attributes.value(QLatin1String("viewBox")).toString());
    const bool isGiven = std::trunc(width.number) > 0 && std::trunc(height.number) > 0;
    if (!isGiven)
        return box.isNull() ? std::nullopt : std::optional<QSizeF>(box);
    if ((width.isPercentage || height.isPercentage) && box.isNull())
        return std::nullopt;
    return QSizeF(width.isPercentage ? width.number * box.width() / 100 : width.number,
                  height.isPercentage ? height.number * box.height() / 100 : height.number);
}

} // namespace ResourceCheck
