#include "ResourceCheck/qml/flow/FlowArrays.h"

#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

namespace
{

// The numbers of the slots for intermediate values.
enum Scratch { Elements = 10, Others, Results, Ignored, Unknown, FirstObject = 100 };

bool isOneOf(const QString& name, const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' ')).contains(name);
}

} // namespace

void FlowArrays::perform(const QString& name, const FlowCall& call)
{
    const int callee = call.arguments.empty() ? -1 : call.arguments.front();
    const int own = elements(call);
    if (isOneOf(name, "map flatMap")) {
        iterate(call, callee, result(call));
    } else if (isOneOf(name, "forEach some every findIndex filter find sort")) {
        iterate(call, callee, flow.calls.scratch(call, Ignored));
        if (name == QLatin1String("find"))
            flow.graph.connect(own, call.target);
        else if (isOneOf(name, "filter sort"))
            flow.graph.connect(own, result(call));
        else
            flow.graph.addUnknown(call.target);
    } else if (isOneOf(name, "pop shift at")) {
        flow.graph.connect(own, call.target);
    } else if (isOneOf(name, "reverse slice splice concat flat values")) {
        flow.graph.connect(own, result(call));
        for (size_t index = 0; index < call.arguments.size(); ++index) {
            const FlowValue added = flow.builtins.argument(call, index);
            if (name == QLatin1String("concat") && !added.objects.empty())
                flow.members.elements(added, result(call));
        }
    } else if (isOneOf(name, "push unshift fill")) {
        add(call);
    } else if (name == QLatin1String("reduce")) {
        reduce(call);
    } else if (name == QLatin1String("join")) {
        flow.lists.join(call);
    } else {
        flow.graph.addUnknown(call.target);
    }
}

int FlowArrays::result(const FlowCall& call)
{
    const int array = flow.objects.made(call.operation, call.frame, {FlowObject::Array});
    flow.graph.addObject(call.target, array);
    return flow.objects.any(array);
}

int FlowArrays::list(const FlowCall& call)
{
    return flow.calls.scratch(call, Elements);
}

int FlowArrays::elements(const FlowCall& call)
{
    const int slot = list(call);
    FlowValue arrays = flow.builtins.self(call);
    arrays.texts.clear(); // they have methods of their own
    flow.members.elements(arrays, slot);
    return slot;
}

// Calls the function for each object on its own, so that the members of objects are not mixed up, and once for all
// other elements.
void FlowArrays::iterate(const FlowCall& call, int callee, int target, int accumulator)
{
    constexpr size_t maximumObjects = 64;
    if (callee < 0)
        return;
    const int all = list(call);
    const int others = flow.calls.scratch(call, Others);
    const int unknown = flow.calls.scratch(call, Unknown);
    flow.graph.addUnknown(unknown);
    flow.graph.watch(all, call.task);
    const auto callWith = [&](int element, int slot) {
        FlowCall inner = call;
        inner.thisSlot = -1;
        inner.target = target;
        inner.isComplete = true;
        inner.arguments = {slot, unknown, call.thisSlot};
        if (accumulator >= 0)
            inner.arguments.insert(inner.arguments.begin(), accumulator);
        flow.calls.callAll(callee, inner, element);
    };
    const FlowValue value = flow.graph.value(all);
    for (const int element : value.objects) {
        if (value.objects.size() > maximumObjects) {
            flow.graph.addObject(others, element);
            continue;
        }
        const int slot = flow.calls.scratch(call, FirstObject + element);
        flow.graph.addObject(slot, element);
        callWith(element, slot);
    }
    for (const int text : value.texts)
        flow.graph.addText(others, text);
    if (value.isUnknown)
        flow.graph.addUnknown(others);
    if (!flow.graph.value(others).isEmpty())
        callWith(0, others);
}

void FlowArrays::reduce(const FlowCall& call)
{
    const int results = flow.calls.scratch(call, Results);
    if (call.arguments.size() > 1 && call.arguments[1] >= 0)
        flow.graph.connect(call.arguments[1], results);
    else
        flow.graph.connect(list(call), results);
    if (!call.arguments.empty())
        iterate(call, call.arguments.front(), results, results);
    flow.graph.connect(results, call.target);
}

void FlowArrays::add(const FlowCall& call)
{
    const FlowValue arrays = flow.builtins.self(call);
    for (const int array : arrays.objects) {
        for (const int argument : call.arguments) {
            if (argument >= 0 && flow.objects.at(array).kind == FlowObject::Array)
                flow.graph.connect(argument, flow.objects.any(array));
        }
    }
    flow.graph.addUnknown(call.target);
}

} // namespace ResourceCheck
