#include "ResourceCheck/qml/code/ExpressionCode.h"

#include "ResourceCheck/qml/code/GuardCode.h"
#include "ResourceCheck/qml/code/OperandCode.h"
#include "ResourceCheck/qml/code/PatternCode.h"

#include <private/qqmljsast_p.h>

using namespace QQmlJS::AST;

namespace ResourceCheck
{

namespace
{

using ExpressionCode::position;
using ExpressionCode::write;

CodeSlot writeName(const IdentifierExpression* identifier, CodeBuilder& builder)
{
    const QString name = identifier->name.toString();
    const CodeSlot variable = builder.variable(name);
    if (variable.isValid() || name == QLatin1String("undefined"))
        return variable;
    CodeOperation operation{CodeAction::Name, {}, builder.scope(), {}, builder.number(name), {}, {}};
    operation.position = position(identifier->identifierToken);
    return builder.compute(operation);
}

CodeSlot writeMember(FieldMemberExpression* member, CodeBuilder& builder)
{
    CodeOperation operation{CodeAction::Get, {}, write(member->base, builder), {}, -1, {}, {}};
    operation.number = builder.number(member->name.toString());
    operation.position = position(member->identifierToken);
    return builder.compute(operation);
}

CodeSlot writeIndex(ArrayMemberExpression* member, CodeBuilder& builder)
{
    CodeOperation operation{CodeAction::GetAt, {}, write(member->base, builder), {}, -1, {}, {}};
    operation.right = write(member->expression, builder);
    operation.position = position(member->expression->firstSourceLocation());
    operation.end = position(member->rbracketToken);
    return builder.compute(operation);
}

// The base is evaluated once, because it is also `this`.
CodeSlot writeCall(CodeAction action, ExpressionNode* base, ArgumentList* arguments, CodePosition end,
                   CodeBuilder& builder)
{
    CodeOperation operation{action, {}, write(base, builder), {}, -1, {}, position(base->firstSourceLocation()), end};
    const CodeOperation access = builder.unit.operations.empty() ? operation : builder.unit.operations.back();
    const bool isMember = access.action == CodeAction::Get || access.action == CodeAction::GetAt;
    if (isMember && operation.left.level == 0 && access.target.index == operation.left.index) {
        operation.right = access.left;
        operation.position = access.position;
    }
    for (ArgumentList* argument = arguments; argument != nullptr; argument = argument->next)
        operation.arguments.append({write(argument->expression, builder), argument->isSpreadElement});
    return builder.compute(operation);
}

CodeSlot writeConditional(const ConditionalExpression* condition, CodeBuilder& builder)
{
    write(condition->expression, builder);
    const CodeSlot result = builder.newSlot();
    for (const bool isTrue : {true, false}) {
        const GuardCode guard(condition->expression, isTrue, builder);
        builder.copy(write(isTrue ? condition->ok : condition->ko, builder), result);
    }
    return result;
}

CodeSlot withoutText(CodeSlot value, CodeSlot text, CodeBuilder& builder)
{
    return value.isValid() ? builder.compute(CodeAction::Without, value, text) : value;
}

CodeSlot writeBinary(BinaryExpression* binary, CodeBuilder& builder)
{
    const bool isAnd = binary->op == QSOperator::And;
    if (binary->op == QSOperator::Assign) {
        const CodeSlot value = write(binary->right, builder);
        ExpressionCode::assign(binary->left, value, builder);
        return value;
    }
    const CodeSlot left = write(binary->left, builder);
    if (isAnd || binary->op == QSOperator::Or || binary->op == QSOperator::Coalesce) {
        const CodeSlot result = builder.newSlot();
        if (!isAnd) {
            // An empty or missing left side is replaced.
            const CodeSlot replaced = binary->op == QSOperator::Or ? builder.emptyText() : builder.undefined();
            builder.copy(withoutText(left, replaced, builder), result);
        }
        const GuardCode guard(binary->left, isAnd, builder);
        builder.copy(write(binary->right, builder), result);
        return result;
    }
    const CodeSlot right = write(binary->right, builder);
    builder.compared.insert(binary->left, left);
    builder.compared.insert(binary->right, right);
    if (binary->op == QSOperator::Add)
        return builder.compute(CodeAction::Add, left, right);
    if (binary->op == QSOperator::InplaceAdd) {
        const CodeSlot sum = builder.compute(CodeAction::Add, left, right);
        ExpressionCode::assign(binary->left, sum, builder);
        return sum;
    }
    return binary->op == QSOperator::As ? left : builder.unknown();
}

} // namespace

CodeSlot ExpressionCode::write(ExpressionNode* expression, CodeBuilder& builder)
{
    const CodeBuilder::Depth depth(builder);
    if (expression == nullptr || depth.isTooDeep())
        return builder.unknown();
    const CodeSlot guarded = GuardCode::value(expression, builder);
    if (guarded.isValid())
        return guarded;
    if (auto* nested = cast<NestedExpression*>(expression))
        return write(nested->expression, builder);
    if (const auto* identifier = cast<IdentifierExpression*>(expression))
        return writeName(identifier, builder);
    if (auto* member = cast<FieldMemberExpression*>(expression))
        return writeMember(member, builder);
    if (auto* index = cast<ArrayMemberExpression*>(expression))
        return writeIndex(index, builder);
    if (const auto* call = cast<CallExpression*>(expression))
        return writeCall(CodeAction::Call, call->base, call->arguments, position(call->rparenToken), builder);
    if (const auto* object = cast<NewMemberExpression*>(expression))
        return writeCall(CodeAction::New, object->base, object->arguments, position(object->rparenToken), builder);
    if (const auto* object = cast<NewExpression*>(expression))
        return writeCall(CodeAction::New, object->expression, nullptr, {}, builder);
    if (const auto* condition = cast<ConditionalExpression*>(expression))
        return writeConditional(condition, builder);
    if (auto* binary = cast<BinaryExpression*>(expression))
        return writeBinary(binary, builder);
    if (const auto* list = cast<Expression*>(expression)) {
        write(list->left, builder);
        return write(list->right, builder);
    }
    return expression->kind == Node::Kind_ThisExpression ? builder.thisValue()
                                                         : OperandCode::write(expression, builder);
}

void ExpressionCode::assign(ExpressionNode* target, CodeSlot value, CodeBuilder& builder)
{
    if (auto* nested = cast<NestedExpression*>(target)) {
        assign(nested->expression, value, builder);
    } else if (const auto* identifier = cast<IdentifierExpression*>(target)) {
        const QString name = identifier->name.toString();
        const CodeSlot variable = builder.variable(name);
        if (variable.isValid())
            builder.copy(value, variable);
        else if (value.isValid())
            builder.append({CodeAction::SetName, {}, builder.scope(), value, builder.number(name), {}, {}});
    } else if (auto* member = cast<FieldMemberExpression*>(target)) {
        const CodeSlot base = write(member->base, builder);
        builder.append({CodeAction::Set, {}, base, value, builder.number(member->name.toString()), {}, {}});
    } else if (auto* index = cast<ArrayMemberExpression*>(target)) {
        const CodeSlot base = write(index->base, builder);
        builder.append({CodeAction::SetAt, value, base, write(index->expression, builder), -1, {}, {}});
    } else if (target->kind == Node::Kind_ArrayPattern || target->kind == Node::Kind_ObjectPattern) {
        PatternCode::assign(target, value, builder);
    }
}

QString ExpressionCode::path(Node* expression)
{
    if (const auto* nested = cast<NestedExpression*>(expression))
        return path(nested->expression);
    if (const auto* identifier = cast<IdentifierExpression*>(expression))
        return identifier->name.toString();
    if (expression != nullptr && expression->kind == Node::Kind_ThisExpression)
        return QStringLiteral("this");
    if (const auto* element = cast<ArrayMemberExpression*>(expression)) {
        const auto* text = cast<StringLiteral*>(element->expression);
        const QString key =
            text != nullptr ? QLatin1Char('"') + text->value.toString() + QLatin1Char('"') : path(element->expression);
        const QString base = path(element->base);
        return key.isNull() || base.isNull() ? QString() : QStringLiteral("%1[%2]").arg(base, key);
    }
    const auto* member = cast<FieldMemberExpression*>(expression);
    const QString base = member == nullptr ? QString() : path(member->base);
    return base.isNull() ? base : base + QLatin1Char('.') + member->name.toString();
}

} // namespace ResourceCheck
