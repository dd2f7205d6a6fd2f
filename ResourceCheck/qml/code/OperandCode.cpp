#include "ResourceCheck/qml/code/OperandCode.h"

#include "ResourceCheck/qml/code/ExpressionCode.h"
#include "ResourceCheck/qml/code/FunctionCode.h"
#include "ResourceCheck/qml/code/PatternCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

namespace
{

CodeSlot writeTemplate(TemplateLiteral* literal, CodeBuilder& builder)
{
    CodeSlot sum;
    for (TemplateLiteral* part = literal; part != nullptr; part = part->next) {
        const CodeSlot text = builder.text(part->value.toString(), ExpressionCode::position(literal->literalToken));
        sum = sum.isValid() ? builder.compute(CodeAction::Add, sum, text) : text;
        if (part->expression != nullptr)
            sum = builder.compute(CodeAction::Add, sum, ExpressionCode::write(part->expression, builder));
    }
    return sum;
}

CodeSlot writeLiteral(ExpressionNode* expression, CodeBuilder& builder)
{
    if (const auto* text = cast<StringLiteral*>(expression))
        return builder.text(text->value.toString(), ExpressionCode::position(text->literalToken));
    if (const auto* number = cast<NumericLiteral*>(expression))
        return builder.text(QString::number(number->value), ExpressionCode::position(number->literalToken), true);
    if (auto* literal = cast<TemplateLiteral*>(expression))
        return writeTemplate(literal, builder);
    if (const auto* array = cast<ArrayPattern*>(expression))
        return PatternCode::writeArray(array->elements, builder);
    if (const auto* object = cast<ObjectPattern*>(expression))
        return PatternCode::writeObject(object->properties, builder);
    if (auto* function = expression->asFunctionDefinition())
        return FunctionCode::write(function, builder);
    if (auto* definition = expression->asClassDefinition())
        return FunctionCode::writeClass(definition, builder);
    return expression->kind == Node::Kind_NullExpression ? CodeSlot() : builder.unknown();
}

// The operand is evaluated for the lookups in it.
CodeSlot writeOperand(ExpressionNode* operand, CodeBuilder& builder)
{
    if (operand != nullptr)
        ExpressionCode::write(operand, builder);
    return builder.unknown();
}

} // namespace

CodeSlot OperandCode::write(ExpressionNode* expression, CodeBuilder& builder)
{
    switch (expression->kind) {
    case Node::Kind_NotExpression:
        return writeOperand(cast<NotExpression*>(expression)->expression, builder);
    case Node::Kind_TypeOfExpression:
        return writeOperand(cast<TypeOfExpression*>(expression)->expression, builder);
    case Node::Kind_UnaryMinusExpression:
        return writeOperand(cast<UnaryMinusExpression*>(expression)->expression, builder);
    case Node::Kind_UnaryPlusExpression:
        return writeOperand(cast<UnaryPlusExpression*>(expression)->expression, builder);
    case Node::Kind_VoidExpression:
        return writeOperand(cast<VoidExpression*>(expression)->expression, builder);
    case Node::Kind_YieldExpression:
        builder.copy(ExpressionCode::write(cast<YieldExpression*>(expression)->expression, builder), builder.result);
        return builder.unknown();
    default:
        return writeLiteral(expression, builder);
    }
}

} // namespace ResourceCheck
