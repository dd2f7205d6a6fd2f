#include "ResourceCheck/qml/flow/FlowReader.h"

#include "ResourceCheck/qml/Handlers.h"
#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

void FlowReader::import(const FlowValue& paths, int name, int target, const CodeOperation& operation, FlowFrame& frame)
{
    const FlowValue known = paths;
    for (const int path : known.texts) {
        const CodeFile* file = flow.frontEnd.file(*frame.unit->file, flow.texts().pattern(path).text());
        FlowFrame* module = file == nullptr ? nullptr : flow.frames.module(*file);
        if (module == nullptr)
            flow.graph.addUnknown(target);
        else if (flow.name(name) == QLatin1String("*"))
            flow.graph.addObject(target, flow.objects.imported(*file, operation.number, module));
        else
            readModule(*module, name, target);
    }
}

void FlowReader::read(int object, int name, int target, const CodeOperation& operation, FlowFrame* frame)
{
    const FlowObject& owner = flow.objects.at(object);
    switch (owner.kind) {
    case FlowObject::Literal:
        flow.graph.connect(flow.objects.member(object, name), target);
        break;
    case FlowObject::Array:
        if (flow.calls.isArrayMethod(flow.name(name)))
            flow.graph.addObject(target, flow.objects.named(FlowObject::Builtin, flow.name(name)));
        else
            flow.graph.connect(flow.objects.member(object, name), target);
        break;
    case FlowObject::Instance:
        readInstance(object, name, target);
        break;
    case FlowObject::Module:
        readModule(*owner.frame, name, target);
        break;
    case FlowObject::Qualifier:
        flow.names.connectType(*owner.unit->file, {flow.name(owner.name), flow.name(name)}, target);
        break;
    case FlowObject::Handlers:
    case FlowObject::Handler:
        readHandlers(owner.path, flow.name(name), target, operation, frame);
        break;
    case FlowObject::Map:
        readMap(owner.name, flow.name(name), operation, *frame);
        flow.graph.addUnknown(target);
        break;
    case FlowObject::Builtin:
        readBuiltin(owner.path, flow.name(name), target);
        break;
    default: // functions, components and signals
        flow.graph.addObject(target, flow.objects.named(FlowObject::Builtin, flow.name(name)));
    }
}

void FlowReader::readInstance(int object, int name, int target)
{
    flow.graph.connect(flow.delegates.member(object, name), target);
    const FlowNames::Declared declared = flow.names.declared(object, name);
    if (declared == FlowNames::Declared::Signal)
        flow.graph.addObject(target, flow.objects.named(FlowObject::Signal, QString(), name, object));
    else if (declared == FlowNames::Declared::No && FlowCalls::isInstanceMethod(flow.name(name)))
        flow.graph.addObject(target, flow.objects.named(FlowObject::Builtin, flow.name(name)));
    else if (declared == FlowNames::Declared::No && !flow.objects.at(object).bound.contains(name)
             && !flow.names.connectHandler(flow.name(name), target))
        flow.graph.addUnknown(target);
}

void FlowReader::readHandlers(const QString& path, const QString& name, int target, const CodeOperation& operation,
                              const FlowFrame* frame)
{
    const QString whole = path + QLatin1Char('.') + name;
    if (flow.names.connectHandler(whole, target))
        return;
    const int member = Handlers::member(path, name);
    if (member >= 0) {
        const bool isMap = Handlers::members().at(member).arguments.isEmpty();
        flow.graph.addObject(target,
                             flow.objects.named(isMap ? FlowObject::Map : FlowObject::Method, QString(), member));
        return;
    }
    if (frame != nullptr)
        flow.uses.recordUnknownMember(path, name, flow.uses.place(operation, *frame));
    flow.graph.addUnknown(target);
}

// dimensions.width is the lookup of "width".
void FlowReader::readMap(int member, const QString& name, const CodeOperation& operation, const FlowFrame& frame)
{
    const Place place = flow.uses.place(operation, frame);
    const int slot = flow.objects.all(flow.objects.made(&operation, &frame, {FlowObject::Array}));
    flow.graph.addText(slot, flow.texts().number(QmlPattern::literal(name, place)));
    flow.uses.record(member, operation, frame, {slot}, true);
}

// In a loop, `node = node.next` would give longer and longer names.
void FlowReader::readBuiltin(const QString& path, const QString& name, int target)
{
    if (path.contains(QLatin1Char('.')))
        flow.graph.addUnknown(target);
    else
        flow.graph.addObject(target, flow.objects.named(FlowObject::Builtin, path + QLatin1Char('.') + name));
}

void FlowReader::readModule(FlowFrame& frame, int name, int target)
{
    const auto exported = frame.unit->names.constFind(name);
    if (exported != frame.unit->names.constEnd())
        flow.graph.connect(frame.firstSlot + *exported, target);
    for (const QString& path : frame.unit->reexported) {
        const CodeFile* file = flow.frontEnd.file(*frame.unit->file, path);
        FlowFrame* module = file == nullptr || file == frame.unit->file ? nullptr : flow.frames.module(*file);
        if (module == nullptr)
            flow.graph.addUnknown(target);
        else if (exported == frame.unit->names.constEnd())
            readModule(*module, name, target);
    }
}

} // namespace ResourceCheck
