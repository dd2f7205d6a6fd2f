#include "ResourceCheck/qml/flow/FlowTexts.h"

#include "ResourceCheck/qml/TextMethod.h"
#include "ResourceCheck/qml/flow/Flow.h"

#include <algorithm>

namespace ResourceCheck
{

namespace
{

// Whether both are parts of a text that is written in one place.
bool isOfSameText(const QmlPattern& left, const QmlPattern& right)
{
    return left.isPart && right.isPart && left.place.line == right.place.line && left.place.column == right.place.column
        && left.place.path == right.place.path;
}

bool hasPartner(const QmlPattern& part, const QVector<QmlPattern>& others)
{
    return part.isPart
        && std::any_of(others.begin(), others.end(), [&](const auto& other) { return isOfSameText(part, other); });
}

} // namespace

FlowValue FlowTexts::sum(const FlowValue& left, const FlowValue& right)
{
    FlowValue result;
    if (left.isEmpty() || right.isEmpty())
        return result;
    const auto patternsOf = [this](const FlowValue& value) {
        QVector<QmlPattern> list;
        for (const int text : value.texts)
            list.append(flow.texts().pattern(text));
        if (value.isUnknown || value.texts.empty())
            list.append(QmlPattern::anything());
        return list;
    };
    const bool areNumbers = !left.texts.empty() && !right.texts.empty() && flow.texts().isNumber(left.texts.front())
        && flow.texts().isNumber(right.texts.front());
    const QVector<QmlPattern> lefts = patternsOf(left);
    const QVector<QmlPattern> rights = patternsOf(right);
    if (areNumbers || (left.texts.empty() && right.texts.empty())) {
        result.addUnknown();
        return result;
    }
    const bool isUncertain = lefts.size() > 1 && rights.size() > 1;
    const bool isTooLarge = lefts.size() * rights.size() > static_cast<int>(4 * FlowValue::maximumTexts);
    for (const QmlPattern& first : lefts) {
        for (const QmlPattern& second : rights) {
            QmlPattern whole = first + (isTooLarge ? QmlPattern::anything() : second);
            const bool areOfOneText = isOfSameText(first, second);
            if (!areOfOneText && hasPartner(first, rights) && hasPartner(second, lefts))
                continue; // the begin of one text and the end of another
            whole.isUncertain |= isUncertain && !areOfOneText;
            if (whole.hasText())
                result.addText(flow.texts().number(whole), flow.texts());
            else if (!whole.isLiteral())
                result.addUnknown();
            if (isTooLarge)
                break;
        }
    }
    return result;
}

void FlowTexts::addLetters(const FlowValue& own, const FlowValue& numbers, int target)
{
    if (numbers.isUnknown)
        flow.graph.addUnknown(target);
    for (const int text : own.texts) {
        for (const int number : numbers.texts)
            addResult(QStringLiteral("charAt"), text, {flow.texts().pattern(number)}, target);
    }
}

void FlowTexts::change(const QString& method, const FlowCall& call)
{
    QVector<QVector<QmlPattern>> combinations{{}};
    for (size_t index = 0; index < call.arguments.size(); ++index) {
        const FlowValue value = flow.builtins.argument(call, index);
        QVector<QVector<QmlPattern>> longer;
        for (const QVector<QmlPattern>& combination : qAsConst(combinations)) {
            for (const int text : value.texts)
                longer.append(combination + QVector<QmlPattern>{flow.texts().pattern(text)});
            if (value.texts.empty() || value.isUnknown)
                longer.append(combination + QVector<QmlPattern>{QmlPattern::anything()});
        }
        constexpr int maximum = 64;
        combinations = longer.mid(0, maximum);
        if (longer.size() > maximum)
            flow.graph.addUnknown(call.target);
    }
    const FlowValue own = flow.builtins.self(call);
    for (const int text : own.texts) {
        for (const QVector<QmlPattern>& combination : qAsConst(combinations))
            addResult(method, text, combination, call.target);
    }
}

void FlowTexts::addResult(const QString& method, int text, const QVector<QmlPattern>& arguments, int target)
{
    const QmlPattern changed = TextMethod::apply(method, flow.texts().pattern(text), arguments);
    if (changed.hasText() || changed.isLiteral())
        flow.graph.addText(target, flow.texts().number(changed));
    else
        flow.graph.addUnknown(target);
}

bool FlowTexts::isUndefined(const FlowValue& value) const
{
    return std::any_of(value.texts.begin(), value.texts.end(),
                       [this](int text) { return flow.texts().pattern(text).isUndefined; });
}

// A value that can be one of several texts may still differ from each of them.
bool FlowTexts::isKnown(const FlowValue& value, CodeAction action) const
{
    const auto isPossible = [&](int number) {
        const QmlPattern& pattern = flow.texts().pattern(number);
        return pattern.isLiteral()
            && (action == CodeAction::Only || pattern.text() == flow.texts().pattern(value.texts.front()).text());
    };
    const bool isOpen = value.isUnknown || (value.isOfHost && value.texts.empty());
    return !isOpen && value.objects.empty() && std::all_of(value.texts.begin(), value.texts.end(), isPossible);
}

FlowValue FlowTexts::restricted(const FlowValue& value, const FlowValue& other, CodeAction action)
{
    const auto isListed = [&](int text) {
        const QmlPattern& own = flow.texts().pattern(text);
        const bool isFalse = own.isUndefined && action == CodeAction::Without; // as an empty text is
        return std::any_of(other.texts.begin(), other.texts.end(), [&](int number) {
            const QString listed = flow.texts().pattern(number).text();
            return listed == own.text() || (isFalse && listed.isEmpty());
        });
    };
    FlowValue result;
    if (other.isEmpty())
        return result;
    if (!isKnown(other, action))
        return value;
    result.objects = value.objects;
    result.isWide = value.isWide;
    result.isUnknown = value.isUnknown && action == CodeAction::Without;
    result.isOfHost = value.isOfHost && action == CodeAction::Without;
    for (const int text : value.texts) {
        const bool isLiteral = flow.texts().pattern(text).isLiteral();
        if (!isLiteral || isListed(text) == (action == CodeAction::Only))
            result.texts.push_back(text);
    }
    if (value.isUnknown && action == CodeAction::Only)
        result.add(other, flow.texts());
    return result;
}

} // namespace ResourceCheck
