#include "ResourceFormat/Contrast.h"

#include <algorithm>
#include <cmath>

namespace
{

// The color as it is seen on an opaque background.
QColor blended(const QColor& color, const QColor& background)
{
    const auto blend = [alpha = color.alphaF()](auto front, auto back) { return alpha * front + (1 - alpha) * back; };
    return QColor::fromRgbF(blend(color.redF(), background.redF()), blend(color.greenF(), background.greenF()),
                            blend(color.blueF(), background.blueF()));
}

// The relative luminance, from 0 to 1.
double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

namespace ResourceFormat::Contrast
{

double ratio(const QColor& text, const QColor& background, const QColor& behind)
{
    const QColor opaque = blended(background, blended(behind, Qt::white));
    const double first = luminance(blended(text, opaque));
    const double second = luminance(opaque);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QString text(double ratio)
{
    return QString::number(std::floor(ratio * 100) / 100, 'f', 2) + QStringLiteral(":1");
}

QString backgroundKey()
{
    return QStringLiteral("Background");
}

QString backgroundKeyOf(const QString& key)
{
    const QString onPrefix = QStringLiteral("TextOn");
    if (key.startsWith(onPrefix))
        return key.mid(onPrefix.size());
    const bool isText = key.startsWith(QStringLiteral("Text")) && !key.endsWith(QStringLiteral("Disabled"));
    return isText ? backgroundKey() : QString();
}

} // namespace ResourceFormat::Contrast
