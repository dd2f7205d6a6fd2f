#include "ResourceCheck/qml/flow/FlowBuiltins.h"

#include "ResourceCheck/qml/TextMethod.h"
#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

void FlowBuiltins::perform(const QString& name, const FlowCall& call)
{
    if (performOnObject(name, call) || flow.components.perform(name, call))
        return;
    const FlowValue own = self(call);
    const bool isText = !own.texts.empty();
    const bool isKnown = TextMethod::isKnown(name) || name == QLatin1String("split");
    if (isText && TextMethod::isKnown(name))
        changeTexts(name, call);
    if (isText && name == QLatin1String("split"))
        flow.lists.split(call);
    const bool isList = !own.objects.empty();
    if (isList && FlowCalls::isArrayMethod(name)) {
        flow.arrays.perform(name, call);
        return;
    }
    if (own.isUnknown || !isText || !isKnown)
        flow.graph.addUnknown(call.target);
    flow.calls.release(call);
}

FlowValue FlowBuiltins::sum(const FlowValue& left, const FlowValue& right)
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
            whole.isUncertain |= isUncertain;
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

FlowValue FlowBuiltins::argument(const FlowCall& call, size_t index)
{
    if (index >= call.arguments.size() || call.arguments[index] < 0)
        return {};
    flow.graph.watch(call.arguments[index], call.task);
    return flow.graph.value(call.arguments[index]);
}

FlowValue FlowBuiltins::self(const FlowCall& call)
{
    if (call.thisSlot < 0)
        return {};
    flow.graph.watch(call.thisSlot, call.task);
    return flow.graph.value(call.thisSlot);
}

bool FlowBuiltins::performOnObject(const QString& name, const FlowCall& call)
{
    const FlowValue first = name.startsWith(QLatin1String("Object.")) ? argument(call, 0) : FlowValue();
    if (name == QLatin1String("Object.keys") || name == QLatin1String("Object.getOwnPropertyNames"))
        flow.members.keys(first, flow.arrays.result(call));
    else if (name == QLatin1String("Object.values"))
        flow.lists.addValues(first, call);
    else if (name == QLatin1String("Object.entries"))
        flow.lists.addEntries(first, call);
    else if (name == QLatin1String("Object.assign"))
        assign(call);
    else if (name == QLatin1String("Object.freeze") || name == QLatin1String("Qt.resolvedUrl")
             || name == QLatin1String("String") || name == QLatin1String("qsTr"))
        flow.graph.add(call.target, argument(call, 0));
    else if (name == QLatin1String("Array.from") || name == QLatin1String("Array.of"))
        flow.lists.make(name, call);
    else if (name == QLatin1String("Qt.binding") || name == QLatin1String("call") || name == QLatin1String("apply")
             || name == QLatin1String("bind"))
        callFunction(name, call);
    else
        return false;
    return true;
}

void FlowBuiltins::changeTexts(const QString& name, const FlowCall& call)
{
    QVector<QVector<QmlPattern>> combinations{{}};
    for (size_t index = 0; index < call.arguments.size(); ++index) {
        const FlowValue value = argument(call, index);
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
    const FlowValue own = self(call);
    for (const int text : own.texts) {
        const QmlPattern pattern = flow.texts().pattern(text);
        for (const QVector<QmlPattern>& combination : qAsConst(combinations)) {
            const QmlPattern changed = TextMethod::apply(name, pattern, combination);
            if (changed.hasText() || changed.isLiteral())
                flow.graph.addText(call.target, flow.texts().number(changed));
            else
                flow.graph.addUnknown(call.target);
        }
    }
}

void FlowBuiltins::assign(const FlowCall& call)
{
    const FlowValue target = argument(call, 0);
    for (size_t index = 1; index < call.arguments.size(); ++index) {
        const FlowValue source = argument(call, index);
        for (const int object : target.objects) {
            if (flow.objects.at(object).kind == FlowObject::Literal)
                flow.members.spread(source, object);
        }
    }
    flow.graph.add(call.target, target);
}

void FlowBuiltins::callFunction(const QString& name, const FlowCall& call)
{
    FlowCall inner = call;
    int callee = call.thisSlot;
    if (name == QLatin1String("Qt.binding")) {
        callee = call.arguments.empty() ? -1 : call.arguments.front();
        inner.arguments.clear();
    } else if (!call.arguments.empty()) {
        inner.thisSlot = call.arguments.front();
        inner.arguments.erase(inner.arguments.begin());
    }
    if (name == QLatin1String("apply")) {
        const int list = flow.calls.scratch(call, 2);
        flow.members.elements(argument(call, 1), list);
        inner.arguments = {list};
        inner.isComplete = false;
    }
    if (callee >= 0 && name == QLatin1String("bind"))
        flow.graph.connect(callee, call.target);
    else if (callee >= 0)
        flow.calls.callAll(callee, inner, 0);
}

} // namespace ResourceCheck
