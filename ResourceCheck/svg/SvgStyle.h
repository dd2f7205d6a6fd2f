#pragma once

#include <QString>
#include <QVector>
#include <QXmlStreamAttributes>

namespace ResourceCheck
{

/// A presentation attribute or a CSS declaration.
struct SvgProperty {
    QString name;
    QString value;
};

namespace SvgStyle
{

/// The attributes, and the declarations in the attribute `style`.
QVector<SvgProperty> propertiesOf(const QXmlStreamAttributes& attributes);

/// The declarations of a style sheet, whatever their selectors.
QVector<SvgProperty> declarationsIn(const QString& sheet);

} // namespace SvgStyle

} // namespace ResourceCheck
