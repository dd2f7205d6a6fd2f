#include "ResourceCheck/svg/SvgVocabulary.h"

#include <QColor>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace ResourceCheck
{

using Role = SvgVocabulary::Role;

namespace
{

QHash<QString, Role> rolesOf(std::initializer_list<std::pair<Role, const char*>> lists)
{
    QHash<QString, Role> roles;
    for (const auto& [role, names] : lists) {
        for (const QString& name : QString::fromLatin1(names).split(QLatin1Char(' ')))
            roles.insert(name, role);
    }
    return roles;
}

QSet<QString> setOf(const char* names)
{
    const QStringList list = QString::fromLatin1(names).split(QLatin1Char(' '));
    return QSet<QString>(list.begin(), list.end());
}

} // namespace

Role SvgVocabulary::roleOf(QStringView element)
{
    static const QHash<QString, Role> roles = rolesOf({
        {Role::Group, "svg g defs switch"},
        {Role::Shape, "circle ellipse line path polygon polyline rect"},
        {Role::Text, "text"},
        {Role::TextArea, "textArea"},
        {Role::Span, "tspan"},
        {Role::Image, "image"},
        {Role::Use, "use"},
        {Role::Utility,
         "a animate animateColor animateMotion animateTransform animation audio desc discard foreignObject handler "
         "hkern "
         "metadata mpath prefetch script set style tbreak title video"},
        {Role::Gradient, "linearGradient radialGradient"},
        {Role::Color, "solidColor"},
        {Role::Font, "font"},
        {Role::Stop, "stop"},
        {Role::Glyph, "font-face font-face-name font-face-src font-face-uri glyph missing-glyph"},
    });
    return roles.value(element.toString(), Role::Unknown);
}

bool SvgVocabulary::isNode(Role role)
{
    return role == Role::Group || role == Role::Shape || role == Role::Text || role == Role::TextArea
        || role == Role::Span || role == Role::Image || role == Role::Use;
}

bool SvgVocabulary::isPaintServer(Role role)
{
    return role == Role::Gradient || role == Role::Color || role == Role::Font;
}

bool SvgVocabulary::isIgnoredElement(QStringView element)
{
    static const QSet<QString> ignored =
        setOf("animate animateMotion animation audio flowRoot foreignObject mesh set textPath tref video");
    return ignored.contains(element.toString());
}

bool SvgVocabulary::isUnknownDefinition(QStringView element)
{
    static const QSet<QString> definitions = setOf("clipPath hatch marker mask pattern symbol");
    return definitions.contains(element.toString());
}

bool SvgVocabulary::isIgnoredProperty(QStringView property, QStringView value)
{
    static const QSet<QString> ignored =
        setOf("alignment-baseline baseline-shift clip-path dominant-baseline filter letter-spacing marker marker-end "
              "marker-mid marker-start mask mix-blend-mode rotate text-decoration textLength "
              "transform-origin word-spacing");
    static const QSet<QString> harmless = setOf("auto baseline inherit none normal 0 0px");
    if (property == QLatin1String("paint-order"))
        return value.indexOf(QLatin1String("stroke")) < value.indexOf(QLatin1String("fill"));
    return ignored.contains(property.toString()) && !harmless.contains(value.trimmed().toString());
}

bool SvgVocabulary::isPaint(QStringView value)
{
    static const QSet<QString> keywords = setOf("none inherit currentColor transparent");
    static const QRegularExpression decimal(
        QStringLiteral("^rgb\\(\\s*[-+.0-9]+%?\\s*,\\s*[-+.0-9]+%?\\s*,\\s*[-+.0-9]+%?\\s*\\)$"));
    static const QRegularExpression hexadecimal(QStringLiteral("^#([0-9A-Fa-f]{3}){1,4}$"));
    const QString paint = value.trimmed().toString();
    if (paint.isEmpty() || keywords.contains(paint) || paint.startsWith(QLatin1String("url")))
        return true;
    if (paint.startsWith(QLatin1Char('#')))
        return hexadecimal.match(paint).hasMatch();
    return decimal.match(paint).hasMatch() || QColor::isValidColor(paint);
}

} // namespace ResourceCheck
