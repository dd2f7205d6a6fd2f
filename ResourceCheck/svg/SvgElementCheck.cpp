#include "ResourceCheck/svg/SvgElementCheck.h"

#include "ResourceCheck/svg/SvgImage.h"
#include "ResourceCheck/svg/SvgPath.h"
#include "ResourceCheck/svg/SvgSize.h"

#include <QRegularExpression>

#include <algorithm>

namespace ResourceCheck
{

using Kind = SvgFault::Kind;
using Role = SvgVocabulary::Role;

namespace
{

constexpr int maximumPixels = 4096;

bool isScript(const QXmlStreamAttribute& attribute)
{
    return attribute.qualifiedName().startsWith(QLatin1String("on"))
        || attribute.value().trimmed().startsWith(QLatin1String("javascript:"), Qt::CaseInsensitive);
}

// Qt does not look at the unit.
double numberAtBegin(const QString& value)
{
    static const QRegularExpression number(QStringLiteral("^[+-]?[0-9.]+(?:[eE][+-]?[0-9]+)?"));
    return number.match(value.trimmed()).captured().toDouble();
}

bool isPenWidth(const QString& value)
{
    constexpr double limit = 1 << 15;
    const double width = numberAtBegin(value);
    return width >= 0 && width < limit;
}

} // namespace

SvgElementCheck::SvgElementCheck(const SvgElement& svgElement, SvgFaults& svgFaults, SvgPaints& svgPaints)
    : element(svgElement)
    , faults(svgFaults)
    , paints(svgPaints)
{
}

void SvgElementCheck::checkRoot()
{
    const std::optional<QSizeF> size = SvgSize::of(element.attributes);
    if (!size)
        return;
    if (size->width() < 1 || size->height() < 1) {
        add(Kind::Syntax, QStringLiteral("the picture has no size; set width and height, or viewBox"));
    } else if (std::max(size->width(), size->height()) > maximumPixels) {
        add(Kind::Size,
            QStringLiteral("the picture has %1 x %2 pixels, more than %3; set a smaller width and height")
                .arg(size->width())
                .arg(size->height())
                .arg(maximumPixels));
    }
}

void SvgElementCheck::checkCommon()
{
    const bool isScriptElement = element.name == QLatin1String("script") || element.name == QLatin1String("handler");
    if (isScriptElement || std::any_of(element.attributes.begin(), element.attributes.end(), isScript))
        addOnce(Kind::Script, QString(), QStringLiteral("Qt runs no scripts; draw what the script would draw"));
    const QString space = element.attribute("xml:space");
    if (!space.isEmpty() && space != QLatin1String("preserve") && space != QLatin1String("default"))
        add(Kind::Structure, QStringLiteral("xml:space=\"%1\" is not valid; use preserve or default").arg(space));
    if (SvgVocabulary::isIgnoredElement(element.name)) {
        addOnce(Kind::Ignored, element.name,
                QStringLiteral("Qt does not support <%1>; convert the picture to plain shapes").arg(element.name));
    }
    const bool canRefer = element.role == Role::Use || element.role == Role::Gradient;
    if (canRefer && element.isExternal()) {
        add(Kind::External,
            QStringLiteral("\"%1\" is outside of the picture; copy it into the picture").arg(element.link()));
    }
}

void SvgElementCheck::checkPath()
{
    if (!SvgPath::isComplete(element.attribute("d"))) {
        add(Kind::Path,
            QStringLiteral("the path data are faulty or have too many points, and Qt draws only their "
                           "beginning; correct or split them"));
    }
}

bool SvgElementCheck::checkImage()
{
    const QString url = element.link().trimmed();
    if (!url.isEmpty() && !url.startsWith(QLatin1String("data"))) {
        add(Kind::External, QStringLiteral("\"%1\" is outside of the picture; embed it as PNG in base64").arg(url));
        return false;
    }
    const auto isPositive = [](QString length) { return length.remove(QLatin1String("px")).toDouble() > 0; };
    const bool hasSize = isPositive(element.attribute("width")) && isPositive(element.attribute("height"));
    const QString fault = hasSize
        ? SvgImage::fault(url)
        : QStringLiteral("the embedded image has no size; set its width and height in pixels");
    if (!fault.isNull())
        add(Kind::Image, fault);
    return fault.isNull();
}

bool SvgElementCheck::checkPaint()
{
    const QString id = element.attribute("id");
    const QString color = element.attribute("solid-color");
    if (element.role == Role::Font && id.isEmpty()) {
        add(Kind::Structure, QStringLiteral("Qt ignores a <font> without ID; add the attribute id"));
        return false;
    }
    if (element.role == Role::Color && (color.isEmpty() || !SvgVocabulary::isPaint(color))) {
        add(Kind::Structure, QStringLiteral("\"%1\" is not a color; set solid-color to #rrggbb").arg(color));
        return false;
    }
    if (element.role == Role::Gradient && !checkRadialGradient())
        return false;
    const QString link = element.role == Role::Gradient ? element.linkedId() : QString();
    if (element.role != Role::Font && !paints.define(id, link, element.offset))
        add(Kind::Structure, QStringLiteral("duplicate ID \"%1\"; rename one of the two").arg(id));
    return true;
}

bool SvgElementCheck::checkRadialGradient()
{
    if (element.name != QLatin1String("radialGradient"))
        return true;
    // Qt 5 draws such a gradient with the radius 0.5.
    if (QT_VERSION_MAJOR >= 6 && numberAtBegin(element.attribute("r")) <= 0) {
        add(Kind::Structure, QStringLiteral("Qt ignores a <radialGradient> without a radius; add r=\"0.5\""));
        return false;
    }
    for (const char* name : {"cx", "cy", "r", "fx", "fy"}) {
        if (element.attribute(name).endsWith(QLatin1Char('%'))) {
            addOnce(Kind::Ignored, QStringLiteral("radialGradient"),
                    QStringLiteral("Qt reads %1=\"%2\" without the percent sign; write a number such as 0.5")
                        .arg(QLatin1String(name), element.attribute(name)));
        }
    }
    return true;
}

void SvgElementCheck::checkProperties(const QVector<SvgProperty>& properties)
{
    for (const SvgProperty& property : properties) {
        const bool isPaint = property.name == QLatin1String("fill") || property.name == QLatin1String("stroke");
        if (isPaint)
            paints.refer(property.value, element.offset);
        if ((isPaint || property.name == QLatin1String("stop-color")) && !SvgVocabulary::isPaint(property.value)) {
            addOnce(Kind::Ignored, property.value,
                    QStringLiteral("Qt does not know the color \"%1\"; use #rrggbb").arg(property.value));
        }
        if (property.name == QLatin1String("stroke-width") && !isPenWidth(property.value)) {
            addOnce(Kind::Ignored, property.name + property.value,
                    QStringLiteral("Qt ignores stroke-width=\"%1\"; use a number from 0 to 32767").arg(property.value));
        }
        if (SvgVocabulary::isIgnoredProperty(property.name, property.value)) {
            addOnce(Kind::Ignored, property.name,
                    QStringLiteral("Qt ignores %1=\"%2\"; convert the picture to plain shapes")
                        .arg(property.name, property.value));
        }
    }
}

} // namespace ResourceCheck
