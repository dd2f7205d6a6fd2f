#include "ResourceCheck/qml/code/FunctionCode.h"

#include "ResourceCheck/qml/code/ExpressionCode.h"
#include "ResourceCheck/qml/code/PatternCode.h"
#include "ResourceCheck/qml/code/StatementCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

namespace
{

bool isRest(const PatternElement* element)
{
    return element->type == PatternElement::RestElement;
}

void writeParameters(FormalParameterList* formals, CodeBuilder& builder)
{
    int index = 0;
    for (FormalParameterList* item = formals; item != nullptr; item = item->next, ++index) {
        const CodeSlot slot = builder.newSlot();
        builder.unit.parameters.append({slot, isRest(item->element)});
        PatternCode::declare(item->element, builder);
    }
    index = 0;
    for (FormalParameterList* item = formals; item != nullptr; item = item->next, ++index) {
        const CodeSlot slot = builder.unit.parameters.at(index).slot;
        CodeSlot value = slot;
        PatternElement* element = item->element;
        if (element->initializer != nullptr) {
            const CodeSlot initial = ExpressionCode::write(element->initializer, builder);
            if (initial.isValid())
                builder.append({CodeAction::Default, slot, initial, {}, index, {}, {}});
            value = builder.compute(CodeAction::Without, slot, builder.undefined());
        }
        if (element->bindingTarget != nullptr) // the parser gives the pattern a name, too
            ExpressionCode::assign(element->bindingTarget, value, builder);
        else
            builder.copy(value, builder.variable(element->bindingIdentifier.toString()));
    }
}

} // namespace

CodeSlot FunctionCode::write(FunctionExpression* function, CodeBuilder& builder, bool isQmlMethod)
{
    CodeUnit& unit = builder.addUnit(CodeUnit::Function);
    const int number = static_cast<int>(builder.unit.units.size()) - 1;
    CodeBuilder inner(unit, &builder, builder.file, builder.tables);
    unit.resultSlot = inner.newSlot().index;
    unit.thisSlot = inner.newSlot().index;
    inner.result = {0, unit.resultSlot};
    inner.hasOwnThis = !function->isArrowFunction && !isQmlMethod;
    const CodeSlot slot = builder.newSlot();
    if (!function->name.isEmpty()) // the function can call itself
        inner.append({CodeAction::Copy, inner.declare(function->name.toString()), {1, slot.index}, {}, -1, {}, {}});
    writeParameters(function->formals, inner);
    StatementCode::writeList(function->body, inner);
    builder.append({CodeAction::Function, slot, {}, {}, number, {}, {}});
    return slot;
}

// The class is an object with the methods as its members. An object made with `new` is this object, too.
CodeSlot FunctionCode::writeClass(ClassExpression* definition, CodeBuilder& builder)
{
    const CodeSlot object = builder.compute(CodeAction::Object);
    if (definition->heritage != nullptr) {
        const CodeSlot base = ExpressionCode::write(definition->heritage, builder);
        builder.append({CodeAction::Spread, object, base, {}, -1, {}, {}});
    }
    for (ClassElementList* item = definition->elements; item != nullptr; item = item->next) {
        if (item->property == nullptr || item->property->name == nullptr)
            continue;
        CodeSlot value = ExpressionCode::write(item->property->initializer, builder);
        if (item->property->type == PatternElement::Getter)
            value = builder.compute(CodeAction::Call, value, object);
        builder.append({CodeAction::Set, {}, object, value, builder.number(item->property->name->asString()), {}, {}});
    }
    return object;
}

} // namespace ResourceCheck
