#include "ResourceCheck/reading/JsonScanner.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace ResourceCheck
{

JsonScanner::JsonScanner(const QString& jsonText, const QString& filePath)
    : text(jsonText)
    , path(filePath)
{
}

JsonValue JsonScanner::scan()
{
    skipBlanks();
    JsonValue value;
    value.place = place();
    if (current() == QLatin1Char('{')) {
        value.type = JsonValue::Type::Object;
        scanObject(value);
    } else if (current() == QLatin1Char('"')) {
        value.type = JsonValue::Type::String;
        value.text = scanString();
    } else if (current() == QLatin1Char('[')) {
        scanArray();
    } else {
        skipLiteral();
    }
    skipBlanks();
    return value;
}

QChar JsonScanner::current() const
{
    return position < text.size() ? text.at(position) : QChar();
}

Place JsonScanner::place() const
{
    return {path, line, position - lineBegin + 1};
}

void JsonScanner::advance()
{
    if (text.at(position++) == QLatin1Char('\n')) {
        ++line;
        lineBegin = position;
    }
}

void JsonScanner::skipBlanks()
{
    while (position < text.size() && current().isSpace())
        advance();
}

void JsonScanner::skipLiteral()
{
    while (position < text.size() && (current().isLetterOrNumber() || QStringLiteral("+-.").contains(current())))
        advance();
}

void JsonScanner::skipComma()
{
    if (current() == QLatin1Char(','))
        advance();
    skipBlanks();
}

void JsonScanner::scanObject(JsonValue& object)
{
    for (advance(), skipBlanks(); position < text.size() && current() != QLatin1Char('}');) {
        const Place namePlace = place();
        const QString name = scanString();
        skipBlanks();
        advance(); // the colon
        JsonValue member = scan();
        member.name = name;
        member.namePlace = namePlace;
        object.members.append(member);
        skipComma();
    }
    advance();
}

void JsonScanner::scanArray()
{
    for (advance(), skipBlanks(); position < text.size() && current() != QLatin1Char(']'); skipComma())
        scan();
    advance();
}

QString JsonScanner::scanString()
{
    const int begin = position;
    for (advance(); position < text.size() && current() != QLatin1Char('"'); advance()) {
        if (current() == QLatin1Char('\\'))
            advance();
    }
    advance();
    return decoded(QStringView(text).mid(begin, position - begin));
}

// Qt's reader decodes escapes.
QString JsonScanner::decoded(QStringView quoted)
{
    const QStringView content = quoted.mid(1, quoted.size() - 2);
    if (!content.contains(QLatin1Char('\\')) && !content.startsWith(QChar(QChar::ByteOrderMark)))
        return content.toString();
    return QJsonDocument::fromJson('[' + quoted.toUtf8() + ']').array().at(0).toString();
}

} // namespace ResourceCheck
