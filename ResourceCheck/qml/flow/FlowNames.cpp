#include "ResourceCheck/qml/flow/FlowNames.h"

#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

namespace
{

bool isGlobal(const QString& name)
{
    static const QSet<QString> names{
        QStringLiteral("Qt"),     QStringLiteral("Object"),  QStringLiteral("Array"),    QStringLiteral("String"),
        QStringLiteral("Math"),   QStringLiteral("JSON"),    QStringLiteral("Number"),   QStringLiteral("Boolean"),
        QStringLiteral("Date"),   QStringLiteral("console"), QStringLiteral("parseInt"), QStringLiteral("parseFloat"),
        QStringLiteral("Map"),    QStringLiteral("Set"),     QStringLiteral("RegExp"),   QStringLiteral("isNaN"),
        QStringLiteral("Symbol"), QStringLiteral("Error"),   QStringLiteral("qsTr"),     QStringLiteral("qsTrId"),
    };
    return names.contains(name);
}

FlowFrame* outwards(FlowFrame* frame, int levels)
{
    for (int level = levels; level > 0 && frame != nullptr; --level)
        frame = frame->parent;
    return frame;
}

QString parameterName(const QString& name)
{
    return QLatin1Char('@') + name;
}

} // namespace

void FlowNames::connect(const CodeOperation& operation, FlowFrame& frame, int task)
{
    const QString name = flow.name(operation.number);
    const int target = frame.slot(operation.target);
    if (name.at(0).isUpper() && connectType(*frame.unit->file, {name}, target))
        return;
    int scope = operation.left.index;
    FlowFrame* const own = outwards(&frame, operation.left.level);
    for (FlowFrame* component = operation.left.level < 0 ? nullptr : own; component != nullptr;
         component = component->parent) {
        if (component->unit->kind == CodeUnit::Component
            && connectInComponent(operation, *component, scope, target, task))
            return;
        scope = 0;
    }
    if (connectHandler(name, target))
        return;
    if (isGlobal(name)) {
        flow.graph.addObject(target, flow.objects.named(FlowObject::Builtin, name));
        return;
    }
    flow.graph.addUnknown(target);
    if (operation.left.level < 0 || own == nullptr || own->objects.empty())
        return;
    for (const int object : {own->objects.at(static_cast<size_t>(operation.left.index)), own->objects.front()})
        flow.graph.connect(flow.delegates.member(object, operation.number), target);
}

void FlowNames::assign(const CodeOperation& operation, FlowFrame& frame)
{
    const int source = frame.slot(operation.right);
    int scope = operation.left.index;
    FlowFrame* const own = operation.left.level < 0 ? nullptr : outwards(&frame, operation.left.level);
    for (FlowFrame* component = own; component != nullptr; component = component->parent) {
        if (component->unit->kind != CodeUnit::Component || component->objects.empty())
            continue;
        for (const int object : {component->objects.at(static_cast<size_t>(scope)), component->objects.front()}) {
            if (isKnown(object, operation.number)) {
                flow.graph.connect(source, flow.delegates.member(object, operation.number));
                return;
            }
        }
        scope = 0;
    }
    if (own != nullptr && !own->objects.empty())
        flow.graph.connect(
            source,
            flow.delegates.member(own->objects.at(static_cast<size_t>(operation.left.index)), operation.number));
}

bool FlowNames::connectHandler(const QString& path, int target)
{
    const auto handler = flow.handlerNames.constFind(path);
    if (handler != flow.handlerNames.constEnd()) {
        flow.graph.addObject(target, flow.objects.named(FlowObject::Handler, *handler));
        return true;
    }
    if (!flow.handlerOwners.contains(path))
        return false;
    flow.graph.addObject(target, flow.objects.named(FlowObject::Handlers, path));
    return true;
}

bool FlowNames::connectType(const CodeFile& file, const QStringList& name, int target)
{
    const CodeImport* import = FrontEnd::import(file, name.first());
    if (import != nullptr && name.size() == 1) {
        const CodeFile* script = flow.frontEnd.file(file, import->path);
        FlowFrame* module = script == nullptr ? nullptr : flow.frames.module(*script);
        flow.graph.addObject(target, flow.objects.imported(file, flow.number(name.first()), module));
        return true;
    }
    const FrontEnd::Type type = flow.frontEnd.type(file, name);
    if (type.unit == nullptr)
        return name.size() > 1 && connectHandler(name.last(), target);
    flow.graph.addObject(target,
                         type.isSingleton ? flow.instances.shared(*type.unit) : flow.objects.component(*type.unit));
    return true;
}

FlowNames::Declared FlowNames::declared(int object, int name)
{
    for (const CodeObject* definition : qAsConst(flow.objects.at(object).definitions)) {
        for (const CodeProperty& property : definition->properties) {
            if (property.name == name)
                return property.isSignal ? Declared::Signal : Declared::Property;
        }
    }
    return Declared::No;
}

bool FlowNames::connectInComponent(const CodeOperation& operation, FlowFrame& component, int scope, int target,
                                   int task)
{
    const int name = operation.number;
    const auto id = component.unit->names.constFind(name);
    if (id != component.unit->names.constEnd()) {
        flow.graph.connect(component.firstSlot + *id, target);
        return true;
    }
    if (component.objects.empty())
        return false;
    for (const int object : {component.objects.at(static_cast<size_t>(scope)), component.objects.front()}) {
        if (isSignalParameter(object, name)) {
            flow.graph.connect(flow.objects.member(object, flow.number(parameterName(flow.name(name)))), target);
            return true;
        }
        if (isKnown(object, name)) {
            FlowValue value;
            value.addObject(object);
            flow.members.get(value, name, target, operation, nullptr);
            return true;
        }
    }
    return component.element >= 0 && connectElement(operation, component, target, task);
}

bool FlowNames::connectElement(const CodeOperation& operation, FlowFrame& component, int target, int task)
{
    const QString name = flow.name(operation.number);
    if (name == QLatin1String("modelData") || name == QLatin1String("model")) {
        flow.graph.connect(component.element, target);
        return true;
    }
    if (name == QLatin1String("index")) {
        flow.graph.addUnknown(target);
        return true;
    }
    flow.graph.watch(component.element, task);
    bool isRole = false;
    const std::vector<int> objects = flow.graph.value(component.element).objects;
    for (const int object : objects) {
        const FlowObject& element = flow.objects.at(object);
        isRole |= element.members.contains(operation.number) || element.bound.contains(operation.number);
    }
    if (isRole)
        flow.members.get(flow.graph.value(component.element), operation.number, target, operation, nullptr);
    return isRole;
}

bool FlowNames::isSignalParameter(int object, int name)
{
    for (const CodeObject* definition : qAsConst(flow.objects.at(object).definitions)) {
        for (const CodeProperty& property : definition->properties) {
            if (property.parameters.contains(name))
                return true;
        }
    }
    return false;
}

bool FlowNames::isKnown(int object, int name)
{
    return flow.objects.at(object).bound.contains(name) || declared(object, name) != Declared::No;
}

} // namespace ResourceCheck
