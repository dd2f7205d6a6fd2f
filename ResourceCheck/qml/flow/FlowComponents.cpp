#include "ResourceCheck/qml/flow/FlowComponents.h"

#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

bool FlowComponents::perform(const QString& name, const FlowCall& call)
{
    if (name == QLatin1String("Qt.createComponent"))
        loadFile(0, call, -1);
    else if (name == QLatin1String("createObject") || name == QLatin1String("incubateObject"))
        createObject(call);
    else if (name == QLatin1String("connect"))
        connectSignal(call);
    else if (name == QLatin1String("append") || name == QLatin1String("insert") || name == QLatin1String("set")
             || name == QLatin1String("get") || name == QLatin1String("setProperty"))
        addElements(name, call);
    else if (name == QLatin1String("setSource"))
        loadFile(0, call, 1);
    else
        return (name == QLatin1String("push") || name == QLatin1String("replace")) && push(call);
    return true;
}

// push() and replace() of StackView, with a component or the path of a file.
bool FlowComponents::push(const FlowCall& call)
{
    const FlowValue own = flow.builtins.self(call);
    const FlowValue pages = flow.builtins.argument(call, 0);
    const FlowValue properties = flow.builtins.argument(call, 1);
    bool isStack = false;
    for (const int stack : own.objects) {
        if (flow.objects.at(stack).kind != FlowObject::Instance)
            continue;
        isStack = true;
        for (const int page : pages.objects) {
            if (flow.objects.at(page).kind != FlowObject::Component)
                continue;
            flow.graph.addObject(call.target, flow.delegates.make(page, stack));
            for (const int object : properties.objects)
                flow.delegates.make(page, stack, object);
        }
    }
    if (isStack)
        loadFile(0, call, 1);
    return isStack;
}

void FlowComponents::connectSignal(const FlowCall& call)
{
    const FlowValue own = flow.builtins.self(call);
    for (const int object : own.objects) {
        const FlowObject signal = flow.objects.at(object);
        if (signal.kind != FlowObject::Signal || call.arguments.empty() || call.arguments.back() < 0)
            continue;
        const QString name = flow.name(signal.name);
        const QString handler = QStringLiteral("on") + name.at(0).toUpper() + name.mid(1);
        flow.graph.connect(call.arguments.back(), flow.delegates.member(signal.owner, flow.number(handler)));
    }
}

void FlowComponents::createObject(const FlowCall& call)
{
    const FlowValue own = flow.builtins.self(call);
    const FlowValue properties = flow.builtins.argument(call, 1);
    for (const int component : own.objects) {
        if (flow.objects.at(component).kind != FlowObject::Component || call.frame->unit == nullptr)
            continue;
        const int owner = flow.objects.named(FlowObject::Instance, QString(), call.frame->firstSlot, component);
        flow.objects.at(owner).frame = call.frame;
        flow.graph.addObject(call.target, flow.delegates.make(component, owner));
        for (const int object : properties.objects)
            flow.delegates.make(component, owner, object);
    }
}

// append(), insert(), set(), get() and setProperty() of ListModel.
void FlowComponents::addElements(const QString& name, const FlowCall& call)
{
    const int data = flow.number(QStringLiteral("data"));
    const FlowValue own = flow.builtins.self(call);
    for (const int object : own.objects) {
        const int list = flow.objects.member(object, data);
        if (name == QLatin1String("get")) {
            flow.graph.connect(list, call.target);
        } else if (name == QLatin1String("setProperty")) {
            flow.graph.watch(list, call.task);
            if (call.arguments.size() > 2 && call.arguments[2] >= 0)
                flow.members.setAt(flow.graph.value(list), flow.builtins.argument(call, 1), call.arguments[2]);
        } else if (!call.arguments.empty() && call.arguments.back() >= 0) {
            const FlowValue added = flow.builtins.argument(call, call.arguments.size() - 1);
            for (const int element : added.objects) {
                if (flow.objects.at(element).kind == FlowObject::Array)
                    flow.graph.connect(flow.objects.all(element), list);
            }
            flow.graph.connect(call.arguments.back(), list);
        }
    }
    if (own.isUnknown)
        flow.graph.addUnknown(call.target);
}

void FlowComponents::loadFile(size_t argumentIndex, const FlowCall& call, int result)
{
    const FlowValue paths = flow.builtins.argument(call, argumentIndex);
    const FlowValue own = flow.builtins.self(call);
    for (const int text : paths.texts) {
        const QmlPattern path = flow.texts().pattern(text);
        const auto from = flow.frontEnd.files().find(path.place.path);
        const CodeFile* file = from == flow.frontEnd.files().end() || !path.isLiteral()
            ? nullptr
            : flow.frontEnd.file(from->second, path.text());
        if (file == nullptr || file->unit == nullptr || file->unit->objects.empty())
            continue;
        const int component = flow.objects.component(*file->unit);
        if (result < 0)
            flow.graph.addObject(call.target, component);
        for (const int loader : result < 0 ? std::vector<int>() : own.objects) {
            const int object = flow.delegates.make(component, loader);
            flow.graph.addObject(flow.objects.member(loader, flow.number(QStringLiteral("item"))), object);
            const FlowValue properties = flow.builtins.argument(call, argumentIndex + 1);
            for (const int literal : properties.objects)
                flow.delegates.make(component, loader, literal);
        }
    }
    flow.graph.addUnknown(call.target);
}

} // namespace ResourceCheck
