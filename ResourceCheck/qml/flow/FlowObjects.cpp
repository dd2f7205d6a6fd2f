#include "ResourceCheck/qml/flow/FlowObjects.h"

#include "ResourceCheck/qml/code/CodeFile.h"

namespace ResourceCheck
{

int FlowObjects::add(const FlowObject& object)
{
    objects.push_back(object);
    return size() - 1;
}

int FlowObjects::made(const CodeOperation* operation, const FlowFrame* frame, const FlowObject& object)
{
    const auto key = qMakePair(operation, frame);
    const auto known = madeObjects.constFind(key);
    if (known != madeObjects.constEnd())
        return *known;
    return *madeObjects.insert(key, add(object));
}

int FlowObjects::named(FlowObject::Kind kind, const QString& path, int name, int owner)
{
    const auto [entry, isNew] = namedObjects.emplace(std::make_tuple(kind, name, owner, path), size());
    if (!isNew)
        return entry->second;
    FlowObject object{kind};
    object.path = path;
    object.name = name;
    object.owner = owner;
    return add(object);
}

int FlowObjects::imported(const CodeFile& file, int qualifier, FlowFrame* script)
{
    const void* const owner = script != nullptr ? static_cast<const void*>(script) : &file;
    const auto key = qMakePair(owner, script != nullptr ? -1 : qualifier);
    const auto known = importedObjects.constFind(key);
    if (known != importedObjects.constEnd())
        return *known;
    FlowObject object{script != nullptr ? FlowObject::Module : FlowObject::Qualifier, file.unit.get(), script};
    object.name = qualifier;
    return *importedObjects.insert(key, add(object));
}

int FlowObjects::component(const CodeUnit& unit)
{
    const auto key = qMakePair(static_cast<const void*>(&unit), -1);
    const auto known = importedObjects.constFind(key);
    if (known != importedObjects.constEnd())
        return *known;
    return *importedObjects.insert(key, add({FlowObject::Component, &unit}));
}

int FlowObjects::member(int object, int name)
{
    const auto known = at(object).members.constFind(name);
    if (known != at(object).members.constEnd())
        return *known;
    const int slot = graph.addSlots(1);
    at(object).members.insert(name, slot);
    if (at(object).any >= 0)
        graph.connect(at(object).any, slot);
    if (at(object).all >= 0)
        graph.connect(slot, at(object).all);
    return slot;
}

int FlowObjects::all(int object)
{
    FlowObject& owner = at(object);
    if (owner.all >= 0)
        return owner.all;
    owner.all = graph.addSlots(1);
    for (const int slot : qAsConst(owner.members))
        graph.connect(slot, owner.all);
    graph.connect(any(object), owner.all);
    return owner.all;
}

int FlowObjects::any(int object)
{
    FlowObject& owner = at(object);
    if (owner.any >= 0)
        return owner.any;
    owner.any = graph.addSlots(1);
    for (const int slot : qAsConst(owner.members))
        graph.connect(owner.any, slot);
    return owner.any;
}

} // namespace ResourceCheck
