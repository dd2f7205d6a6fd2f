#pragma once

#include <QString>
#include <QStringView>

/// What Qt Svg, which implements SVG 1.2 Tiny, makes of the names in an SVG file.
namespace ResourceCheck::SvgVocabulary
{

/// What an element becomes in the picture.
enum class Role {
    Unknown,  ///< nothing, but its children are read as if they were children of its parent
    Group,    ///< a node that can have children
    Shape,    ///< a node that is drawn
    Text,     ///< a node that can have spans
    TextArea, ///< a node that can have spans and line breaks
    Span,     ///< a part of a text
    Image,    ///< a bitmap
    Use,      ///< a copy of another node
    Utility,  ///< nothing by itself
    Gradient, ///< a paint
    Color,    ///< a paint
    Font,     ///< a font
    Stop,     ///< a part of a gradient
    Glyph     ///< a part of a font
};

Role roleOf(QStringView element);

/// Whether Qt makes a node of such an element.
bool isNode(Role role);

/// Whether it is a gradient, color or font, which can have parts.
bool isPaintServer(Role role);

/// Whether the element is part of SVG and changes the picture in other programs, but not in Qt.
bool isIgnoredElement(QStringView element);

/// Whether the element is part of SVG and not drawn by itself in other programs, but Qt draws its content.
bool isUnknownDefinition(QStringView element);

/// Whether the attribute or CSS property has, with this value, an effect on the picture in other programs, but not in
/// Qt.
bool isIgnoredProperty(QStringView property, QStringView value);

/// Whether Qt accepts the value of a property such as `fill`. References are accepted.
bool isPaint(QStringView value);

} // namespace ResourceCheck::SvgVocabulary
