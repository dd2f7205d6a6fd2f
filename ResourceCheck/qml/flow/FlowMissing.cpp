#include "ResourceCheck/qml/flow/FlowMissing.h"

#include "ResourceCheck/qml/flow/Flow.h"

#include <algorithm>

namespace ResourceCheck
{

namespace
{

// Whether each object of JavaScript has the member.
bool isInherited(const QString& name)
{
    static const QSet<QString> names{
        QStringLiteral("constructor"),          QStringLiteral("hasOwnProperty"),
        QStringLiteral("isPrototypeOf"),        QStringLiteral("__proto__"),
        QStringLiteral("propertyIsEnumerable"), QStringLiteral("toString"),
        QStringLiteral("toLocaleString"),       QStringLiteral("valueOf"),
    };
    return names.contains(name);
}

} // namespace

void FlowMissing::note(const CodeOperation& operation, int name, const FlowValue& base, int target, const Place& place,
                       int origin)
{
    if (place.path.isEmpty() || base.objects.empty() || isInherited(flow.name(name)))
        return;
    Read& read = reads[{&operation, name}];
    read.mayExist |= base.isUnknown || base.isOfHost;
    if (read.mayExist)
        return;
    read.objects += QSet<int>(base.objects.begin(), base.objects.end());
    read.targets.emplace(std::make_pair(target, origin), place);
}

bool FlowMissing::start()
{
    bool isNew = false;
    for (auto& [key, read] : reads) {
        const int name = key.second;
        read.mayExist |= std::any_of(read.objects.begin(), read.objects.end(),
                                     [this, name](int object) { return has(object, name); });
        if (read.mayExist)
            continue;
        for (const auto& [target, place] : read.targets)
            isNew |= flow.graph.addText(target.first, flow.texts().number(QmlPattern::undefined(place)));
    }
    return isNew;
}

bool FlowMissing::has(int object, int name)
{
    const FlowObject& owner = flow.objects.at(object);
    return owner.kind != FlowObject::Literal || owner.isOpen || owner.bound.contains(name);
}

} // namespace ResourceCheck
