#include "ResourceCheck/qml/flow/FlowMembers.h"

#include "ResourceCheck/qml/flow/Flow.h"

#include <algorithm>

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
    const bool isText = !base.texts.empty();
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
    const std::vector<int> objects = base.objects;
    if (base.isUnknown || (!base.texts.empty() && !key.isEmpty()))
        flow.graph.addUnknown(target);
    const FlowValue known = key;
    for (const int object : objects) {
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
        if (isEveryMember && hasMembers(flow.objects.at(object)))
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
            flow.graph.connect(source, flow.delegates.member(object, name));
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
                flow.graph.connect(source, flow.delegates.member(object, flow.number(pattern.text())));
                if (!flow.objects.at(object).keys.contains(text))
                    flow.objects.at(object).keys.append(text);
            }
        }
        if (isAnyMember && hasMembers(flow.objects.at(object)))
            flow.graph.connect(source, flow.objects.any(object));
    }
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

// A value that can be one of several texts may still differ from each of them.
bool FlowMembers::isKnown(const FlowValue& value, CodeAction action) const
{
    const auto isPossible = [&](int number) {
        const QmlPattern& pattern = flow.texts().pattern(number);
        return pattern.isLiteral()
            && (action == CodeAction::Only || pattern.text() == flow.texts().pattern(value.texts.front()).text());
    };
    return !value.isUnknown && value.objects.empty() && std::all_of(value.texts.begin(), value.texts.end(), isPossible);
}

FlowValue FlowMembers::restricted(const FlowValue& value, const FlowValue& other, CodeAction action)
{
    const auto isListed = [&](int text) {
        const QString own = flow.texts().pattern(text).text();
        return std::any_of(other.texts.begin(), other.texts.end(),
                           [&](int number) { return flow.texts().pattern(number).text() == own; });
    };
    FlowValue result;
    if (other.isEmpty())
        return result;
    if (!isKnown(other, action))
        return value;
    result.objects = value.objects;
    result.isWide = value.isWide;
    result.isUnknown = value.isUnknown && action == CodeAction::Without;
    for (const int text : value.texts) {
        const bool isLiteral = flow.texts().pattern(text).isLiteral();
        if (!isLiteral || isListed(text) == (action == CodeAction::Only))
            result.texts.push_back(text);
    }
    if (value.isUnknown && action == CodeAction::Only)
        result.add(other, flow.texts());
    return result;
}

} // namespace ResourceCheck
