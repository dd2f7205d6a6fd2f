#include "Gallery/TextPart.h"

#include <QRegularExpression>

#include <algorithm>

namespace Gallery
{

QVector<TextPart> TextPart::of(const QString& text)
{
    static const QRegularExpression fixed(
        QStringLiteral("%L?(?:[0-9]{1,2}|n)|\\{[^{}]*\\}|<[/!]?[A-Za-z][^<>]*>|&(?:#?[A-Za-z0-9]+);|[\\n\\r\\t]"));
    QVector<TextPart> parts;
    int end = 0;
    for (auto matches = fixed.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (match.capturedStart() > end)
            parts.append({text.mid(end, match.capturedStart() - end), false});
        parts.append({match.captured(), true});
        end = match.capturedEnd();
    }
    if (end < text.size())
        parts.append({text.mid(end), false});
    return parts;
}

bool TextPart::hasLetters(const QString& text)
{
    const QVector<TextPart> parts = of(text);
    return std::any_of(parts.begin(), parts.end(), [](const TextPart& part) {
        const auto isLetter = [](QChar character) { return character.isLetter() || character.isSurrogate(); };
        return !part.isFixed && std::any_of(part.text.begin(), part.text.end(), isLetter);
    });
}

} // namespace Gallery
