#include "ResourceCheck/reading/JsonFile.h"

#include "ResourceCheck/reading/JsonScanner.h"
#include "ResourceFormat/RegularFile.h"

#include <QJsonDocument>

namespace ResourceCheck
{

namespace
{

Place placeAfter(const QByteArray& before, const QString& path)
{
    const auto line = before.count('\n') + 1;
    const QByteArray lineBefore = before.mid(before.lastIndexOf('\n') + 1);
    return {path, static_cast<int>(line), static_cast<int>(QString::fromUtf8(lineBefore).size()) + 1};
}

} // namespace

JsonFile::JsonFile(const QString& path)
    : filePath(path)
{
    const QByteArray content = ResourceFormat::RegularFile::readAll(path, readProblem);
    if (readProblem.isNull())
        parse(content);
}

JsonFile::JsonFile(const QString& path, const QByteArray& content)
    : filePath(path)
{
    parse(content);
}

void JsonFile::parse(const QByteArray& content)
{
    // Qt accepts null characters, but a text with one cannot be sent over the D-Bus.
    const int nullCharacter = content.indexOf('\0');
    if (nullCharacter >= 0) {
        jsonFault = QStringLiteral("the file contains a null character; remove it");
        placeOfFault = placeAfter(content.left(nullCharacter), filePath);
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (document.isObject()) {
        const QString text = QString::fromUtf8(content);
        rootValue = JsonScanner(text, filePath).scan();
    } else if (error.error == QJsonParseError::NoError) {
        jsonFault = QStringLiteral("the file does not contain a JSON object; enclose its content in { }");
        placeOfFault = placeAfter(QByteArray(), filePath);
    } else {
        jsonFault = QStringLiteral("invalid JSON: %1; correct it here or shortly before").arg(error.errorString());
        placeOfFault = placeAfter(content.left(error.offset), filePath);
    }
}

} // namespace ResourceCheck
