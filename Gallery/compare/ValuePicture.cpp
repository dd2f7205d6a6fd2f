#include "Gallery/compare/ValuePicture.h"

#include "Gallery/compare/Html.h"
#include "Gallery/compare/Pictures.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <algorithm>

namespace Gallery
{

namespace
{

constexpr int longestBar = 240; // CSS pixels
constexpr int iconPixels = 48;  // CSS pixels
constexpr int manyIcons = 1000;
constexpr int familySamplePixels = 28;
constexpr int largestFontPixels = 200;

QString caption(const QString& text)
{
    return Html::element(QStringLiteral("span"), QStringLiteral(R"( class="caption")"), text);
}

} // namespace

ValuePicture::ValuePicture(const Comparison& resourceComparison)
    : comparison(resourceComparison)
{
    int longest = 0;
    int icons = 0;
    for (const Comparison::Change& change : comparison.changes()) {
        icons += change.kind == Snapshot::Icon ? 1 : 0;
        for (const auto& value : {change.oldValue, change.newValue}) {
            if (change.kind == Snapshot::Dimension && value)
                longest = std::max(longest, value->identity.toInt());
        }
    }
    iconScale = icons > manyIcons ? 1 : 2;
    barScale = 1 + (std::max(longest, 1) - 1) / longestBar;
}

int ValuePicture::pixelsPerBarPixel() const
{
    return barScale;
}

QString ValuePicture::html(const Comparison::Change& change, bool isNew) const
{
    const auto& value = isNew ? change.newValue : change.oldValue;
    if (!value)
        return QStringLiteral(R"(<span class="none">–</span>)");
    switch (change.kind) {
    case Snapshot::Color:
        return color(*value);
    case Snapshot::Font:
        return font(change, isNew);
    case Snapshot::Dimension:
        return dimension(*value);
    case Snapshot::Icon:
        return icon(*value);
    case Snapshot::Text:
        return QStringLiteral(R"(<p class="text" lang="%1" dir="auto">%2</p>)")
            .arg(Html::escaped(QString(change.key.variant).replace(QLatin1Char('_'), QLatin1Char('-'))),
                 Html::escaped(value->text));
    case Snapshot::Display:
    case Snapshot::Language:
        break;
    }
    return Html::escaped(value->text);
}

QString ValuePicture::color(const Snapshot::Value& value) const
{
    const QColor color(value.text);
    if (!color.isValid())
        return caption(QStringLiteral("not a color: ") + value.text);
    const QString swatch =
        QStringLiteral(R"(<span class="swatch"><span style="background:rgba(%1,%2,%3,%4);"></span></span>)");
    return swatch.arg(color.red()).arg(color.green()).arg(color.blue()).arg(color.alphaF(), 0, 'f', 3)
        + Html::element(QStringLiteral("code"), QString(), value.text);
}

QString ValuePicture::font(const Comparison::Change& change, bool isNew) const
{
    const Snapshot& side = isNew ? comparison.newSide() : comparison.oldSide();
    const QString family = side.fontFamily(change.key.name);
    const QString text = (isNew ? change.newValue : change.oldValue)->text;
    const bool isFamily = change.key.name.endsWith(QLatin1Char('/') + TarnisFontHandler::familyKey);
    bool isSize = false;
    const double size = text.toDouble(&isSize);
    if (!isFamily && (!isSize || size <= 0))
        return caption(QStringLiteral("not a size: ") + text);
    const QString words = isFamily ? text : QStringLiteral("%1 px, %2").arg(QString::number(size), family);
    if (size > largestFontPixels)
        return caption(words + QStringLiteral(" (too large to draw)"));
    const double pixels = isFamily ? familySamplePixels : size;
    const QString used = Pictures::usedFamily(family);
    const QString note = used == family ? QString() : QStringLiteral(" (not installed here; drawn with %1)").arg(used);
    return Html::image(Pictures::fontSample(family, pixels), QStringLiteral("Sample in ") + words,
                       QStringLiteral("sample"), Pictures::sampleScale)
        + caption(words + note);
}

QString ValuePicture::dimension(const Snapshot::Value& value) const
{
    bool isNumber = false;
    const int pixels = value.text.toInt(&isNumber);
    if (!isNumber)
        return caption(QStringLiteral("not a number: ") + value.text);
    return QStringLiteral(R"(<span class="bar" style="width:%1px"></span>)")
               .arg(std::max(pixels, 0) / static_cast<double>(barScale))
        + caption(QStringLiteral("%1 px").arg(pixels));
}

QString ValuePicture::icon(const Snapshot::Value& value) const
{
    if (value.path.isEmpty())
        return caption(QStringLiteral("missing: ") + value.text);
    QSize size;
    const QImage picture = Pictures::icon(value.path, iconPixels * iconScale, size);
    if (picture.isNull())
        return caption(QStringLiteral("not an image: ") + value.text);
    const QString words =
        QStringLiteral("%1, %2 × %3").arg(value.text, QString::number(size.width()), QString::number(size.height()));
    const QString tile = Pictures::isLight(picture) ? QStringLiteral("tile dark") : QStringLiteral("tile light");
    return Html::image(picture, value.text, tile, iconScale) + caption(words);
}

} // namespace Gallery
