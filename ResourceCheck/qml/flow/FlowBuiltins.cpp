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
        flow.textValues.change(name, call);
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
