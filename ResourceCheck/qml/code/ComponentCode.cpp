#include "ResourceCheck/qml/code/ComponentCode.h"

#include "ResourceCheck/qml/code/ExpressionCode.h"
#include "ResourceCheck/qml/code/ObjectCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

QStringList ComponentCode::names(UiQualifiedId* id)
{
    QStringList list;
    for (UiQualifiedId* part = id; part != nullptr; part = part->next)
        list.append(part->name.toString());
    return list;
}

bool ComponentCode::isUpper(const QString& name)
{
    return !name.isEmpty() && name.at(0).isUpper();
}

bool ComponentCode::isComponentProperty(const QString& property)
{
    return property == QLatin1String("sourceComponent")
        || property.endsWith(QLatin1String("delegate"), Qt::CaseInsensitive)
        || property.endsWith(QLatin1String("component"), Qt::CaseInsensitive);
}

bool ComponentCode::isDelegateOwner(const QStringList& type)
{
    return type.last() == QLatin1String("Repeater") || type.last() == QLatin1String("Instantiator");
}

CodeSlot ComponentCode::writeComponent(UiObjectInitializer* initializer, CodeBuilder& builder)
{
    CodeUnit& unit = builder.addUnit(CodeUnit::Component);
    const int number = static_cast<int>(builder.unit.units.size()) - 1;
    CodeBuilder inner(unit, &builder, builder.file, builder.tables);
    QString id;
    for (UiObjectMemberList* item = initializer->members; item != nullptr; item = item->next) {
        const auto* binding = cast<UiScriptBinding*>(item->member);
        const auto* value = binding == nullptr ? nullptr : cast<ExpressionStatement*>(binding->statement);
        if (value != nullptr && binding->qualifiedId->name == QLatin1String("id"))
            id = ExpressionCode::path(value->expression);
        if (auto* root = cast<UiObjectDefinition*>(item->member))
            ObjectCode(inner).write(names(root->qualifiedTypeNameId), root->initializer, -1);
    }
    if (unit.objects.empty()) // an empty component
        unit.objects.push_back({{QStringLiteral("QtObject")}, -1, inner.newSlot().index, {}, {}, {}});
    const CodeSlot component = builder.compute(CodeAction::Component, {}, {}, number);
    if (!id.isEmpty())
        builder.unit.names.insert(builder.number(id), component.index);
    return component;
}

void ComponentCode::writeInline(UiInlineComponent* component, CodeBuilder& builder)
{
    CodeUnit& unit = builder.addUnit(CodeUnit::Component);
    CodeBuilder inner(unit, &builder, builder.file, builder.tables);
    const QStringList type = names(component->component->qualifiedTypeNameId);
    ObjectCode(inner).write(type, component->component->initializer, -1);
    builder.file.inlineComponents.insert(component->name.toString(), &unit);
}

CodeSlot ComponentCode::writePath(CodeSlot object, const QStringList& path, CodeBuilder& builder)
{
    CodeSlot slot = object;
    for (const QString& name : path)
        slot = builder.compute(CodeAction::Get, slot, {}, builder.number(name));
    return slot;
}

void ComponentCode::writeAssignments(int object, CodeBuilder& builder)
{
    const CodeObject& definition = builder.unit.objects.at(static_cast<size_t>(object));
    QHash<QString, CodeSlot> values;
    for (const CodeBinding& binding : definition.bindings) {
        QStringList path;
        for (const int name : binding.path)
            path.append(builder.tables.names.name(name));
        values.insert(path.join(QLatin1Char('.')), binding.value);
    }
    const CodeSlot target = values.take(QStringLiteral("target"));
    if (!target.isValid())
        return;
    if (definition.type.last() == QLatin1String("PropertyChanges")) {
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            QStringList path = value.key().split(QLatin1Char('.'));
            const QString name = path.takeLast();
            builder.append(
                {CodeAction::Set, {}, writePath(target, path, builder), *value, builder.number(name), {}, {}});
        }
        return;
    }
    const CodeSlot property = values.value(QStringLiteral("property"));
    for (const QString& name : {QStringLiteral("value"), QStringLiteral("to"), QStringLiteral("from")}) {
        if (property.isValid() && values.contains(name))
            builder.append({CodeAction::SetAt, values.value(name), target, property, -1, {}, {}});
    }
}

} // namespace ResourceCheck
