#include "ResourceCheck/qml/flow/FlowMembers.h"

#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

namespace
{

bool hasMembers(const FlowObject& object)
{
    return object.kind == FlowObject::Literal || object.kind == FlowObject::Array
        || object.kind == FlowObject::Instance;
}

} // namespace

void FlowMembers::get(const FlowValue& base, int name, int target, const CodeOperation& operation, FlowFrame* frame)
{
    const std::vector<int> objects = base.objects;
    const bool isText = passUndefined(base, target);
    if (frame != nullptr)
        flow.missing.note(operation, name, base, target, flow.uses.place(operation, *frame));
    // Handlers can be reached through objects that are not known, such as the qualifier of a module.
    if (base.isUnknown && !flow.names.connectHandler(flow.name(name), target))
        flow.graph.addUnknown(target);
    for (const int object : objects)
        flow.reader.read(object, name, target, operation, frame);
    if (isText && flow.name(name) != QLatin1String("length"))
        flow.graph.addObject(target, flow.objects.named(FlowObject::Builtin, flow.name(name)));
}

void FlowMembers::getAt(const FlowValue& base, const FlowValue& key, int target, const CodeOperation& operation,
                        FlowFrame* frame)
{
    const FlowValue known = key;
    const FlowValue owners = base;
    const bool isText = passUndefined(base, target);
    if (base.isUnknown)
        flow.graph.addUnknown(target);
    if (isText)
        flow.textValues.addLetters(base, key, target);
    for (const int text : known.texts) {
        const QmlPattern& pattern = flow.texts().pattern(text);
        if (pattern.isLiteral() && pattern.hasText())
            flow.missing.note(operation, flow.number(pattern.text()), owners, target, pattern.place, text);
    }
    for (const int object : owners.objects) {
        const FlowObject::Kind kind = flow.objects.at(object).kind;
        if (kind == FlowObject::Map) {
            flow.uses.record(flow.objects.at(object).name, operation, *frame, {frame->slot(operation.right)}, true);
            flow.graph.addUnknown(target);
            continue;
        }
        bool isEveryMember = known.isUnknown;
        for (const int text : known.texts) {
            const QmlPattern& pattern = flow.texts().pattern(text);
            isEveryMember |= !pattern.isLiteral();
            if (pattern.isLiteral())
                flow.reader.read(object, flow.number(pattern.text()), target, operation, frame);
        }
        if ((isEveryMember || known.isOfHost) && hasMembers(flow.objects.at(object)))
            flow.graph.connect(flow.objects.all(object), target);
        if (isEveryMember)
            flow.graph.addUnknown(target);
    }
}

void FlowMembers::set(const FlowValue& base, int name, int source)
{
    const std::vector<int> objects = base.objects;
    for (const int object : objects) {
        if (hasMembers(flow.objects.at(object)))
            write(object, name, source);
    }
}

void FlowMembers::setAt(const FlowValue& base, const FlowValue& key, int source)
{
    const FlowValue known = key;
    const std::vector<int> objects = base.objects;
    for (const int object : objects) {
        bool isAnyMember = known.isUnknown;
        for (const int text : known.texts) {
            const QmlPattern pattern = flow.texts().pattern(text);
            isAnyMember |= !pattern.isLiteral();
            if (pattern.isLiteral() && hasMembers(flow.objects.at(object))) {
                write(object, flow.number(pattern.text()), source);
                if (!flow.objects.at(object).keys.contains(text))
                    flow.objects.at(object).keys.append(text);
            }
        }
        flow.objects.at(object).isOpen |= isAnyMember;
        if (isAnyMember && source >= 0 && hasMembers(flow.objects.at(object)))
            flow.graph.connect(source, flow.objects.any(object));
    }
}

// `null` has no slot.
void FlowMembers::write(int object, int name, int source)
{
    if (flow.objects.at(object).kind == FlowObject::Literal)
        flow.objects.at(object).bound.insert(name);
    if (source >= 0)
        flow.graph.connect(source, flow.delegates.member(object, name));
}

// A member of `undefined` is an error on a device. Returns whether there are other texts.
bool FlowMembers::passUndefined(const FlowValue& base, int target)
{
    bool isOther = false;
    const std::vector<int> texts = base.texts;
    for (const int text : texts) {
        if (flow.texts().pattern(text).isUndefined)
            flow.graph.addText(target, text);
        else
            isOther = true;
    }
    return isOther;
}

void FlowMembers::elements(const FlowValue& base, int target)
{
    if (base.isUnknown || !base.texts.empty())
        flow.graph.addUnknown(target);
    const std::vector<int> objects = base.objects;
    for (const int object : objects) {
        const FlowObject::Kind kind = flow.objects.at(object).kind;
        if (kind == FlowObject::Array)
            flow.graph.connect(flow.objects.all(object), target);
        else if (kind == FlowObject::Instance)
            flow.graph.connect(flow.objects.member(object, flow.number(QStringLiteral("data"))), target);
        else
            flow.graph.addUnknown(target);
    }
}

void FlowMembers::keys(const FlowValue& base, int target)
{
    if (base.isUnknown)
        flow.graph.addUnknown(target);
    const std::vector<int> objects = base.objects;
    for (const int object : objects) {
        if (flow.objects.at(object).kind == FlowObject::Literal) {
            for (const int key : qAsConst(flow.objects.at(object).keys))
                flow.graph.addText(target, key);
        } else {
            flow.graph.addUnknown(target);
        }
    }
}

void FlowMembers::spread(const FlowValue& base, int object)
{
    flow.objects.at(object).isOpen = true; // the sources can get members later
    if (base.isUnknown)
        flow.graph.addUnknown(flow.objects.any(object));
    const std::vector<int> objects = base.objects;
    for (const int source : objects) {
        if (!hasMembers(flow.objects.at(source)) || source == object)
            continue;
        if (flow.objects.at(object).kind == FlowObject::Array) {
            flow.graph.connect(flow.objects.all(source), flow.objects.any(object));
            continue;
        }
        const QHash<int, int> members = flow.objects.at(source).members;
        for (auto member = members.cbegin(); member != members.cend(); ++member)
            flow.graph.connect(*member, flow.objects.member(object, member.key()));
        for (const int key : flow.objects.at(source).keys) {
            if (!flow.objects.at(object).keys.contains(key))
                flow.objects.at(object).keys.append(key);
        }
    }
}

} // namespace ResourceCheck
