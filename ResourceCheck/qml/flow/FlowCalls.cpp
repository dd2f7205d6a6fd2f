#include "ResourceCheck/qml/flow/FlowCalls.h"

#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

bool FlowCalls::isArrayMethod(const QString& name)
{
    static const QSet<QString> names{
        QStringLiteral("map"),     QStringLiteral("forEach"),  QStringLiteral("filter"),    QStringLiteral("find"),
        QStringLiteral("some"),    QStringLiteral("every"),    QStringLiteral("findIndex"), QStringLiteral("reduce"),
        QStringLiteral("sort"),    QStringLiteral("reverse"),  QStringLiteral("slice"),     QStringLiteral("splice"),
        QStringLiteral("concat"),  QStringLiteral("flat"),     QStringLiteral("flatMap"),   QStringLiteral("push"),
        QStringLiteral("unshift"), QStringLiteral("pop"),      QStringLiteral("shift"),     QStringLiteral("join"),
        QStringLiteral("indexOf"), QStringLiteral("includes"), QStringLiteral("fill"),      QStringLiteral("at"),
        QStringLiteral("entries"), QStringLiteral("keys"),     QStringLiteral("values"),    QStringLiteral("length"),
    };
    return names.contains(name);
}

bool FlowCalls::isInstanceMethod(const QString& name)
{
    static const QSet<QString> names{
        QStringLiteral("get"),     QStringLiteral("append"), QStringLiteral("insert"),
        QStringLiteral("set"),     QStringLiteral("push"),   QStringLiteral("setProperty"),
        QStringLiteral("replace"), QStringLiteral("itemAt"), QStringLiteral("setSource"),
    };
    return names.contains(name);
}

void FlowCalls::perform(const CodeOperation& operation, FlowFrame& frame, int task)
{
    FlowCall call{&operation,
                  &frame,
                  task,
                  operation.right.isValid() ? frame.slot(operation.right) : -1,
                  {},
                  true,
                  frame.slot(operation.target)};
    for (const CodeArgument& argument : operation.arguments) {
        const int slot = argument.slot.isValid() ? frame.slot(argument.slot) : -1;
        if (argument.isSpread && slot >= 0)
            flow.lists.addArguments(slot, call);
        else if (!call.isComplete && slot >= 0)
            flow.graph.connect(slot, scratch(call, 0));
        else
            call.arguments.push_back(slot);
        call.isComplete = call.isComplete && !argument.isSpread;
    }
    if (!call.isComplete)
        call.arguments.push_back(scratch(call, 0));
    if (operation.left.isValid())
        callAll(frame.slot(operation.left), call);
}

void FlowCalls::callAll(int callee, const FlowCall& call, int element)
{
    const FlowValue value = flow.graph.value(callee);
    flow.graph.watch(callee, call.task);
    if (value.isUnknown) {
        flow.graph.addUnknown(call.target);
        release(call);
    }
    for (const int text : value.texts) {
        if (flow.texts().pattern(text).isUndefined)
            flow.graph.addText(call.target, text);
    }
    for (const int object : value.objects) {
        if (call.operation->action == CodeAction::New && element < 0)
            construct(object, call);
        else
            callObject(object, call, element);
    }
}

void FlowCalls::release(const FlowCall& call)
{
    for (const int argument : call.arguments) {
        if (argument < 0)
            continue;
        flow.graph.watch(argument, call.task);
        const FlowValue value = flow.graph.value(argument);
        for (const int object : value.objects) {
            if (flow.objects.at(object).kind == FlowObject::Function)
                flow.frames.callUnknown(object);
            flow.objects.at(object).isOpen = true;
        }
    }
}

int FlowCalls::scratch(const FlowCall& call, int number)
{
    const auto entry = scratchSlots.emplace(std::make_tuple(call.operation, call.frame, number), -1).first;
    if (entry->second < 0)
        entry->second = flow.graph.addSlots(1);
    return entry->second;
}

void FlowCalls::callObject(int object, const FlowCall& call, int element)
{
    const FlowObject callee = flow.objects.at(object);
    switch (callee.kind) {
    case FlowObject::Function:
        flow.frames.call(object, {call.operation, call.frame, element}, call.thisSlot, call.arguments, call.isComplete,
                         call.target);
        break;
    case FlowObject::Method:
        flow.uses.record(callee.name, *call.operation, *call.frame, call.arguments, call.isComplete);
        flow.graph.addUnknown(call.target);
        break;
    case FlowObject::Signal:
        emitSignal(callee, call);
        break;
    case FlowObject::Builtin:
        callBuiltin(callee.path, call);
        break;
    default:
        flow.graph.addUnknown(call.target);
    }
}

void FlowCalls::callBuiltin(const QString& name, FlowCall call)
{
    const bool hasRest = !call.isComplete && !call.arguments.empty() && call.arguments.back() >= 0;
    if (hasRest && flow.graph.value(call.arguments.back()).isEmpty())
        call.arguments.pop_back();
    flow.builtins.perform(name, call);
}

void FlowCalls::emitSignal(const FlowObject& signal, const FlowCall& call)
{
    const QString name = flow.name(signal.name);
    const QString handler = QStringLiteral("on") + name.at(0).toUpper() + name.mid(1);
    callAll(flow.delegates.member(signal.owner, flow.number(handler)), call, 0);
    const QVector<const CodeObject*> definitions = flow.objects.at(signal.owner).definitions;
    for (const CodeObject* definition : definitions) {
        for (const CodeProperty& property : definition->properties) {
            if (!property.isSignal || property.name != signal.name)
                continue;
            for (int index = 0; index < property.parameters.size(); ++index) {
                const QString parameter = QLatin1Char('@') + flow.name(property.parameters.at(index));
                const int slot = flow.objects.member(signal.owner, flow.number(parameter));
                const auto argument = static_cast<size_t>(index);
                if (argument < call.arguments.size() && call.arguments[argument] >= 0)
                    flow.graph.connect(call.arguments[argument], slot);
            }
        }
    }
}

// A class is an object with its methods.
void FlowCalls::construct(int object, const FlowCall& call)
{
    const FlowObject::Kind kind = flow.objects.at(object).kind;
    FlowCall constructor = call;
    constructor.thisSlot = call.target;
    constructor.target = scratch(call, 1);
    if (kind == FlowObject::Literal) {
        flow.graph.addObject(call.target, object);
        callAll(flow.objects.member(object, flow.number(QStringLiteral("constructor"))), constructor, 0);
    } else if (kind == FlowObject::Function) {
        const int made = flow.objects.made(call.operation, call.frame, {FlowObject::Literal});
        flow.objects.at(made).isOpen = true; // it has the members of the prototype
        flow.graph.addObject(call.target, made);
        callObject(object, constructor, 0);
    } else {
        flow.graph.addUnknown(call.target);
        release(call);
    }
}

} // namespace ResourceCheck
