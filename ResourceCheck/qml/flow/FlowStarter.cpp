#include "ResourceCheck/qml/flow/FlowStarter.h"

#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

namespace
{

void addTypes(const CodeUnit& unit, const FrontEnd& frontEnd, QSet<const CodeUnit*>& types)
{
    for (const CodeObject& object : unit.objects)
        types.insert(frontEnd.type(*unit.file, object.type).unit);
    for (const auto& inner : unit.units)
        addTypes(*inner, frontEnd, types);
}

qint64 sizeOf(const CodeUnit& unit)
{
    auto size = static_cast<qint64>(unit.operations.size()) + static_cast<qint64>(unit.objects.size());
    for (const auto& inner : unit.units)
        size += sizeOf(*inner);
    return size;
}

} // namespace

void FlowStarter::startFiles()
{
    QSet<const CodeUnit*> types;
    qint64 size = 0;
    for (const auto& [path, file] : flow.frontEnd.files()) {
        if (file.unit != nullptr) {
            addTypes(*file.unit, flow.frontEnd, types);
            size += sizeOf(*file.unit);
        }
    }
    constexpr qint64 copies = 8; // of each piece of code, on average
    constexpr qint64 minimum = 100000;
    flow.frames.setLimit(copies * size + minimum);
    for (const auto& [path, file] : flow.frontEnd.files()) {
        const bool isRoot = file.unit != nullptr && file.unit->kind == CodeUnit::Component && !file.isSingleton
            && !types.contains(file.unit.get());
        if (isRoot && !file.unit->objects.empty())
            openToHost(flow.instances.instantiate(*file.unit, nullptr, nullptr));
    }
}

void FlowStarter::openToHost(int root)
{
    FlowValue ofHost;
    ofHost.isOfHost = true;
    const QVector<const CodeObject*> definitions = flow.objects.at(root).definitions;
    for (const CodeObject* definition : definitions) {
        for (const CodeProperty& property : definition->properties) {
            if (!property.isReadonly && !property.isSignal)
                flow.graph.add(flow.objects.member(root, property.name), ofHost);
        }
    }
}

bool FlowStarter::startUnreached()
{
    return startUnreachedObjects() || startUnreachedFile() || startComparisons() || flow.missing.start();
}

bool FlowStarter::startComparisons()
{
    bool isAny = false;
    for (const int slot : qAsConst(compared)) {
        if (flow.graph.value(slot).isEmpty()) {
            flow.graph.addUnknown(slot);
            isAny = true;
        }
    }
    return isAny;
}

bool FlowStarter::startUnreachedFile()
{
    for (const auto& [path, file] : flow.frontEnd.files()) {
        if (file.unit == nullptr || flow.frames.isReached(*file.unit))
            continue;
        if (file.unit->kind == CodeUnit::Module) {
            flow.frames.module(file);
            return true;
        }
        if (!file.unit->objects.empty()) {
            flow.instances.shared(*file.unit);
            return true;
        }
    }
    return false;
}

// In the order of their creation: a function that starts others comes before them.
bool FlowStarter::startUnreachedObjects()
{
    for (; firstUnseen < flow.objects.size(); ++firstUnseen) {
        const FlowObject object = flow.objects.at(firstUnseen);
        if (object.unit == nullptr || object.frame == nullptr || flow.frames.isReached(*object.unit))
            continue;
        if (object.kind == FlowObject::Function) {
            flow.frames.callUnknown(firstUnseen);
            return true;
        }
        if (object.kind == FlowObject::Component && !object.unit->objects.empty()) {
            const int element = flow.graph.addSlots(1);
            flow.graph.addUnknown(element);
            flow.instances.instantiate(*object.unit, object.frame, object.frame, element);
            return true;
        }
    }
    return false;
}

void FlowStarter::start(const CodeOperation& operation, FlowFrame& frame)
{
    const auto slot = [&frame](CodeSlot own) { return own.isValid() ? frame.slot(own) : -1; };
    const int left = slot(operation.left);
    const int right = slot(operation.right);
    switch (operation.action) {
    case CodeAction::Copy:
        flow.graph.connect(left, slot(operation.target));
        break;
    case CodeAction::Default:
        if (frame.argumentCount <= operation.number)
            flow.graph.connect(left, slot(operation.target));
        else
            flow.addTask({&operation, &frame}, {slot(operation.target)});
        break;
    case CodeAction::Name:
        flow.graph.makeDue(flow.addTask({&operation, &frame}, {}));
        break;
    case CodeAction::SetName:
        flow.names.assign(operation, frame);
        break;
    case CodeAction::Array:
    case CodeAction::Text:
    case CodeAction::Unknown:
    case CodeAction::Object:
    case CodeAction::Function:
    case CodeAction::Component:
        startValue(operation, frame);
        break;
    case CodeAction::Spread:
        flow.addTask({&operation, &frame}, {left, slot(operation.target)});
        break;
    default:
        flow.addTask({&operation, &frame}, {left, right});
    }
}

void FlowStarter::startValue(const CodeOperation& operation, FlowFrame& frame)
{
    const int target = frame.slot(operation.target);
    const auto inner = [&] { return frame.unit->units[static_cast<size_t>(operation.number)].get(); };
    const auto make = [&](const FlowObject& object) {
        const int number = flow.objects.made(&operation, &frame, object);
        flow.graph.addObject(target, number);
        return number;
    };
    if (operation.action == CodeAction::Text) {
        flow.graph.addText(target, operation.number);
    } else if (operation.action == CodeAction::Unknown) {
        flow.graph.addUnknown(target);
    } else if (operation.action == CodeAction::Object) {
        make({FlowObject::Literal});
    } else if (operation.action == CodeAction::Function) {
        make({FlowObject::Function, inner(), &frame});
    } else if (operation.action == CodeAction::Component) {
        make({FlowObject::Component, inner(), &frame});
    } else {
        const int array = make({FlowObject::Array});
        int index = 0;
        for (const CodeArgument& argument : operation.arguments) {
            if (argument.isSpread && argument.slot.isValid())
                flow.addTask({&operation, &frame}, {frame.slot(argument.slot)});
            else if (argument.slot.isValid())
                flow.graph.connect(frame.slot(argument.slot),
                                   flow.objects.member(array, flow.number(QString::number(index))));
            ++index;
        }
    }
}

} // namespace ResourceCheck
