#include "ResourceCheck/qml/flow/FlowLists.h"

#include "ResourceCheck/qml/flow/Flow.h"

#include <algorithm>

namespace ResourceCheck
{

void FlowLists::addValues(const FlowValue& objects, const FlowCall& call)
{
    if (objects.isUnknown)
        flow.graph.addUnknown(flow.arrays.result(call));
    for (const int object : objects.objects) {
        const FlowObject::Kind kind = flow.objects.at(object).kind;
        if (kind == FlowObject::Literal || kind == FlowObject::Array)
            flow.graph.connect(flow.objects.all(object), flow.arrays.result(call));
        else
            flow.graph.addUnknown(flow.arrays.result(call));
    }
}

void FlowLists::addEntries(const FlowValue& objects, const FlowCall& call)
{
    for (const int object : objects.objects) {
        if (flow.objects.at(object).kind != FlowObject::Literal)
            continue;
        for (const int key : qAsConst(flow.objects.at(object).keys)) {
            const int entry = flow.objects.named(FlowObject::Array, QString(), call.target, key);
            const int name = flow.number(flow.texts().pattern(key).text());
            flow.graph.addText(flow.objects.member(entry, flow.number(QStringLiteral("0"))), key);
            flow.graph.connect(flow.objects.member(object, name),
                               flow.objects.member(entry, flow.number(QStringLiteral("1"))));
            flow.graph.addObject(flow.arrays.result(call), entry);
        }
    }
    if (objects.isUnknown || objects.objects.empty())
        flow.graph.addUnknown(flow.arrays.result(call));
}

void FlowLists::make(const QString& name, const FlowCall& call)
{
    if (name == QLatin1String("Array.of")) {
        for (const int argument : call.arguments) {
            if (argument >= 0)
                flow.graph.connect(argument, flow.arrays.result(call));
        }
        return;
    }
    const int list = flow.arrays.list(call);
    flow.members.elements(flow.builtins.argument(call, 0), list);
    if (call.arguments.size() > 1)
        flow.arrays.iterate(call, call.arguments[1], flow.arrays.result(call));
    else
        flow.graph.connect(list, flow.arrays.result(call));
}

void FlowLists::split(const FlowCall& call)
{
    const FlowValue own = flow.builtins.self(call);
    const FlowValue separators = flow.builtins.argument(call, 0);
    for (const int text : own.texts) {
        const QmlPattern pattern = flow.texts().pattern(text);
        for (const int separator : separators.texts) {
            const QmlPattern by = flow.texts().pattern(separator);
            if (!pattern.isLiteral() || !by.isLiteral() || by.text().isEmpty()) {
                flow.graph.addUnknown(flow.arrays.result(call));
                continue;
            }
            for (const QString& part : pattern.text().split(by.text()))
                flow.graph.addText(flow.arrays.result(call),
                                   flow.texts().number(QmlPattern::literal(part, pattern.place)));
        }
    }
    if (separators.texts.empty())
        flow.graph.addUnknown(flow.arrays.result(call));
}

// Only an array that lists its elements can be joined.
void FlowLists::join(const FlowCall& call)
{
    constexpr int maximumElements = 16;
    const FlowValue arrays = flow.builtins.self(call);
    FlowValue separator = flow.builtins.argument(call, 0);
    for (const int array : arrays.objects) {
        const FlowObject object = flow.objects.at(array);
        const int size = object.members.size();
        const bool isOpen = object.any >= 0 && !flow.graph.value(object.any).isEmpty();
        if (object.kind != FlowObject::Array || isOpen || size == 0 || size > maximumElements || separator.isEmpty()) {
            flow.graph.addUnknown(call.target);
            continue;
        }
        FlowValue whole;
        for (int index = 0; index < size; ++index) {
            const int slot = flow.objects.member(array, flow.number(QString::number(index)));
            flow.graph.watch(slot, call.task);
            const FlowValue part = flow.graph.value(slot);
            whole = index == 0 ? part : flow.textValues.sum(flow.textValues.sum(whole, separator), part);
        }
        flow.graph.add(call.target, whole);
    }
}

// The index of elements behind other elements is not known: they are in the last slot.
void FlowLists::addArguments(int slot, FlowCall& call)
{
    const int rest = flow.calls.scratch(call, 0);
    flow.graph.watch(slot, call.task);
    flow.graph.watch(rest, call.task);
    const FlowValue arrays = flow.graph.value(slot);
    FlowValue others = arrays;
    others.objects.clear();
    int count = 0;
    for (const int object : arrays.objects) {
        const int own = call.isComplete ? elementCount(object) : -1;
        count = std::max(count, own);
        if (own < 0) {
            others.addObject(object);
        } else {
            flow.graph.watch(flow.objects.all(object), call.task);
            flow.graph.connect(flow.objects.any(object), rest);
        }
    }
    flow.members.elements(others, rest);
    for (int index = 0; index < count; ++index) {
        call.arguments.push_back(flow.calls.scratch(call, -1 - index));
        flow.graph.connect(rest, call.arguments.back());
        for (const int object : arrays.objects) {
            const QHash<int, int>& members = flow.objects.at(object).members;
            const auto member = members.constFind(flow.number(QString::number(index)));
            if (member != members.constEnd())
                flow.graph.connect(*member, call.arguments.back());
        }
    }
}

// -1 if it is not an array or has members other than its first elements.
int FlowLists::elementCount(int object)
{
    const FlowObject& array = flow.objects.at(object);
    int count = 0;
    while (array.members.contains(flow.number(QString::number(count))))
        ++count;
    return array.kind == FlowObject::Array && count == array.members.size() ? count : -1;
}

} // namespace ResourceCheck
