#include "ResourceCheck/qml/code/ObjectCode.h"

#include "ResourceCheck/qml/code/ComponentCode.h"
#include "ResourceCheck/qml/code/ExpressionCode.h"
#include "ResourceCheck/qml/code/FunctionCode.h"
#include "ResourceCheck/qml/code/ParserVersion.h"
#include "ResourceCheck/qml/code/StatementCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

int ObjectCode::write(const QStringList& type, UiObjectInitializer* initializer, int parent)
{
    const int number = static_cast<int>(builder.unit.objects.size());
    const int outerObject = std::exchange(builder.scopeObject, number);
    const QStringList outerPrefix = std::exchange(prefix, {});
    builder.unit.objects.push_back({type, parent, builder.newSlot().index, {}, {}, {}});
    for (UiObjectMemberList* item = initializer->members; item != nullptr; item = item->next)
        writeMember(item->member, number);
    ComponentCode::writeAssignments(number, builder);
    builder.scopeObject = outerObject;
    prefix = outerPrefix;
    return number;
}

void ObjectCode::writeMember(UiObjectMember* member, int owner)
{
    const CodeBuilder::Depth depth(builder);
    if (depth.isTooDeep())
        return;
    if (auto* property = cast<UiPublicMember*>(member)) {
        property->type == UiPublicMember::Signal ? writeSignal(property, owner) : writeProperty(property, owner);
    } else if (auto* binding = cast<UiScriptBinding*>(member)) {
        writeScript(binding, owner);
    } else if (auto* source = cast<UiSourceElement*>(member)) {
        writeMethod(source->sourceElement, owner);
    } else if (auto* array = cast<UiArrayBinding*>(member)) {
        bind(owner, ComponentCode::names(array->qualifiedId), writeArray(array->members, owner));
    } else if (auto* component = cast<UiInlineComponent*>(member)) {
        ComponentCode::writeInline(component, builder);
    } else if (auto* objectBinding = cast<UiObjectBinding*>(member)) {
        writeObjectBinding(objectBinding, owner);
    } else if (auto* child = cast<UiObjectDefinition*>(member)) {
        const QStringList type = ComponentCode::names(child->qualifiedTypeNameId);
        if (!ComponentCode::isUpper(type.last())) {
            writeGroup(type, child->initializer, owner);
        } else if (ComponentCode::isDelegateOwner(object(owner).type)) {
            bind(owner, {QStringLiteral("delegate")}, writeComponent(type, child->initializer));
        } else {
            const CodeSlot value = writeObject(type, child->initializer, QString(), owner);
            const CodeSlot ownerSlot{0, object(owner).slot};
            builder.append({CodeAction::Set, {}, ownerSlot, value, builder.number(QStringLiteral("data")), {}, {}});
        }
    }
}

void ObjectCode::writeProperty(UiPublicMember* property, int owner)
{
    const QString name = property->name.toString();
    const bool isAlias = property->memberType != nullptr
        && ComponentCode::names(property->memberType) == QStringList{QStringLiteral("alias")};
    // `required title` without a type refers to a property of the base type.
    object(owner).properties.append({builder.number(name), isRequired(*property), false, isReadonly(*property)});
    const bool isComponent = property->memberType != nullptr
        && ComponentCode::names(property->memberType).last() == QLatin1String("Component");
    if (property->statement != nullptr)
        bind(owner, {name}, writeStatement(property->statement), isAlias);
    const auto* aliased = isAlias ? cast<ExpressionStatement*>(property->statement) : nullptr;
    if (aliased != nullptr) { // what is written to the alias reaches the other property
        const CodeSlot value = builder.compute(CodeAction::Get, {0, object(owner).slot}, {}, builder.number(name));
        ExpressionCode::assign(aliased->expression, value, builder);
    }
    if (property->binding != nullptr)
        bind(owner, {name}, writeValue(property->binding, isComponent ? QStringLiteral("component") : name, owner));
}

void ObjectCode::writeSignal(UiPublicMember* signal, int owner)
{
    CodeProperty declared{builder.number(signal->name.toString()), false, true};
    for (UiParameterList* item = signal->parameters; item != nullptr; item = item->next)
        declared.parameters.append(builder.number(item->name.toString()));
    object(owner).properties.append(declared);
}

void ObjectCode::writeScript(UiScriptBinding* binding, int owner)
{
    const QStringList path = ComponentCode::names(binding->qualifiedId);
    const auto* expression = cast<ExpressionStatement*>(binding->statement);
    if (path == QStringList{QStringLiteral("id")} && prefix.isEmpty() && expression != nullptr) {
        const QString id = ExpressionCode::path(expression->expression);
        builder.unit.names.insert(builder.number(id), object(owner).slot);
    } else {
        bind(owner, path, writeStatement(binding->statement));
    }
}

void ObjectCode::writeObjectBinding(UiObjectBinding* binding, int owner)
{
    const QStringList path = ComponentCode::names(binding->qualifiedId);
    const QStringList type = ComponentCode::names(binding->qualifiedTypeNameId);
    if (!binding->hasOnToken) {
        bind(owner, path, writeObject(type, binding->initializer, path.last(), owner));
        return;
    }
    // `Binding on color { value: ... }` writes to the property, an animation to the same property.
    const CodeSlot source = writeObject(type, binding->initializer, QString(), owner);
    const CodeSlot target = ComponentCode::writePath({0, object(owner).slot}, path.mid(0, path.size() - 1), builder);
    for (const QString& name : {QStringLiteral("value"), QStringLiteral("to")}) {
        const CodeSlot value = builder.compute(CodeAction::Get, source, {}, builder.number(name));
        builder.append({CodeAction::Set, {}, target, value, builder.number(path.last()), {}, {}});
    }
}

void ObjectCode::writeGroup(const QStringList& path, UiObjectInitializer* initializer, int owner)
{
    const QStringList outerPrefix = prefix;
    prefix += path;
    for (UiObjectMemberList* item = initializer->members; item != nullptr; item = item->next)
        writeMember(item->member, owner);
    prefix = outerPrefix;
}

void ObjectCode::writeMethod(Node* source, int owner)
{
    if (auto* function = cast<FunctionDeclaration*>(source)) {
        const QString name = function->name.toString();
        object(owner).properties.append({builder.number(name), false, false, {}});
        bind(owner, {name}, FunctionCode::write(function, builder, true));
    }
}

CodeSlot ObjectCode::writeStatement(Statement* statement)
{
    if (const auto* expression = cast<ExpressionStatement*>(statement))
        return ExpressionCode::write(expression->expression, builder);
    const CodeSlot outerResult = std::exchange(builder.result, builder.newSlot());
    StatementCode::write(statement, builder);
    return std::exchange(builder.result, outerResult);
}

CodeSlot ObjectCode::writeValue(UiObjectMember* member, const QString& property, int owner)
{
    if (auto* definition = cast<UiObjectDefinition*>(member))
        return writeObject(ComponentCode::names(definition->qualifiedTypeNameId), definition->initializer, property,
                           owner);
    if (auto* binding = cast<UiObjectBinding*>(member))
        return writeObject(ComponentCode::names(binding->qualifiedTypeNameId), binding->initializer, property, owner);
    if (auto* array = cast<UiArrayBinding*>(member))
        return writeArray(array->members, owner);
    return builder.unknown();
}

CodeSlot ObjectCode::writeArray(UiArrayMemberList* members, int owner)
{
    CodeOperation operation{CodeAction::Array, {}, {}, {}, -1, {}, {}};
    for (UiArrayMemberList* item = members; item != nullptr; item = item->next)
        operation.arguments.append({writeValue(item->member, QString(), owner), false});
    return builder.compute(operation);
}

CodeSlot ObjectCode::writeObject(const QStringList& type, UiObjectInitializer* initializer, const QString& property,
                                 int owner)
{
    if (type.last() == QLatin1String("Component"))
        return ComponentCode::writeComponent(initializer, builder);
    if (ComponentCode::isComponentProperty(property))
        return writeComponent(type, initializer);
    const int number = write(type, initializer, owner);
    return {0, object(number).slot};
}

CodeSlot ObjectCode::writeComponent(const QStringList& type, UiObjectInitializer* initializer)
{
    CodeUnit& unit = builder.addUnit(CodeUnit::Component);
    const int number = static_cast<int>(builder.unit.units.size()) - 1;
    CodeBuilder inner(unit, &builder, builder.file, builder.tables);
    ObjectCode(inner).write(type, initializer, -1);
    return builder.compute(CodeAction::Component, {}, {}, number);
}

void ObjectCode::bind(int owner, const QStringList& path, CodeSlot value, bool isAlias)
{
    CodeBinding binding{{}, value, isAlias};
    const QStringList whole = prefix + path;
    const bool isAttached = whole.size() > 1 && ComponentCode::isUpper(whole.first());
    if (isAttached || !value.isValid())
        return;
    for (const QString& name : whole)
        binding.path.append(builder.number(name));
    object(owner).bindings.append(binding);
}

} // namespace ResourceCheck
