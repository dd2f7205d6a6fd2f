#include "ResourceCheck/qml/QmlPattern.h"

#include <algorithm>

namespace ResourceCheck
{

bool QmlPattern::hasText() const
{
    return std::any_of(pieces.begin(), pieces.end(), [](const QString& piece) { return !piece.isEmpty(); });
}

bool QmlPattern::matches(const QString& text) const
{
    const QString& first = pieces.first();
    const QString& last = pieces.last();
    if (isLiteral())
        return text == first;
    const int end = text.size() - last.size();
    if (end < first.size() || !text.startsWith(first) || !text.endsWith(last))
        return false;
    int position = first.size();
    for (int index = 1; index < pieces.size() - 1; ++index) {
        position = text.indexOf(pieces.at(index), position);
        if (position < 0)
            return false;
        position += pieces.at(index).size();
    }
    return position <= end;
}

QmlPattern operator+(const QmlPattern& left, const QmlPattern& right)
{
    QmlPattern sum{left.pieces, left.hasText() ? left.place : right.place, left.isUncertain || right.isUncertain};
    // An empty text changes nothing: the text can still be put together with the rest of it.
    sum.isPart = (left.isPart && right.text().isEmpty()) || (right.isPart && left.text().isEmpty());
    sum.pieces.last() += right.pieces.first();
    const bool isGap = sum.pieces.last().isEmpty() && !left.isLiteral() && !right.isLiteral();
    if (isGap)
        sum.pieces.removeLast();
    sum.pieces += right.pieces.mid(1);
    return sum;
}

} // namespace ResourceCheck
