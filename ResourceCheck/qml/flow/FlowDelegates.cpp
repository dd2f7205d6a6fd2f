#include "ResourceCheck/qml/flow/FlowDelegates.h"

#include "ResourceCheck/qml/flow/Flow.h"

#include <algorithm>

namespace ResourceCheck
{

namespace
{

bool isDelegate(const QString& property)
{
    return property.endsWith(QLatin1String("delegate"), Qt::CaseInsensitive);
}

constexpr int noElement = -2; // of the objects that several elements share

// Whether Qt Quick makes objects from components, or from the paths of files, in such a property.
bool isConsumed(const QString& property)
{
    static const QSet<QString> names{QStringLiteral("sourceComponent"), QStringLiteral("source"),
                                     QStringLiteral("header"),          QStringLiteral("footer"),
                                     QStringLiteral("highlight"),       QStringLiteral("initialItem"),
                                     QStringLiteral("component")};
    return names.contains(property) || isDelegate(property);
}

} // namespace

int FlowDelegates::member(int object, int name)
{
    const FlowObject& owner = flow.objects.at(object);
    const bool isNew = owner.kind == FlowObject::Instance && !owner.members.contains(name);
    const int slot = flow.objects.member(object, name);
    if (isNew && isConsumed(flow.name(name)))
        flow.addTask({nullptr, nullptr, object, name}, {slot});
    return slot;
}

void FlowDelegates::perform(int object, int name, int task)
{
    if (flow.names.declared(object, name) != FlowNames::Declared::No)
        return; // QML itself uses the property
    const FlowValue value = flow.graph.value(flow.objects.member(object, name));
    const int item = flow.objects.member(object, flow.number(QStringLiteral("item")));
    for (const int component : value.objects) {
        if (flow.objects.at(component).kind != FlowObject::Component)
            continue;
        if (isDelegate(flow.name(name)))
            makeDelegates(component, object, task);
        else
            flow.graph.addObject(item, make(component, object));
    }
    for (const int text : value.texts)
        makeFromFile(flow.texts().pattern(text), object, item);
}

int FlowDelegates::make(int component, int owner, int properties)
{
    const FlowObject type = flow.objects.at(component);
    const FlowFrame* const maker = flow.objects.at(owner).frame;
    const bool isShared = flow.frames.mustShare(*type.unit, maker);
    const auto entry = made.emplace(std::make_tuple(component, isShared ? -1 : owner, -1), -1).first;
    if (entry->second < 0)
        entry->second = flow.instances.instantiate(*type.unit, type.frame, isShared ? nullptr : maker);
    const int object = entry->second;
    if (properties >= 0) {
        const QHash<int, int> members = flow.objects.at(properties).members;
        for (auto property = members.cbegin(); property != members.cend(); ++property)
            flow.graph.connect(*property, member(object, property.key()));
    }
    return object;
}

void FlowDelegates::makeFromFile(const QmlPattern& path, int owner, int result)
{
    const auto& definitions = flow.objects.at(owner).definitions;
    if (!path.isLiteral() || !path.text().endsWith(QLatin1String(".qml")) || definitions.isEmpty())
        return;
    const auto& files = flow.frontEnd.files();
    const auto from = files.find(path.place.path);
    const CodeFile* file = from == files.end() ? nullptr : flow.frontEnd.file(from->second, path.text());
    if (file != nullptr && file->unit != nullptr && !file->unit->objects.empty())
        flow.graph.addObject(result, make(flow.objects.component(*file->unit), owner));
}

// An object of the model gets a delegate of its own, so that its members are not mixed up with those of others. All
// other elements share one.
void FlowDelegates::makeDelegates(int component, int owner, int task)
{
    constexpr size_t maximumObjects = 256;
    auto& slots = elementSlots[{component, owner}];
    if (slots.second == 0) {
        const int first = flow.graph.addSlots(2);
        slots = {first, first + 1};
    }
    const auto [all, others] = slots;
    const int model = flow.objects.member(owner, flow.number(QStringLiteral("model")));
    flow.graph.watch(model, task);
    flow.graph.watch(all, task);
    const FlowValue models = flow.graph.value(model);
    for (const int object : models.objects) {
        if (flow.objects.at(object).kind == FlowObject::Literal)
            flow.graph.addObject(all, object);
    }
    FlowValue lists = models;
    const auto isElement = [this](int object) { return flow.objects.at(object).kind == FlowObject::Literal; };
    lists.objects.erase(std::remove_if(lists.objects.begin(), lists.objects.end(), isElement), lists.objects.end());
    flow.members.elements(lists, all);
    const FlowValue elements = flow.graph.value(all);
    for (const int element : elements.objects) {
        const bool isOther = elements.objects.size() > maximumObjects;
        if (isOther)
            flow.graph.addObject(others, element);
        else
            makeDelegate(component, owner, element, -1);
    }
    for (const int text : elements.texts)
        flow.graph.addText(others, text);
    if (elements.isUnknown)
        flow.graph.addUnknown(others);
    if (!flow.graph.value(others).isEmpty())
        makeDelegate(component, owner, noElement, others);
}

void FlowDelegates::makeDelegate(int component, int owner, int element, int slot)
{
    const FlowObject type = flow.objects.at(component);
    const FlowFrame* const maker = flow.objects.at(owner).frame;
    const bool isShared = flow.frames.mustShare(*type.unit, maker);
    const auto [entry, isNew] = made.emplace(std::make_tuple(component, isShared ? -1 : owner, element), -1);
    if (!isNew)
        return;
    int elementSlot = slot;
    if (elementSlot < 0) {
        elementSlot = flow.graph.addSlots(1);
        flow.graph.addObject(elementSlot, element);
    }
    entry->second = flow.instances.instantiate(*type.unit, type.frame, isShared ? nullptr : maker, elementSlot);
}

} // namespace ResourceCheck
