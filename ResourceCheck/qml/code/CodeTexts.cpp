#include "ResourceCheck/qml/code/CodeTexts.h"

namespace ResourceCheck
{

int CodeTexts::add(const QString& text, const Place& place, bool isNumber)
{
    patterns.push_back({QmlPattern::literal(text, place), isNumber});
    return static_cast<int>(patterns.size()) - 1;
}

int CodeTexts::number(const QmlPattern& pattern)
{
    // Pieces are separated by a character that no text contains, because `*` can be part of a text.
    const QString key = pattern.pieces.join(QChar(QChar::Null)) + QChar(QChar::LineFeed) + pattern.place.path
        + QStringLiteral(":%1:%2:%3%4%5")
              .arg(pattern.place.line)
              .arg(pattern.place.column)
              .arg(pattern.isUncertain)
              .arg(pattern.isPart)
              .arg(pattern.isUndefined);
    const auto known = numbers.constFind(key);
    if (known != numbers.constEnd())
        return *known;
    patterns.push_back({pattern, false});
    numbers.insert(key, static_cast<int>(patterns.size()) - 1);
    return static_cast<int>(patterns.size()) - 1;
}

} // namespace ResourceCheck
