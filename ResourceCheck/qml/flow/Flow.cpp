#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

Flow::Flow(FrontEnd& codeOfFrontEnd, const QHash<QString, QString>& handlers)
    : frontEnd(codeOfFrontEnd)
    , handlerNames(handlers)
    , graph(codeOfFrontEnd.tables.texts)
    , objects(graph)
    , frames(*this)
    , instances(*this)
    , starter(*this)
    , names(*this)
    , members(*this)
    , reader(*this)
    , calls(*this)
    , builtins(*this)
    , components(*this)
    , arrays(*this)
    , lists(*this)
    , missing(*this)
    , textValues(*this)
    , delegates(*this)
    , uses(*this)
{
    for (auto name = handlers.keyBegin(); name != handlers.keyEnd(); ++name) {
        for (int dot = name->indexOf(QLatin1Char('.')); dot >= 0; dot = name->indexOf(QLatin1Char('.'), dot + 1))
            handlerOwners.insert(name->left(dot));
    }
}

void Flow::run()
{
    starter.startFiles();
    do {
        for (int task = graph.nextTask(); task >= 0; task = graph.nextTask())
            perform(task);
    } while (starter.startUnreached());
}

int Flow::addTask(const FlowTask& task, std::initializer_list<int> slots)
{
    tasks.push_back(task);
    const int number = static_cast<int>(tasks.size()) - 1;
    for (const int slot : slots) {
        if (slot >= 0)
            graph.watch(slot, number);
    }
    return number;
}

void Flow::perform(int number)
{
    const FlowTask task = tasks[static_cast<size_t>(number)];
    if (task.operation == nullptr)
        delegates.perform(task.object, task.name, number);
    else
        perform(number, *task.operation, *task.frame);
}

void Flow::perform(int number, const CodeOperation& operation, FlowFrame& frame)
{
    const auto value = [this, &frame](CodeSlot slot) {
        return slot.isValid() ? graph.value(frame.slot(slot)) : FlowValue();
    };
    const FlowValue left = operation.action == CodeAction::Name ? FlowValue() : value(operation.left);
    const int target = operation.target.isValid() ? frame.slot(operation.target) : -1;
    const int right = operation.right.isValid() ? frame.slot(operation.right) : -1;
    switch (operation.action) {
    case CodeAction::Name:
        return names.connect(operation, frame, number);
    case CodeAction::Default:
        return textValues.isUndefined(graph.value(target)) ? graph.connect(frame.slot(operation.left), target) : void();
    case CodeAction::Get:
        return members.get(left, operation.number, target, operation, &frame);
    case CodeAction::GetAt:
        return members.getAt(left, value(operation.right), target, operation, &frame);
    case CodeAction::Set:
        return members.set(left, operation.number, right);
    case CodeAction::SetAt:
    case CodeAction::SetKey:
        return members.setAt(left, value(operation.right), target);
    case CodeAction::Call:
    case CodeAction::New:
        return calls.perform(operation, frame, number);
    case CodeAction::Element:
        return members.elements(left, target);
    case CodeAction::Keys:
        return members.keys(left, target);
    case CodeAction::Import:
        return reader.import(left, operation.number, target, operation, frame);
    case CodeAction::Add:
        return graph.add(target, textValues.sum(left, value(operation.right)));
    case CodeAction::Without:
    case CodeAction::Only:
        starter.addComparison(right);
        return graph.add(target, textValues.restricted(left, value(operation.right), operation.action));
    default:
        performSpread(operation, frame);
    }
}

void Flow::performSpread(const CodeOperation& operation, FlowFrame& frame)
{
    const FlowValue target = graph.value(frame.slot(operation.target));
    for (const int object : target.objects) {
        if (operation.left.isValid())
            members.spread(graph.value(frame.slot(operation.left)), object);
        for (const CodeArgument& argument : operation.arguments) {
            if (argument.isSpread && argument.slot.isValid())
                members.elements(graph.value(frame.slot(argument.slot)), objects.any(object));
        }
    }
}

} // namespace ResourceCheck
