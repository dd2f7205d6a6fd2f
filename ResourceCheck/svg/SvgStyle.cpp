#include "ResourceCheck/svg/SvgStyle.h"

namespace ResourceCheck
{

namespace
{

void addDeclarations(const QString& text, QVector<SvgProperty>& properties)
{
    for (const QString& declaration : text.split(QLatin1Char(';'))) {
        const int colon = declaration.indexOf(QLatin1Char(':'));
        if (colon > 0)
            properties.append({declaration.left(colon).trimmed(), declaration.mid(colon + 1).trimmed()});
    }
}

} // namespace

QVector<SvgProperty> SvgStyle::propertiesOf(const QXmlStreamAttributes& attributes)
{
    QVector<SvgProperty> properties;
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (attribute.qualifiedName() == QLatin1String("style"))
            addDeclarations(attribute.value().toString(), properties);
        else
            properties.append({attribute.qualifiedName().toString(), attribute.value().toString()});
    }
    return properties;
}

QVector<SvgProperty> SvgStyle::declarationsIn(const QString& sheet)
{
    QVector<SvgProperty> properties;
    for (int begin = sheet.indexOf(QLatin1Char('{')); begin >= 0; begin = sheet.indexOf(QLatin1Char('{'), begin + 1)) {
        const int end = sheet.indexOf(QLatin1Char('}'), begin);
        addDeclarations(sheet.mid(begin + 1, end < 0 ? -1 : end - begin - 1), properties);
    }
    return properties;
}

} // namespace ResourceCheck
