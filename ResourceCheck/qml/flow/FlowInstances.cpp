#include "ResourceCheck/qml/flow/FlowInstances.h"

#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

int FlowInstances::instantiate(const CodeUnit& unit, FlowFrame* parent, const FlowFrame* maker, int element)
{
    FlowFrame& frame = flow.frames.make(unit, parent, maker);
    frame.element = element;
    instantiate(frame, -1);
    return frame.objects.front();
}

FrontEnd::Type FlowInstances::typeOf(const CodeObject& definition, const CodeFile& file)
{
    const auto known = types.constFind(&definition);
    return known != types.constEnd() ? *known : *types.insert(&definition, flow.frontEnd.type(file, definition.type));
}

void FlowInstances::instantiate(FlowFrame& frame, int root)
{
    const CodeUnit& unit = *frame.unit;
    QVector<FrontEnd::Type> inherited;
    for (const CodeObject& definition : unit.objects) {
        const FrontEnd::Type type = typeOf(definition, *unit.file);
        const bool isRoot = inherited.isEmpty();
        int object = isRoot ? root : -1;
        const bool isShared = type.unit != nullptr && object < 0 && flow.frames.mustShare(*type.unit, &frame);
        if (object < 0 && isShared)
            object = shared(*type.unit);
        else if (object < 0)
            object = flow.objects.add({FlowObject::Instance, nullptr, &frame});
        frame.objects.push_back(object);
        inherited.append(isShared ? FrontEnd::Type() : type);
    }
    for (size_t index = 0; index < unit.objects.size(); ++index) {
        const CodeObject& definition = unit.objects[index];
        const int object = frame.objects[index];
        flow.graph.addObject(frame.firstSlot + definition.slot, object);
        flow.objects.at(object).definitions.append(&definition);
        bind(object, definition, frame);
        if (definition.parent >= 0) {
            const int parent = flow.number(QStringLiteral("parent"));
            flow.graph.addObject(flow.objects.member(object, parent),
                                 frame.objects[static_cast<size_t>(definition.parent)]);
            flow.objects.at(object).bound.insert(parent);
        }
        const CodeUnit* type = inherited.at(static_cast<int>(index)).unit;
        constexpr int maximumBases = 32; // a type that is its own base has more
        if (type != nullptr && flow.objects.at(object).definitions.size() < maximumBases)
            instantiate(flow.frames.make(*type, nullptr, &frame), object);
    }
    if (frame.element >= 0)
        connectRequired(frame.objects.front(), frame);
    flow.frames.start(frame);
}

int FlowInstances::shared(const CodeUnit& unit)
{
    const auto known = sharedObjects.constFind(&unit);
    if (known != sharedObjects.constEnd())
        return *known;
    const int object = flow.objects.add({FlowObject::Instance});
    flow.objects.at(object).isShared = true;
    sharedObjects.insert(&unit, object); // before the component is found in itself
    instantiate(flow.frames.make(unit, nullptr, nullptr), object);
    return object;
}

// The outermost binding of a property replaces the others. This does not hold for an object that stands for several.
void FlowInstances::bind(int object, const CodeObject& definition, FlowFrame& frame)
{
    QVector<int> bound;
    for (const CodeBinding& binding : definition.bindings) {
        const int name = binding.path.first();
        const bool isReplaced = flow.objects.at(object).bound.contains(name) && !flow.objects.at(object).isShared;
        if (binding.path.size() > 1)
            bindGroup(object, binding, frame);
        else if (binding.isAlias || !isReplaced)
            flow.graph.connect(frame.slot(binding.value), flow.delegates.member(object, name));
        if (!binding.isAlias)
            bound.append(name);
    }
    for (const int name : qAsConst(bound))
        flow.objects.at(object).bound.insert(name);
}

// The group is an object of Qt Quick unless QML declares the property.
void FlowInstances::bindGroup(int object, const CodeBinding& binding, FlowFrame& frame)
{
    int slot = flow.objects.member(object, binding.path.first());
    for (int index = 1; index < binding.path.size(); ++index) {
        const bool isLast = index == binding.path.size() - 1;
        if (flow.names.declared(object, binding.path.first()) == FlowNames::Declared::No) {
            const int group = flow.objects.named(FlowObject::Literal, QString(), slot);
            flow.objects.at(group).isOpen = true;
            flow.graph.addObject(slot, group);
        }
        const int next = isLast ? frame.slot(binding.value) : flow.graph.addSlots(1);
        ownOperations.push_back({isLast ? CodeAction::Set : CodeAction::Get,
                                 {0, next},
                                 {0, slot},
                                 {0, next},
                                 binding.path.at(index),
                                 {},
                                 {}});
        flow.addTask({&ownOperations.back(), flow.frames.absolute()}, {slot});
        slot = next;
    }
}

void FlowInstances::connectRequired(int object, const FlowFrame& frame)
{
    for (const CodeObject* definition : qAsConst(flow.objects.at(object).definitions)) {
        for (const CodeProperty& property : definition->properties) {
            const int slot = flow.objects.member(object, property.name);
            const QString name = flow.name(property.name);
            if (!property.isRequired || flow.objects.at(object).bound.contains(property.name))
                continue;
            if (name == QLatin1String("modelData") || name == QLatin1String("model")) {
                flow.graph.connect(frame.element, slot);
            } else {
                ownOperations.push_back({CodeAction::Get, {0, slot}, {0, frame.element}, {}, property.name, {}, {}});
                flow.addTask({&ownOperations.back(), flow.frames.absolute()}, {frame.element});
            }
        }
    }
}

} // namespace ResourceCheck
