#include "ResourceCheck/reading/JsonFile.h"

#include "ResourceFormat/RegularFile.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace
{

// Finds the places in a text that Qt's reader has accepted.
class JsonScanner
{
public:
    JsonScanner(const QString& text, const QString& path)
        : text(text)
        , path(path)
    {
    }

    JsonValue scan()
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

private:
    QChar current() const { return position < text.size() ? text.at(position) : QChar(); }

    Place place() const { return {path, line, position - lineBegin + 1}; }

    void advance()
    {
        if (text.at(position++) == QLatin1Char('\n')) {
            ++line;
            lineBegin = position;
        }
    }

    void skipBlanks()
    {
        while (position < text.size() && current().isSpace())
            advance();
    }

    void skipLiteral()
    {
        while (position < text.size() && (current().isLetterOrNumber() || QStringLiteral("+-.").contains(current())))
            advance();
    }

    void scanObject(JsonValue& object)
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

    void scanArray()
    {
        for (advance(), skipBlanks(); position < text.size() && current() != QLatin1Char(']'); skipComma())
            scan();
        advance();
    }

    void skipComma()
    {
        if (current() == QLatin1Char(','))
            advance();
        skipBlanks();
    }

    QString scanString()
    {
        const int begin = position;
        for (advance(); position < text.size() && current() != QLatin1Char('"'); advance()) {
            if (current() == QLatin1Char('\\'))
                advance();
        }
        advance();
        return decoded(text.midRef(begin, position - begin));
    }

    // Escapes are Qt's business.
    static QString decoded(const QStringRef& quoted)
    {
        const QStringRef content = quoted.mid(1, quoted.size() - 2);
        if (!content.contains(QLatin1Char('\\')) && !content.startsWith(QChar(QChar::ByteOrderMark)))
            return content.toString();
        return QJsonDocument::fromJson('[' + quoted.toUtf8() + ']').array().at(0).toString();
    }

    const QString& text;
    const QString& path;
    int position = 0;
    int line = 1;
    int lineBegin = 0;
};

Place placeOf(const QString& path, const QByteArray& before)
{
    const int line = before.count('\n') + 1;
    const QByteArray lineBefore = before.mid(before.lastIndexOf('\n') + 1);
    return {path, line, QString::fromUtf8(lineBefore).size() + 1};
}

} // namespace

JsonFile::JsonFile(const QString& path)
    : filePath(path)
{
    const QByteArray content = ResourceFormat::RegularFile::readAll(path, readProblem);
    if (!readProblem.isNull())
        return;
    const int nullCharacter = content.indexOf('\0');
    if (nullCharacter >= 0) { // Qt reads on, but no text with one gets over the bus
        jsonFault = QStringLiteral("null character");
        placeOfFault = placeOf(path, content.left(nullCharacter));
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (document.isObject()) {
        const QString text = QString::fromUtf8(content);
        rootValue = JsonScanner(text, filePath).scan();
        return;
    }
    const bool isJson = error.error == QJsonParseError::NoError;
    jsonFault = isJson ? QStringLiteral("not a JSON object") : error.errorString();
    placeOfFault = placeOf(path, content.left(isJson ? 0 : error.offset));
}
