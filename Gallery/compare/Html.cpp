#include "Gallery/compare/Html.h"

#include <QBuffer>

namespace Gallery::Html
{

namespace
{

// Control characters, those that change the direction of the text, and what cannot be part of a page at all.
bool mustBeVisible(QChar character)
{
    const ushort code = character.unicode();
    const bool isBreak = code == '\n' || code == '\t';
    const bool isDirection = code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E)
        || (code >= 0x2066 && code <= 0x2069);
    return isDirection || (character.category() == QChar::Other_Control && !isBreak);
}

} // namespace

QString escaped(const QString& text)
{
    QString visible;
    for (const QChar character : text) {
        if (mustBeVisible(character))
            visible += QStringLiteral("[U+%1]").arg(character.unicode(), 4, 16, QLatin1Char('0')).toUpper();
        else
            visible += character;
    }
    return visible.toHtmlEscaped();
}

QString element(const QString& name, const QString& attributes, const QString& text)
{
    return QStringLiteral("<%1%2>%3</%1>").arg(name, attributes, escaped(text));
}

QString image(const QImage& picture, const QString& alternativeText, const QString& cssClass, int scale)
{
    QBuffer png;
    picture.save(&png, "PNG");
    return QStringLiteral(R"(<img class="%1" width="%2" height="%3" alt="%4" src="data:image/png;base64,%5">)")
        .arg(cssClass, QString::number(picture.width() / scale), QString::number(picture.height() / scale),
             escaped(alternativeText), QString::fromLatin1(png.data().toBase64()));
}

} // namespace Gallery::Html
