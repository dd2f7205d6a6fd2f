#include "ResourceCheck/qml/flow/FlowValue.h"

#include <algorithm>
#include <utility>

namespace ResourceCheck
{

namespace
{

bool insert(std::vector<int>& numbers, int number)
{
    const auto position = std::lower_bound(numbers.begin(), numbers.end(), number);
    if (position != numbers.end() && *position == number)
        return false;
    numbers.insert(position, number);
    return true;
}

// A pattern with the common begin and the common end of both, which matches both.
QmlPattern common(const QmlPattern& left, const QmlPattern& right)
{
    const QString& leftBegin = left.pieces.first();
    const QString& rightBegin = right.pieces.first();
    int begin = 0;
    while (begin < leftBegin.size() && begin < rightBegin.size() && leftBegin.at(begin) == rightBegin.at(begin))
        ++begin;
    const QString& leftEnd = left.pieces.last();
    const QString& rightEnd = right.pieces.last();
    const int limit =
        std::min(leftEnd.size() - (left.isLiteral() ? begin : 0), rightEnd.size() - (right.isLiteral() ? begin : 0));
    int end = 0;
    while (end < limit && leftEnd.at(leftEnd.size() - 1 - end) == rightEnd.at(rightEnd.size() - 1 - end))
        ++end;
    return {{leftBegin.left(begin), leftEnd.right(end)}, left.place, true};
}

} // namespace

bool FlowValue::addText(int text, CodeTexts& table)
{
    if (isWide)
        return cover(table.pattern(text), table);
    if (!insert(texts, text))
        return false;
    if (texts.size() > maximumTexts)
        widen(table);
    return true;
}

bool FlowValue::addObject(int object)
{
    return insert(objects, object);
}

bool FlowValue::addUnknown()
{
    return !std::exchange(isUnknown, true);
}

bool FlowValue::add(const FlowValue& other, CodeTexts& table)
{
    bool hasGrown = other.isUnknown && addUnknown();
    hasGrown |= other.isOfHost && !std::exchange(isOfHost, true);
    for (const int text : other.texts)
        hasGrown |= addText(text, table);
    if (objects.empty() && !other.objects.empty()) {
        objects = other.objects;
        return true;
    }
    for (const int object : other.objects)
        hasGrown |= addObject(object);
    return hasGrown;
}

void FlowValue::widen(CodeTexts& table)
{
    const std::vector<int> all = std::exchange(texts, {});
    isWide = true;
    texts = {all.front()};
    for (const int text : all)
        cover(table.pattern(text), table);
}

bool FlowValue::cover(const QmlPattern& pattern, CodeTexts& table)
{
    const QmlPattern& own = table.pattern(texts.front());
    const QmlPattern wide = common(own, pattern);
    if (wide.pieces == own.pieces)
        return false;
    texts = {table.number(wide)};
    return true;
}

} // namespace ResourceCheck
