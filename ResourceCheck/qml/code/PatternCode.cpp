#include "ResourceCheck/qml/code/PatternCode.h"

#include "ResourceCheck/qml/code/ExpressionCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

namespace
{

// The key as a text, because a loop over the keys of an object can use them as names.
CodeSlot keyOf(PropertyName* name, CodeBuilder& builder)
{
    const CodePosition position = ExpressionCode::position(name->propertyNameToken);
    if (auto* computed = cast<ComputedPropertyName*>(name))
        return ExpressionCode::write(computed->expression, builder);
    // An unquoted key is not a literal that could be the name of a resource by chance.
    if (const auto* identifier = cast<IdentifierPropertyName*>(name)) {
        const QString text = identifier->id.toString();
        return builder.compute(CodeAction::Text, {}, {}, builder.tables.texts.add(text, builder.place(position)));
    }
    return builder.text(name->asString(), position);
}

bool isSpread(const PatternElement* element)
{
    return element->type == PatternElement::SpreadElement;
}

void assignElements(PatternElementList* elements, CodeSlot value, CodeBuilder& builder)
{
    int index = 0;
    for (PatternElementList* item = elements; item != nullptr; item = item->next, ++index) {
        for (Elision* skipped = item->elision; skipped != nullptr; skipped = skipped->next)
            ++index;
        if (item->element == nullptr)
            continue;
        const int name = builder.number(QString::number(index));
        PatternCode::bind(item->element,
                          isSpread(item->element) ? value : builder.compute(CodeAction::Get, value, {}, name), builder);
    }
}

void assignProperties(PatternPropertyList* properties, CodeSlot value, CodeBuilder& builder)
{
    for (PatternPropertyList* item = properties; item != nullptr; item = item->next) {
        PatternProperty* property = item->property;
        if (isSpread(property) || property->name == nullptr) {
            PatternCode::bind(property, value, builder);
            continue;
        }
        const CodeSlot key = keyOf(property->name, builder);
        CodeOperation operation{CodeAction::GetAt, {}, value, key, -1, {}, {}};
        operation.position = ExpressionCode::position(property->name->propertyNameToken);
        const CodeSlot member = builder.compute(operation);
        // In a declaration, a property without a target declares a variable of its own name.
        const bool isShort = property->bindingIdentifier.isEmpty() && property->bindingTarget == nullptr;
        if (isShort)
            builder.copy(member, builder.variable(property->name->asString()));
        PatternCode::bind(property, member, builder);
    }
}

} // namespace

CodeSlot PatternCode::writeArray(PatternElementList* elements, CodeBuilder& builder)
{
    CodeOperation operation{CodeAction::Array, {}, {}, {}, -1, {}, {}};
    for (PatternElementList* item = elements; item != nullptr; item = item->next) {
        if (item->element != nullptr) {
            const CodeSlot value = ExpressionCode::write(item->element->initializer, builder);
            operation.arguments.append({value, isSpread(item->element)});
        }
    }
    return builder.compute(operation);
}

CodeSlot PatternCode::writeObject(PatternPropertyList* properties, CodeBuilder& builder)
{
    const CodeSlot object = builder.compute(CodeAction::Object);
    for (PatternPropertyList* item = properties; item != nullptr; item = item->next) {
        PatternProperty* property = item->property;
        const CodeSlot value = ExpressionCode::write(property->initializer, builder);
        if (isSpread(property)) {
            builder.append({CodeAction::Spread, object, value, {}, -1, {}, {}});
        } else if (property->name != nullptr) {
            const CodeSlot key = keyOf(property->name, builder);
            const CodeAction action =
                property->name->kind == Node::Kind_ComputedPropertyName ? CodeAction::SetAt : CodeAction::SetKey;
            CodeSlot member = value;
            if (property->type == PatternElement::Getter) {
                CodeOperation getter{CodeAction::Call, {}, value, object, -1, {}, {}};
                member = builder.compute(getter);
            }
            builder.append({action, member, object, key, -1, {}, {}});
        }
    }
    return object;
}

void PatternCode::declare(PatternElement* element, CodeBuilder& builder)
{
    if (element == nullptr)
        return;
    if (!element->bindingIdentifier.isEmpty())
        builder.declare(element->bindingIdentifier.toString());
    if (const auto* identifier = cast<IdentifierExpression*>(element->bindingTarget)) // in an arrow function
        builder.declare(identifier->name.toString());
    if (const auto* array = cast<ArrayPattern*>(element->bindingTarget)) {
        for (PatternElementList* item = array->elements; item != nullptr; item = item->next)
            declare(item->element, builder);
    }
    if (const auto* object = cast<ObjectPattern*>(element->bindingTarget)) {
        for (PatternPropertyList* item = object->properties; item != nullptr; item = item->next) {
            declare(item->property, builder);
            const bool isShort =
                item->property->bindingIdentifier.isEmpty() && item->property->bindingTarget == nullptr;
            if (isShort && item->property->name != nullptr)
                builder.declare(item->property->name->asString());
        }
    }
}

void PatternCode::bind(PatternElement* element, CodeSlot value, CodeBuilder& builder)
{
    CodeSlot own = value;
    if (element->initializer != nullptr) {
        own = builder.newSlot();
        builder.copy(value.isValid() ? builder.compute(CodeAction::Without, value, builder.undefined()) : value, own);
        builder.copy(ExpressionCode::write(element->initializer, builder), own);
    }
    if (element->bindingTarget != nullptr)
        ExpressionCode::assign(element->bindingTarget, own, builder);
    else if (!element->bindingIdentifier.isEmpty())
        builder.copy(own, builder.variable(element->bindingIdentifier.toString()));
}

void PatternCode::assign(Node* pattern, CodeSlot value, CodeBuilder& builder)
{
    if (!value.isValid())
        return;
    if (const auto* array = cast<ArrayPattern*>(pattern))
        assignElements(array->elements, value, builder);
    if (const auto* object = cast<ObjectPattern*>(pattern))
        assignProperties(object->properties, value, builder);
}

} // namespace ResourceCheck
